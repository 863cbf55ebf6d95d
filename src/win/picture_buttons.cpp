#include "win/picture_buttons.h"

#include "win/error.h"
#include "win/system_colours.h"
#include "win/units.h"

namespace win {
namespace {

constexpr int kButton = 24;  // pixels of a 96-dpi screen
constexpr int kGap = 6;      // between groups

// `percent` of the one system colour in the other.
COLORREF Mixed(int colour, int ground, int percent) {
    const COLORREF a = ::GetSysColor(colour);
    const COLORREF b = ::GetSysColor(ground);
    const auto mix = [percent](int of, int in) { return (of * percent + in * (100 - percent)) / 100; };
    return RGB(mix(GetRValue(a), GetRValue(b)), mix(GetGValue(a), GetGValue(b)),
               mix(GetBValue(a), GetBValue(b)));
}

void DrawGround(HDC dc, const RECT& area, bool hot, bool pressed) {
    ::FillRect(dc, &area, ::GetSysColorBrush(COLOR_BTNFACE));
    if (!hot && !pressed) return;
    if (!IsHighContrast()) {
        const UniqueBrush tint(::CreateSolidBrush(Mixed(COLOR_HIGHLIGHT, COLOR_BTNFACE, pressed ? 40 : 20)));
        ::FillRect(dc, &area, tint.get());
    }
    ::FrameRect(dc, &area, ::GetSysColorBrush(COLOR_HIGHLIGHT));
}

}  // namespace

PictureButton::PictureButton(HWND parent, int id, const char* name, const char* icon, const RECT& place,
                             bool enabled)
    : name_(name), icon_(icon) {
    const DWORD style = WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_OWNERDRAW | (enabled ? 0U : WS_DISABLED);
    attach(Check(::CreateWindowExA(
        0, "BUTTON", name, style, place.left, place.top, place.right - place.left, place.bottom - place.top,
        parent, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), ::GetModuleHandleA(nullptr), nullptr)));
}

const Picture& PictureButton::picture(bool disabled) {
    std::optional<Picture>& kept = disabled ? disabled_ : normal_;
    if (!kept) kept.emplace(icon_, PictureSize(), disabled ? Picture::Look::disabled : Picture::Look::normal);
    return *kept;
}

void PictureButton::draw(const DRAWITEMSTRUCT& item) {
    const bool pressed = (item.itemState & ODS_SELECTED) != 0;
    const Picture& shown = picture((item.itemState & ODS_DISABLED) != 0);
    RECT area = item.rcItem;
    DrawGround(item.hDC, area, hot_, pressed);
    const int shift = pressed ? Scaled(1) : 0;
    shown.draw(item.hDC, (area.right - shown.size()) / 2 + shift, (area.bottom - shown.size()) / 2 + shift);
    if ((item.itemState & ODS_FOCUS) != 0 && (item.itemState & ODS_NOFOCUSRECT) == 0) {
        ::InflateRect(&area, -2, -2);
        ::DrawFocusRect(item.hDC, &area);
    }
}

void PictureButton::setHot(bool hot) {
    if (hot == hot_) return;
    hot_ = hot;
    ::InvalidateRect(hwnd(), nullptr, FALSE);
}

LRESULT PictureButton::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NCPAINT) return 0;  // there is no frame
    // A dialog would take Enter for its default button.
    if (message == WM_GETDLGCODE && wParam == VK_RETURN) return DLGC_BUTTON | DLGC_WANTMESSAGE;
    if (message == WM_KEYDOWN && wParam == VK_RETURN) {
        send(BM_CLICK);
    } else if (message == WM_MOUSEMOVE && !hot_) {
        TRACKMOUSEEVENT track{sizeof track, TME_LEAVE, hwnd(), 0};
        ::TrackMouseEvent(&track);
        setHot(true);
    } else if (message == WM_MOUSELEAVE || (message == WM_ENABLE && wParam == FALSE)) {
        setHot(false);
    }
    return Control::onMessage(message, wParam, lParam);
}

int PictureButtons::height() {
    return Scaled(kButton);
}

void PictureButtons::open(HWND parent, int left, int top) {
    parent_ = parent;
    left_ = left;
    top_ = top;
}

void PictureButtons::add(int id, const char* name, const char* icon, bool beginsGroup, bool enabled) {
    if (beginsGroup) left_ += Scaled(kGap);
    const HWND before = buttons_.empty() ? nullptr : buttons_.back()->hwnd();
    const RECT place{left_, top_, left_ + height(), top_ + height()};
    buttons_.push_back(std::make_unique<PictureButton>(parent_, id, name, icon, place, enabled));
    left_ = place.right;
    const HWND added = buttons_.back()->hwnd();
    if (::GetWindow(added, GW_HWNDPREV) != before) {
        ::SetWindowPos(added, before ? before : HWND_TOP, 0, 0, 0, 0,
                       SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    }
}

void PictureButtons::useTips() {
    if (tips_.exist()) return;
    tips_.create(parent_);
    for (const auto& button : buttons_) tips_.add(button->hwnd(), button->name());
}

bool PictureButtons::draw(const DRAWITEMSTRUCT& item) const {
    for (const auto& button : buttons_) {
        if (button->hwnd() != item.hwndItem) continue;
        button->draw(item);
        return true;
    }
    return false;
}

}  // namespace win
