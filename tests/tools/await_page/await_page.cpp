// await_page [SECONDS]: ends when a page stands in the editor's window and all of it is painted, with 1
// when that has not come about in time. scripts/screenshot waits with it.
#include <windows.h>

#include <cstdlib>
#include <string_view>

namespace {

struct Sight {
    bool page = false;
    bool unpainted = false;
};

BOOL CALLBACK lookAtControl(HWND control, LPARAM param) {
    auto& sight = *reinterpret_cast<Sight*>(param);
    char name[16] = "";
    ::GetClassNameA(control, name, sizeof name);
    if (!::IsWindowVisible(control)) return TRUE;
    if (::lstrcmpiA(name, "RICHEDIT") == 0) sight.page = true;
    if (::GetUpdateRect(control, nullptr, FALSE)) sight.unpainted = true;
    return TRUE;
}

BOOL CALLBACK lookAtWindow(HWND window, LPARAM found) {
    char caption[16] = "";
    ::GetWindowTextA(window, caption, sizeof caption);
    if (!std::string_view(caption).starts_with("Quillon") || !::IsWindowVisible(window)) return TRUE;
    Sight sight;
    ::EnumChildWindows(window, lookAtControl, reinterpret_cast<LPARAM>(&sight));
    if (!sight.page || sight.unpainted || ::GetUpdateRect(window, nullptr, FALSE)) return TRUE;
    *reinterpret_cast<bool*>(found) = true;
    return FALSE;
}

}  // namespace

int main(int argc, char** argv) {
    const DWORD patience = argc > 1 ? std::strtoul(argv[1], nullptr, 10) * 1000 : 30000;
    const DWORD start = ::GetTickCount();
    bool found = false;
    while (!found && ::GetTickCount() - start < patience) {
        ::EnumWindows(lookAtWindow, reinterpret_cast<LPARAM>(&found));
        ::Sleep(50);
    }
    return found ? 0 : 1;
}
