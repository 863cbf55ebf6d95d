// Dragging files or text out of this process with the mouse.
#pragma once

#include <string>
#include <vector>

#include <windows.h>

#include <oleidl.h>

// Picks the files up in a window of its own, moves the mouse to the middle of `target`, which may belong to
// any process, and lets go as soon as the target takes them. Gives the effect that the target reports; a
// cancelled drag (DROPEFFECT_NONE) when it has not taken them within ten seconds.
DWORD DragFiles(const std::vector<std::string>& paths, HWND target, DWORD offered);
DWORD DragText(const std::string& text, HWND target, DWORD offered);
