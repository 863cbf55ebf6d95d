#include "win/shell_open.h"

#include "win/late_shell.h"

namespace win {

void OpenAddress(const std::string& address) {
    kShellExecute(nullptr, nullptr, address.c_str(), nullptr, nullptr, SW_SHOWNORMAL);
}

}  // namespace win
