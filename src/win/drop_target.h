// Windows that take what is dragged onto them from any program, by OLE.
#pragma once

#include <string>
#include <vector>

#include "win/windows.h"

namespace win {

// Sent to a window onto which something was dropped, while the source program waits. The message carries no
// data, because any program could send it: DroppedFiles() has them.
inline constexpr UINT kDropped = WM_APP + 0x101;

// During kDropped, the paths of the dropped files in their order; none when something other than files was
// dropped. Null at any other time.
const std::vector<std::string>* DroppedFiles();

// Sends kDropped to a window.
void SendDropped(HWND window, const std::vector<std::string>& paths);

// Makes a window a drop target, in place of the one that its class may have registered. Where the system
// refuses, the window takes no drops. Call RefuseDrops before the window is destroyed.
void AcceptDrops(HWND window);
void RefuseDrops(HWND window);

}  // namespace win
