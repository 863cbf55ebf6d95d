// Lines of an edit control, as the control counts them: displayed lines, while it wraps.
#pragma once

#include "win/windows.h"

namespace mTxtBoxAPI {

// Lines are counted from 0, positions and lengths in characters of the control.
long LineCount(HWND edit);
long LineStart(HWND edit, long line);
long LineLength(HWND edit, long line);  // without the line break

}  // namespace mTxtBoxAPI
