#include "ftp/remote_list.h"

#include <algorithm>
#include <utility>

#include "win/drop_target.h"
#include "win/unicode.h"
#include "win/units.h"
#include "win/window.h"

namespace ftp {

void RemoteList::attach(HWND listBox) {
    Control::attach(listBox);
    win::AcceptDrops(listBox);
}

LRESULT RemoteList::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == win::kDropped) return ::SendMessageW(::GetParent(hwnd()), message, wParam, lParam);
    if (message == WM_DESTROY) win::RefuseDrops(hwnd());
    return Control::onMessage(message, wParam, lParam);
}

void RemoteList::show(std::vector<RemoteFile> files) {
    files_ = std::move(files);
    send(WM_SETREDRAW, FALSE);
    send(LB_RESETCONTENT);
    for (const RemoteFile& file : files_) win::AddListRow(hwnd(), file.line);
    fitWidth();
    send(WM_SETREDRAW, TRUE);
    ::InvalidateRect(hwnd(), nullptr, TRUE);
}

void RemoteList::fitWidth() const {
    const HDC dc = ::GetDC(hwnd());
    const HGDIOBJ old = ::SelectObject(dc, reinterpret_cast<HFONT>(send(WM_GETFONT)));
    LONG width = 0;
    for (const RemoteFile& file : files_) {
        SIZE size{};
        const std::wstring wide = win::ToWide(file.line);
        ::GetTextExtentPoint32W(dc, wide.c_str(), static_cast<int>(wide.size()), &size);
        width = std::max(width, size.cx);
    }
    ::SelectObject(dc, old);
    ::ReleaseDC(hwnd(), dc);
    send(LB_SETHORIZONTALEXTENT, static_cast<WPARAM>(width + win::Scaled(8)));
}

const RemoteFile* RemoteList::selected() const {
    const LRESULT index = send(LB_GETCURSEL);
    return index == LB_ERR ? nullptr : &files_[static_cast<std::size_t>(index)];
}

// By the name: two lines may read alike.
void RemoteList::select(const std::string& name) {
    const auto file = std::find_if(files_.begin(), files_.end(),
                                   [&name](const RemoteFile& candidate) { return candidate.name == name; });
    if (file != files_.end()) send(LB_SETCURSEL, static_cast<WPARAM>(file - files_.begin()));
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
