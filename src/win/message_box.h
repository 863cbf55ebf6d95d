// The one place that shows a message box.
#pragma once

#include <string_view>

#include "win/windows.h"

namespace win {

// Shows the system's message box over the top-level window of `owner` (null for none), or over a modal dialog
// of it, and returns the answer, an ID... value. All other windows of the program are disabled meanwhile.
// `style` is made of MB_... flags.
int ShowMessage(HWND owner, std::string_view text, std::string_view title, UINT style = MB_OK);

}  // namespace win
