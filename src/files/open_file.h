// A file as a new document window.
#pragma once

#include <string>

#include "main_window.h"

class frmChild;

namespace files {

// Reads the file into a new document window, shown with its name and path. Null when it cannot be read, or
// when the program is closing by then. Throws document::PageTooLarge with a text that names the file.
frmChild* OpenFile(MainWindow& main, const std::string& path);

}  // namespace files
