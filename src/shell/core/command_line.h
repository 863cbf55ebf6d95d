// The command line of a Windows process.
#pragma once

#include <string>
#include <string_view>

namespace shell {

// What follows the program's name, which may stand in double quotes, without the blanks around it. The text
// is one path; quotes in it are part of it.
std::string TextAfterProgramName(std::string_view commandLine);

}  // namespace shell
