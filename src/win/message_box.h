// The one place that shows a message box.
#pragma once

#include <string_view>

#include "win/windows.h"

namespace win {

// Shows the system's message box over the top-level window of `owner` (null for none), or over the dialog
// that keeps it waiting, and waits for the answer, an ID... value. No other window of the program can be used
// meanwhile. `style` is made of MB_... flags.
int ShowMessage(HWND owner, std::string_view text, std::string_view title, UINT style = MB_OK);

}  // namespace win
