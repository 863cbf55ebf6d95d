// Services that let the user correct the spelling of a text.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "win/windows.h"

namespace authoring {

class SpellService {
 public:
    virtual ~SpellService() = default;
    // Lets the user correct the text, over the main window `owner`, and returns the corrected text; nothing
    // when the user cancels. Throws when it fails. Messages are handled meanwhile, with all of the program's
    // own windows disabled. Called once.
    virtual std::optional<std::u16string> correct(HWND owner, const std::u16string& text) = 0;
};

// The word processor that is driven as "Word.Basic", started, minimised. Null when it is not installed or
// does not come up. When correct() fails, it leaves as much of the corrected text as it can get on the
// clipboard, and the word processor as it found it.
std::unique_ptr<SpellService> StartWordBasic();

// The system's own spell checker, with a dialog of ours. Null where the system has none (before Windows 8),
// or none for the language (a tag as in HTML; empty for the user's).
std::unique_ptr<SpellService> StartSystemSpelling(const std::string& language);

}  // namespace authoring
