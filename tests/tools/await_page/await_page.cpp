// await_page [SECONDS]: ends when a page stands in the editor's window and all of it is painted, with 1
// when that has not come about in time. scripts/screenshot waits with it.
#include <algorithm>
#include <cstdlib>

#include "support/windows_seen.h"

namespace {

bool IsPainted(HWND window) {
    return !::IsWindowVisible(window) || !::GetUpdateRect(window, nullptr, FALSE);
}

BOOL CALLBACK LookAt(HWND window, LPARAM found) {
    char caption[16] = "";
    ::GetWindowTextA(window, caption, sizeof caption);
    const std::vector<HWND> controls = seen::Below(window);
    if (!std::string(caption).starts_with("Quillon") || !::IsWindowVisible(window) || !IsPainted(window) ||
        !seen::ChildOfClass(window, "RICHEDIT") ||
        !std::all_of(controls.begin(), controls.end(), IsPainted)) {
        return TRUE;
    }
    *reinterpret_cast<bool*>(found) = true;
    return FALSE;
}

}  // namespace

int main(int argc, char** argv) {
    bool found = false;
    seen::Until(
        [&] {
            ::EnumWindows(LookAt, reinterpret_cast<LPARAM>(&found));
            return found;
        },
        argc > 1 ? std::strtoul(argv[1], nullptr, 10) * 1000 : 30000);
    return found ? 0 : 1;
}
