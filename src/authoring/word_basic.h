// Spelling by the word processor that is driven as "Word.Basic".
#pragma once

#include <memory>

#include "authoring/spell_service.h"

namespace authoring {

// Starts the word processor, minimised. Null when it is not installed or does not come up.
std::unique_ptr<SpellService> StartWordBasic();

}  // namespace authoring
