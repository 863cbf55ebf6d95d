#include "ftp/remote_list.h"

#include <algorithm>

#include "win/drop_target.h"
#include "win/units.h"

namespace ftp {

void RemoteList::attach(HWND listBox) {
    Control::attach(listBox);
    win::AcceptDrops(listBox);
}

LRESULT RemoteList::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == win::kDropped) return ::SendMessageA(::GetParent(hwnd()), message, wParam, lParam);
    if (message == WM_DESTROY) win::RefuseDrops(hwnd());
    return Control::onMessage(message, wParam, lParam);
}

void RemoteList::clear() {
    send(LB_RESETCONTENT);
    width_ = 0;
    send(LB_SETHORIZONTALEXTENT);
}

void RemoteList::add(const std::string& line) {
    send(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(line.c_str()));
    widen(line);
}

void RemoteList::widen(const std::string& line) {
    const HDC dc = ::GetDC(hwnd());
    const HGDIOBJ old = ::SelectObject(dc, reinterpret_cast<HFONT>(send(WM_GETFONT)));
    SIZE size{};
    ::GetTextExtentPoint32A(dc, line.c_str(), static_cast<int>(line.size()), &size);
    ::SelectObject(dc, old);
    ::ReleaseDC(hwnd(), dc);
    const int width = static_cast<int>(size.cx) + win::Scaled(8);
    if (width <= width_) return;
    width_ = width;
    send(LB_SETHORIZONTALEXTENT, static_cast<WPARAM>(width));
}

std::string RemoteList::line(WPARAM index) const {
    const LRESULT length = send(LB_GETTEXTLEN, index);
    if (length == LB_ERR) return {};
    std::string text(static_cast<std::size_t>(length) + 1, '\0');
    text.resize(static_cast<std::size_t>(
        std::max<LRESULT>(0, send(LB_GETTEXT, index, reinterpret_cast<LPARAM>(text.data())))));
    return text;
}

std::string RemoteList::selected() const {
    const LRESULT index = send(LB_GETCURSEL);
    return index == LB_ERR ? std::string() : line(static_cast<WPARAM>(index));
}

// The list box's own search takes no notice of case, which names on a server differ by.
void RemoteList::select(const std::string& wanted) {
    const auto count = static_cast<WPARAM>(send(LB_GETCOUNT));
    for (WPARAM index = 0; index < count; ++index) {
        if (line(index) != wanted) continue;
        send(LB_SETCURSEL, index);
        return;
    }
}

bool RemoteList::findMenuPoint(POINT& at) {
    RECT area{};
    if (at.x == -1 && at.y == -1) {
        const LRESULT index = send(LB_GETCURSEL);
        if (index == LB_ERR ||
            send(LB_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&area)) == LB_ERR)
            return false;
        at = {area.left + win::Scaled(16), area.bottom};
        ::ClientToScreen(hwnd(), &at);
        return true;
    }
    POINT inside = at;
    ::ScreenToClient(hwnd(), &inside);
    const LRESULT hit = send(LB_ITEMFROMPOINT, 0, MAKELPARAM(inside.x, inside.y));
    if (HIWORD(hit) != 0 || send(LB_GETITEMRECT, LOWORD(hit), reinterpret_cast<LPARAM>(&area)) == LB_ERR ||
        !::PtInRect(&area, inside)) {
        return false;
    }
    send(LB_SETCURSEL, LOWORD(hit));
    return true;
}

}  // namespace ftp
