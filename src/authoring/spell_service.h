// Who corrects spelling for us.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "win/windows.h"

namespace authoring {

class SpellService {
 public:
    virtual ~SpellService() = default;
    // Lets the user correct the text, over `owner`, and returns what became of it; nothing when the user
    // called the check off. Throws when it fails. Messages of all windows are handled meanwhile.
    virtual std::optional<std::string> correct(HWND owner, const std::string& text) = 0;
};

// The installed word processor, or else the system's own spell checker; null when there is neither.
std::unique_ptr<SpellService> StartSpellService();

}  // namespace authoring
