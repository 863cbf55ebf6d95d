// Text on the system's clipboard, in UTF-16.
#pragma once

#include <string>
#include <string_view>

#include "win/windows.h"

namespace win {

// Replaces what is there. `owner` is a window of this thread. Throws win::Error when another program keeps
// the clipboard open.
void SetClipboardText(HWND owner, std::u16string_view text);

// Up to the first NUL, which ends a clipboard text; empty when there is no text. Throws as above.
std::u16string ClipboardText(HWND owner);

bool ClipboardHasText();

}  // namespace win
