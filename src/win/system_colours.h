// The user's choice of colours.
#pragma once

#include "win/windows.h"

namespace win {

// Whether the user has chosen high contrast: only the system's own colours are to be shown then.
bool IsHighContrast();

// Passes WM_SYSCOLORCHANGE and WM_SETTINGCHANGE, which the system sends to main windows only, on to the
// controls in a window.
void PassToControls(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

}  // namespace win
