// Spelling by the system's own spell checker, with a dialog of ours.
#pragma once

#include <memory>

#include "authoring/spell_service.h"

namespace authoring {

// Null where the system has none (before Windows 8) or none for the user's language.
std::unique_ptr<SpellService> StartSystemSpelling();

}  // namespace authoring
