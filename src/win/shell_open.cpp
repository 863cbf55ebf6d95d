#include "win/shell_open.h"

#include "win/windows.h"

namespace win {

void OpenAddress(const std::string& address) {
    ::ShellExecuteA(nullptr, nullptr, address.c_str(), nullptr, nullptr, SW_SHOWNORMAL);
}

}  // namespace win
