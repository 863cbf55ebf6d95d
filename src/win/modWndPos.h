// Where tool windows stand: above the others, beside the main window, and always on the screen.
#pragma once

#include "win/windows.h"

namespace modWndPos {

void MakeTopmost(HWND window);
void DropTopmost(HWND window);

// Moves the window's top left corner to a place on the screen, in twips, but keeps all of the window within
// the work area of the nearest monitor.
void MoveTo(HWND window, int leftTwips, int topTwips);

// Moves every open window of this thread that a smaller screen has left outside, wholly or in part, back
// onto the nearest monitor; one with a sizing frame shrinks to fit.
void KeepAllOnScreen();

// The window's rectangle on the screen, in twips.
RECT RectInTwips(HWND window);

}  // namespace modWndPos
