#include "win/modWndPos.h"

#include <algorithm>

#include "win/units.h"

namespace modWndPos {
namespace {

RECT WorkArea(HMONITOR monitor) {
    MONITORINFO info{};
    info.cbSize = sizeof info;
    if (::GetMonitorInfoW(monitor, &info)) return info.rcWork;
    return {0, 0, ::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN)};
}

// The rectangle moved into the area; one that is too large keeps its top left corner there.
RECT Inside(RECT rect, const RECT& area) {
    const LONG left = std::max(area.left, std::min(rect.left, area.right - (rect.right - rect.left)));
    const LONG top = std::max(area.top, std::min(rect.top, area.bottom - (rect.bottom - rect.top)));
    ::OffsetRect(&rect, left - rect.left, top - rect.top);
    return rect;
}

BOOL CALLBACK KeepOnScreen(HWND window, LPARAM) {
    // The system fits maximised windows itself, and minimised ones when they are restored.
    if (!::IsWindowVisible(window) || ::IsIconic(window) || ::IsZoomed(window)) return TRUE;
    if ((::GetWindowLongPtrW(window, GWL_STYLE) & WS_CAPTION) != WS_CAPTION) return TRUE;
    RECT rect{};
    ::GetWindowRect(window, &rect);
    const RECT area = WorkArea(::MonitorFromRect(&rect, MONITOR_DEFAULTTONEAREST));
    RECT moved = Inside(rect, area);
    if (::GetWindowLongPtrW(window, GWL_STYLE) & WS_THICKFRAME) {
        moved.right = std::min(moved.right, area.right);
        moved.bottom = std::min(moved.bottom, area.bottom);
    }
    if (::EqualRect(&rect, &moved)) return TRUE;
    ::SetWindowPos(window, nullptr, moved.left, moved.top, moved.right - moved.left, moved.bottom - moved.top,
                   SWP_NOZORDER | SWP_NOACTIVATE);
    return TRUE;
}

}  // namespace

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
    const POINT corner{win::PixelsFromTwips(leftTwips), win::PixelsFromTwips(topTwips)};
    RECT rect{};
    ::GetWindowRect(window, &rect);
    ::OffsetRect(&rect, corner.x - rect.left, corner.y - rect.top);
    rect = Inside(rect, WorkArea(::MonitorFromPoint(corner, MONITOR_DEFAULTTONEAREST)));
    ::SetWindowPos(window, nullptr, rect.left, rect.top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void KeepAllOnScreen() {
    ::EnumThreadWindows(::GetCurrentThreadId(), KeepOnScreen, 0);
}

}  // namespace modWndPos
