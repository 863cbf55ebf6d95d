// Windows that take what is dragged onto them from any program, by OLE.
#pragma once

#include "win/windows.h"

namespace win {

// Sent to a window that something was dropped onto: lParam points to a std::vector<std::string> that holds
// the paths of the dropped files in their order and is empty when it was something else than files. The
// program that drags waits meanwhile, so the window only takes note.
inline constexpr UINT kDropped = WM_APP + 0x101;

// In place of a drop target that the window's class has registered. Throws win::Error. The window calls
// RefuseDrops before it goes.
void AcceptDrops(HWND window);
void RefuseDrops(HWND window);

}  // namespace win
