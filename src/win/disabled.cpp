#include "win/disabled.h"

namespace win {
namespace {

BOOL CALLBACK Collect(HWND window, LPARAM windows) {
    if (::IsWindowVisible(window) && ::IsWindowEnabled(window))
        reinterpret_cast<std::vector<HWND>*>(windows)->push_back(window);
    return TRUE;
}

}  // namespace

Disabled::Disabled(HWND except) {
    ::EnumThreadWindows(::GetCurrentThreadId(), Collect, reinterpret_cast<LPARAM>(&windows_));
    std::erase(windows_, except);
    for (const HWND window : windows_) ::EnableWindow(window, FALSE);
}

Disabled::~Disabled() {
    for (const HWND window : windows_) {
        // The handle of a destroyed window may be another program's by now.
        if (::GetWindowThreadProcessId(window, nullptr) == ::GetCurrentThreadId())
            ::EnableWindow(window, TRUE);
    }
    // Disabling a window takes the focus from it.
    if (!::GetFocus() && ::IsWindow(focus_)) ::SetFocus(focus_);
}

}  // namespace win
