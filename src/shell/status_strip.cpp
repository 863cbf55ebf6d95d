#include "shell/status_strip.h"

#include <algorithm>

#include "win/error.h"
#include "win/unicode.h"
#include "win/units.h"

namespace shell {
namespace {

constexpr int kHeight = 22;  // at least; all measures in pixels of a 96-dpi screen
constexpr int kMargin = 3;
constexpr int kLineNoWidth = 180;

}  // namespace

StatusStrip& StatusStrip::open(HWND parent) {
    auto* self = new StatusStrip;
    WNDCLASSEXW cls{};
    cls.lpszClassName = L"Picture3";
    cls.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
    self->create(cls, "Status", WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN, 0, {0, 0, 0, 0}, parent);
    return *self;
}

int StatusStrip::height() const {
    return std::max(win::Scaled(kHeight), lineHeight_ + 2 * win::Scaled(kMargin));
}

void StatusStrip::setResults(const std::string& text) const {
    ::SetWindowTextW(lblResults_, win::ToWide(text).c_str());
}

void StatusStrip::setLineNo(const std::string& text) const {
    ::SetWindowTextW(lblLineNo_, win::ToWide(text).c_str());
}

// Uses the system's font for messages.
void StatusStrip::useFont() {
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    ::SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    win::UniqueFont font(::CreateFontIndirectW(&metrics.lfMessageFont));
    for (const HWND label : {lblResults_, lblLineNo_})
        ::SendMessageW(label, WM_SETFONT, reinterpret_cast<WPARAM>(font.get()), TRUE);
    font_ = std::move(font);
    const HDC dc = ::GetDC(hwnd());
    const HGDIOBJ old = ::SelectObject(dc, font_.get());
    TEXTMETRICW measures{};
    ::GetTextMetricsW(dc, &measures);
    lineHeight_ = measures.tmHeight;
    ::SelectObject(dc, old);
    ::ReleaseDC(hwnd(), dc);
}

HWND StatusStrip::makeLabel(const wchar_t* text, DWORD style) const {
    // Names of files are shown as they are, so "&" has no meaning of its own.
    return win::Check(::CreateWindowExW(0, L"STATIC", text, WS_CHILD | WS_VISIBLE | SS_NOPREFIX | style, 0, 0,
                                        0, 0, hwnd(), nullptr, ::GetModuleHandleW(nullptr), nullptr));
}

void StatusStrip::layOut() const {
    RECT area{};
    ::GetClientRect(hwnd(), &area);
    const int margin = win::Scaled(kMargin);
    const int lineNo = std::min<int>(win::Scaled(kLineNoWidth), area.right / 2);
    const int height = area.bottom - 2 * margin;
    ::MoveWindow(lblResults_, 2 * margin, margin, std::max<int>(0, area.right - lineNo - 4 * margin), height,
                 FALSE);
    ::MoveWindow(lblLineNo_, area.right - lineNo - margin, margin, lineNo, height, FALSE);
    // A label that grows would keep what it showed when it was too short.
    ::RedrawWindow(hwnd(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

LRESULT StatusStrip::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_CREATE:
            lblResults_ = makeLabel(L"File updates are shown here.", SS_ENDELLIPSIS);
            lblLineNo_ = makeLabel(L"Line numbers appear here.", SS_RIGHT);
            useFont();
            return 0;
        case WM_SETTINGCHANGE:
            useFont();
            break;
        case WM_SIZE:
            layOut();
            return 0;
        default:
            break;
    }
    return defaultHandling(message, wParam, lParam);
}

}  // namespace shell
