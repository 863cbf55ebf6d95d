// Windows that take what is dragged onto them from any program, by OLE.
#pragma once

#include <string>
#include <vector>

#include "win/windows.h"

namespace win {

// Sent to a window that something was dropped onto, while the program that drags waits. The message carries
// nothing, since any program could send it: DroppedFiles() says what it is about.
inline constexpr UINT kDropped = WM_APP + 0x101;

// During kDropped: the paths of the dropped files in their order, none when it was something else than files.
// Null at any other time.
const std::vector<std::string>* DroppedFiles();

// Tells a window of a drop.
void SendDropped(HWND window, const std::vector<std::string>& paths);

// In place of a drop target that the window's class has registered. Where the system refuses, the window
// takes no drops. It calls RefuseDrops before it goes.
void AcceptDrops(HWND window);
void RefuseDrops(HWND window);

}  // namespace win
