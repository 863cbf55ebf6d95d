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
    // Lets the user correct the text, over the main window `owner`, and returns what became of it; nothing
    // when the user called the check off. Throws when it fails. Messages of all windows are handled
    // meanwhile, but none of the program's own windows can be used. Called once.
    virtual std::optional<std::u16string> correct(HWND owner, const std::u16string& text) = 0;
};

// The word processor that is driven as "Word.Basic", started, minimised. Null when it is not installed or
// does not come up. Where correct() fails, what can be had of the corrected text is on the clipboard, and the
// word processor is as it was found.
std::unique_ptr<SpellService> StartWordBasic();

// The system's own spell checker, with a dialog of ours. Null where the system has none (before Windows 8),
// or none for the language (a tag as in HTML; empty for the user's).
std::unique_ptr<SpellService> StartSystemSpelling(const std::string& language);

}  // namespace authoring
