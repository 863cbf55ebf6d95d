// The one place that shows a message box.
#pragma once

#include <string>

#include "win/windows.h"

namespace win {

// Shows the system's message box over the top-level window of `owner` (null for none) and waits for the
// answer, an ID... value. `style` is made of MB_... flags.
int ShowMessage(HWND owner, const std::string& text, const char* title, UINT style = MB_OK);

}  // namespace win
