#include "shell/toolbar.h"

#include "win/error.h"
#include "win/units.h"

namespace shell {
namespace {

constexpr int kPicture = 16;  // all measures in pixels of a 96-dpi screen
constexpr int kButton = 24;
constexpr int kMargin = 2;
constexpr int kGap = 6;  // between groups

// Buttons that begin a group stand a little apart.
bool BeginsGroup(std::size_t index) {
    return index == 5 || index == 9 || index == 11 || index == 15;
}

}  // namespace

Toolbar& Toolbar::open(HWND parent, std::function<void(int)> onClick) {
    auto* self = new Toolbar(std::move(onClick));
    WNDCLASSEXA cls{};
    cls.lpszClassName = "Picture2";
    cls.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
    self->create(cls, "Toolbar", WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN, WS_EX_CONTROLPARENT, {0, 0, 0, 0},
                 parent);
    return *self;
}

int Toolbar::height() {
    return win::Scaled(kButton + 2 * kMargin);
}

void Toolbar::makeButtons() {
    const HINSTANCE instance = ::GetModuleHandleA(nullptr);
    const HWND tips = ::CreateWindowExA(WS_EX_TOPMOST, TOOLTIPS_CLASSA, nullptr, WS_POPUP | TTS_ALWAYSTIP, 0,
                                        0, 0, 0, hwnd(), nullptr, instance, nullptr);
    const int picture = win::Scaled(kPicture);
    const int size = win::Scaled(kButton);
    int left = win::Scaled(kMargin);
    for (std::size_t i = 0; i < kToolbar.size(); ++i) {
        if (BeginsGroup(i)) left += win::Scaled(kGap);
        Picture1_[i] = win::Check(
            ::CreateWindowExA(0, "BUTTON", kToolbar[i].tip, WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_OWNERDRAW,
                              left, win::Scaled(kMargin), size, size, hwnd(),
                              reinterpret_cast<HMENU>(static_cast<INT_PTR>(i)), instance, nullptr));
        pictures_[i].reset(static_cast<HICON>(
            ::LoadImageA(instance, kToolbar[i].picture, IMAGE_ICON, picture, picture, LR_DEFAULTCOLOR)));
        if (tips) addTip(tips, Picture1_[i], kToolbar[i].tip);
        left += size;
    }
}

void Toolbar::addTip(HWND tips, HWND button, const char* text) const {
    TOOLINFOA tool{};
    tool.cbSize = TTTOOLINFOA_V2_SIZE;
    tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
    tool.hwnd = hwnd();
    tool.uId = reinterpret_cast<UINT_PTR>(button);
    tool.lpszText = const_cast<char*>(text);
    ::SendMessageA(tips, TTM_ADDTOOLA, 0, reinterpret_cast<LPARAM>(&tool));
}

void Toolbar::draw(const DRAWITEMSTRUCT& item) const {
    RECT area = item.rcItem;
    const bool pressed = (item.itemState & ODS_SELECTED) != 0;
    const bool disabled = (item.itemState & ODS_DISABLED) != 0;
    ::FillRect(item.hDC, &area, ::GetSysColorBrush(COLOR_BTNFACE));
    if (pressed) ::DrawEdge(item.hDC, &area, BDR_SUNKENOUTER, BF_RECT);
    const int picture = win::Scaled(kPicture);
    const int shift = pressed ? 1 : 0;
    const int left = (area.right - picture) / 2 + shift;
    const int top = (area.bottom - picture) / 2 + shift;
    ::DrawStateA(item.hDC, nullptr, nullptr, reinterpret_cast<LPARAM>(pictures_[item.CtlID].get()), 0, left,
                 top, picture, picture, static_cast<UINT>(DST_ICON) | (disabled ? DSS_DISABLED : DSS_NORMAL));
    if (item.itemState & ODS_FOCUS) {
        ::InflateRect(&area, -2, -2);
        ::DrawFocusRect(item.hDC, &area);
    }
}

LRESULT Toolbar::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_CREATE:
            makeButtons();
            return 0;
        case WM_COMMAND:
            // The button shows that it was pressed before a long command runs.
            ::UpdateWindow(reinterpret_cast<HWND>(lParam));
            onClick_(LOWORD(wParam));
            return 0;
        case WM_DRAWITEM:
            draw(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
            return TRUE;
        default:
            return defaultHandling(message, wParam, lParam);
    }
}

}  // namespace shell
