// What the FTP window does with the files and directories that it shows. Each command asks what it needs to
// know, does its work, lists the directory anew and says what came of it.
#pragma once

#include <string>

class frmUpload;

namespace ftp {

// `line` is a line of the list, that of a directory with its "/". An empty one opens nothing.
void EnterDirectory(frmUpload& form, const std::string& line);

// Runs a button or a menu item of the window. `line` is the selected line, empty when there is none. False
// when the window has no such command, or it needs a line.
bool RunCommand(frmUpload& form, int id, const std::string& line);

}  // namespace ftp
