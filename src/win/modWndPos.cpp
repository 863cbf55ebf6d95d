#include "win/modWndPos.h"

#include <algorithm>

#include "win/units.h"

namespace modWndPos {

void MakeTopmost(HWND window) {
    ::SetWindowPos(window, HWND_TOPMOST, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE);
}

void DropTopmost(HWND window) {
    ::SetWindowPos(window, HWND_NOTOPMOST, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE);
}

RECT RectInTwips(HWND window) {
    RECT rect{};
    ::GetWindowRect(window, &rect);
    return {win::TwipsFromPixels(rect.left), win::TwipsFromPixels(rect.top), win::TwipsFromPixels(rect.right),
            win::TwipsFromPixels(rect.bottom)};
}

void MoveTo(HWND window, int leftTwips, int topTwips) {
    RECT rect{};
    ::GetWindowRect(window, &rect);
    const LONG width = rect.right - rect.left;
    const LONG height = rect.bottom - rect.top;
    POINT corner{win::PixelsFromTwips(leftTwips), win::PixelsFromTwips(topTwips)};
    MONITORINFO monitor{};
    monitor.cbSize = sizeof monitor;
    if (::GetMonitorInfoA(::MonitorFromPoint(corner, MONITOR_DEFAULTTONEAREST), &monitor)) {
        const RECT& area = monitor.rcWork;
        // A window larger than the screen keeps its title bar on it.
        corner.x = std::max(area.left, std::min(corner.x, area.right - width));
        corner.y = std::max(area.top, std::min(corner.y, area.bottom - height));
    }
    ::SetWindowPos(window, nullptr, corner.x, corner.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

}  // namespace modWndPos
