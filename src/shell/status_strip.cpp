#include "shell/status_strip.h"

#include <algorithm>

#include "win/error.h"
#include "win/units.h"

namespace shell {
namespace {

constexpr int kHeight = 22;  // all measures in pixels of a 96-dpi screen
constexpr int kMargin = 3;
constexpr int kLineNoWidth = 180;

}  // namespace

StatusStrip& StatusStrip::open(HWND parent) {
    auto* self = new StatusStrip;
    WNDCLASSEXA cls{};
    cls.lpszClassName = "Picture3";
    cls.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
    self->create(cls, "Status", WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN, 0, {0, 0, 0, 0}, parent);
    return *self;
}

int StatusStrip::height() {
    return win::Scaled(kHeight);
}

HWND StatusStrip::makeLabel(const char* text, DWORD style) const {
    // Names of files are shown as they are, so "&" has no meaning of its own.
    const HWND label =
        win::Check(::CreateWindowExA(0, "STATIC", text, WS_CHILD | WS_VISIBLE | SS_NOPREFIX | style, 0, 0, 0,
                                     0, hwnd(), nullptr, ::GetModuleHandleA(nullptr), nullptr));
    ::SendMessageA(label, WM_SETFONT, reinterpret_cast<WPARAM>(font_.get()), FALSE);
    return label;
}

void StatusStrip::layOut() const {
    RECT area{};
    ::GetClientRect(hwnd(), &area);
    const int margin = win::Scaled(kMargin);
    const int lineNo = std::min<int>(win::Scaled(kLineNoWidth), area.right / 2);
    const int height = area.bottom - 2 * margin;
    ::MoveWindow(lblResults_, 2 * margin, margin, std::max<int>(0, area.right - lineNo - 4 * margin), height,
                 TRUE);
    ::MoveWindow(lblLineNo_, area.right - lineNo - margin, margin, lineNo, height, TRUE);
}

LRESULT StatusStrip::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_CREATE: {
            NONCLIENTMETRICSA metrics{};
            metrics.cbSize = sizeof metrics;
            ::SystemParametersInfoA(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
            font_.reset(::CreateFontIndirectA(&metrics.lfMessageFont));
            lblResults_ = makeLabel("File updates are shown here.", SS_ENDELLIPSIS);
            lblLineNo_ = makeLabel("Line numbers appear here.", SS_RIGHT);
            return 0;
        }
        case WM_SIZE:
            layOut();
            return 0;
        default:
            return defaultHandling(message, wParam, lParam);
    }
}

}  // namespace shell
