#include "shell/toolbar.h"

#include "tool_buttons.h"
#include "win/units.h"

namespace shell {
namespace {

constexpr int kMargin = 2;  // pixels of a 96-dpi screen

bool NeedsDocument(int index) {
    return index >= 2 && index <= 15;  // Close to Color
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
    return win::PictureButtons::height() + 2 * win::Scaled(kMargin);
}

void Toolbar::makeButtons() {
    Picture1_.open(hwnd(), win::Scaled(kMargin), win::Scaled(kMargin));
    int index = 0;
    for (const ToolButton& button : kToolbar) {
        Picture1_.add(index, button.tip, button.picture, button.beginsGroup, !NeedsDocument(index));
        ++index;
    }
}

void Toolbar::setDocumentOpen(bool open) const {
    for (int index = 0; index < static_cast<int>(kToolbar.size()); ++index) {
        if (NeedsDocument(index)) ::EnableWindow(button(index), open);
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
        case WM_SETCURSOR:
            // The buttons pass it on, and disabled ones leave the mouse to this window.
            Picture1_.useTips();
            break;
        case WM_DRAWITEM:
            return Picture1_.draw(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
        default:
            break;
    }
    return defaultHandling(message, wParam, lParam);
}

}  // namespace shell
