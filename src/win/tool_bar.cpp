#include "win/tool_bar.h"

#include <string>
#include <vector>

#include "win/error.h"
#include "win/unicode.h"
#include "win/units.h"

namespace win {
namespace {

constexpr int kPadding = 8;  // around a picture, both sides together; in pixels of a 96-dpi screen
constexpr DWORD kStyle = WS_CHILD | WS_VISIBLE | WS_TABSTOP | CCS_NORESIZE | CCS_NOPARENTALIGN |
                         CCS_NODIVIDER | TBSTYLE_FLAT | TBSTYLE_LIST | TBSTYLE_TOOLTIPS | TBSTYLE_WRAPABLE;

}  // namespace

void ToolBar::create(HWND parent, int firstId, std::span<const ToolButton> buttons) {
    hwnd_ = Check(::CreateWindowExW(0, TOOLBARCLASSNAMEW, L"Toolbar", kStyle, 0, 0, 0, 0, parent, nullptr,
                                    ::GetModuleHandleW(nullptr), nullptr));
    firstId_ = firstId;
    ::SetWindowPos(hwnd_, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    ::SendMessageW(hwnd_, TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON), 0);
    // A button's text is then its name and its tool tip, and not drawn.
    ::SendMessageW(hwnd_, TB_SETEXTENDEDSTYLE, 0, TBSTYLE_EX_MIXEDBUTTONS);
    std::vector<const char*> names;
    for (const ToolButton& button : buttons) names.push_back(button.picture);
    pictures_.emplace(names);
    ::SendMessageW(hwnd_, TB_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(pictures_->normal.get()));
    ::SendMessageW(hwnd_, TB_SETDISABLEDIMAGELIST, 0, reinterpret_cast<LPARAM>(pictures_->disabled.get()));
    ::SendMessageW(hwnd_, TB_SETPADDING, 0, MAKELPARAM(Scaled(kPadding), Scaled(kPadding)));
    add(buttons);
}

void ToolBar::add(std::span<const ToolButton> buttons) {
    std::vector<std::wstring> tips;
    for (const ToolButton& button : buttons) tips.push_back(ToWide(button.tip));
    std::vector<TBBUTTON> items;
    for (const ToolButton& button : buttons) {
        TBBUTTON item{};
        item.fsStyle = BTNS_SEP;
        if (button.beginsGroup) items.push_back(item);
        item.iBitmap = count_;
        item.idCommand = firstId_ + count_;
        item.fsState = TBSTATE_ENABLED;
        item.fsStyle = BTNS_BUTTON | BTNS_AUTOSIZE;
        item.iString = reinterpret_cast<INT_PTR>(tips[static_cast<std::size_t>(count_)].c_str());
        items.push_back(item);
        ++count_;
    }
    // All at once: the bar measures them all anew after each call.
    Check(::SendMessageW(hwnd_, TB_ADDBUTTONSW, items.size(), reinterpret_cast<LPARAM>(items.data())));
}

void ToolBar::enable(int index, bool enabled) const {
    ::SendMessageW(hwnd_, TB_ENABLEBUTTON, static_cast<WPARAM>(firstId_ + index), MAKELPARAM(enabled, 0));
}

bool ToolBar::isEnabled(int index) const {
    return ::SendMessageW(hwnd_, TB_ISBUTTONENABLED, static_cast<WPARAM>(firstId_ + index), 0) != 0;
}

int ToolBar::place(int left, int top, int width) const {
    // The bar breaks its rows anew for a new width; only then is its height known.
    ::SetWindowPos(hwnd_, nullptr, left, top, width, 0, SWP_NOZORDER | SWP_NOACTIVATE);
    ::SendMessageW(hwnd_, TB_AUTOSIZE, 0, 0);
    RECT last{};
    ::SendMessageW(hwnd_, TB_GETRECT, static_cast<WPARAM>(firstId_ + count_ - 1),
                   reinterpret_cast<LPARAM>(&last));
    ::SetWindowPos(hwnd_, nullptr, left, top, width, last.bottom, SWP_NOZORDER | SWP_NOACTIVATE);
    return last.bottom;
}

}  // namespace win
