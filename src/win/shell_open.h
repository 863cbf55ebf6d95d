// Opening addresses and files with the programs that the system has for them.
#pragma once

#include <string>

#include "win/windows.h"

namespace win {

// A web or mailto address, with the shell's default action. Failure is not reported.
void OpenAddress(const std::string& address);

// The program that opens this file by a double-click; empty when there is none.
std::string ProgramFor(const std::string& file, const std::string& folder);

// Has the shell open a file, or start a program with its arguments, in a folder. `owner` is the window for
// the shell's questions. False when it fails. Messages may be handled meanwhile.
bool OpenFile(HWND owner, const std::string& file, const std::string& arguments = "",
              const std::string& folder = "");

}  // namespace win
