// Which function runs which command.
#pragma once

#include "main_window.h"

namespace shell {

// Runs the command; one whose feature is missing does nothing.
void Run(MainWindow& main, Command command);

// False for a command that no feature answers to yet.
bool IsAvailable(Command command);

}  // namespace shell
