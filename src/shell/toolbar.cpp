#include "shell/toolbar.h"

#include "tool_buttons.h"
#include "win/system_colours.h"
#include "win/units.h"

namespace shell {
namespace {

constexpr int kMargin = 2;  // pixels of a 96-dpi screen

bool NeedsDocument(int index) {
    return index >= 2 && index <= 15;  // Close to Color
}

}  // namespace

Toolbar& Toolbar::open(HWND parent) {
    auto* self = new Toolbar;
    WNDCLASSEXW cls{};
    cls.lpszClassName = L"Picture2";
    cls.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
    // Unclipped, a strip that grows by a row would paint over the pages, and what it painted would be moved
    // down with them.
    self->create(cls, "Toolbar", WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN | WS_CLIPSIBLINGS,
                 WS_EX_CONTROLPARENT, {0, 0, 0, 0}, parent);
    return *self;
}

void Toolbar::makeButtons() {
    Picture1_.create(hwnd(), tbrPicture1, kToolbar);
    setDocumentOpen(false);
}

int Toolbar::layOut() {
    RECT area{};
    ::GetClientRect(::GetParent(hwnd()), &area);
    const int margin = win::Scaled(kMargin);
    const int height = Picture1_.place(margin, margin, area.right - 2 * margin) + 2 * margin;
    ::SetWindowPos(hwnd(), nullptr, 0, 0, area.right, height, SWP_NOZORDER | SWP_NOACTIVATE);
    return height;
}

void Toolbar::setDocumentOpen(bool open) const {
    for (int index = 0; index < static_cast<int>(kToolbar.size()); ++index) {
        if (NeedsDocument(index)) Picture1_.enable(index, open);
    }
}

LRESULT Toolbar::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_CREATE:
            makeButtons();
            return 0;
        case WM_COMMAND:
            // The button shows that it was pressed before a long command runs.
            ::UpdateWindow(Picture1_.hwnd());
            return ::SendMessageW(::GetParent(hwnd()), message, wParam, lParam);
        case WM_SYSCOLORCHANGE:
        case WM_SETTINGCHANGE:
            win::PassToControls(hwnd(), message, wParam, lParam);
            break;
        default:
            break;
    }
    return defaultHandling(message, wParam, lParam);
}

}  // namespace shell
