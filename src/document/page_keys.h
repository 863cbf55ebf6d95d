// The keys that a page treats in its own way.
#pragma once

#include "win/windows.h"

class frmChild;
class MainWindow;

namespace document {

// Deals with a WM_KEYDOWN of the page's control. True says that the control is not to see the key.
bool HandleKey(frmChild& page, MainWindow& main, WPARAM key);

// Shows the Edit menu, for the page that this brings to the front, at a point of the screen, or below the
// caret when both coordinates are -1.
void ShowEditMenu(const frmChild& page, MainWindow& main, POINT at);

}  // namespace document
