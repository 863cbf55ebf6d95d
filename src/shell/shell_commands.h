// The commands that belong to the main window itself.
#pragma once

#include "main_window.h"

namespace shell {

void OnFileNew(MainWindow& main, int);
void OnFileClose(MainWindow& main, int);
void OnFileExit(MainWindow& main, int);
void OnHelpOnline(MainWindow& main, int);
// The toolbar as a menu, so that all of it can be reached from the keyboard.
void OnToolList(MainWindow& main, int);

}  // namespace shell
