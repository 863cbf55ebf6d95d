// From the command line to the first page on the screen.
#pragma once

#include <string>

#include "main_window.h"

namespace shell {

// The text after the program's own name on the command line, without the blanks around it: one path, absolute
// if there is such a file.
std::string CommandLineFile();

// Places the main window, shows it and opens the start document: the file, or a new page when there is none
// of that name.
void Load(MainWindow& main, const std::string& file);

}  // namespace shell
