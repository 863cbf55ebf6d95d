// Opening addresses with the programs that the system has for them.
#pragma once

#include <string>

namespace win {

// A web or mailto address, with the shell's default action. Nothing tells whether it worked.
void OpenAddress(const std::string& address);

}  // namespace win
