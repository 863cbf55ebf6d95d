// Which function runs which command.
#pragma once

#include "main_window.h"

namespace shell {

// Runs the command of a menu item or a button.
void Run(MainWindow& main, Command command);

}  // namespace shell
