#include "authoring/colours/swatch.h"

#include "authoring/colours/core/web_colors.h"
#include "win/error.h"
#include "win/unicode.h"
#include "win/units.h"
#include "win/window.h"

namespace authoring {
namespace {

COLORREF ColorRef(int index) {
    const SwatchColor color = ColorOfSwatch(index);
    return RGB(color.red, color.green, color.blue);
}

// Rough brightness is enough to tell whether black or white stands out.
bool IsLight(int index) {
    const SwatchColor color = ColorOfSwatch(index);
    return color.red * 3 + color.green * 6 + color.blue > 5 * 255;
}

// Within the chart, in pixels.
RECT Place(int index) {
    const SwatchPlace place = PlaceOfSwatch(index);
    const int left = win::PixelsFromTwips(place.left);
    const int top = win::PixelsFromTwips(place.top);
    const int size = win::PixelsFromTwips(place.size);
    return {left, top, left + size, top + size};
}

}  // namespace

bool Swatch::isSwatch(int id) {
    return id >= kFirstId && id < kFirstId + kSwatchCount;
}

void Swatch::create(HWND parent, int index) {
    index_ = index;
    const RECT place = Place(index);
    attach(win::Check(::CreateWindowExW(
        WS_EX_NOPARENTNOTIFY, L"EDIT", win::ToWide(TextOfSwatch(index)).c_str(),
        WS_CHILD | WS_VISIBLE | WS_TABSTOP | ES_READONLY, place.left, place.top, place.right - place.left,
        place.bottom - place.top, parent, reinterpret_cast<HMENU>(static_cast<INT_PTR>(kFirstId + index)),
        ::GetModuleHandleW(nullptr), nullptr)));
}

void Swatch::click() const {
    // Posted, because the answer is the end of this window.
    ::PostMessageW(::GetParent(hwnd()), WM_COMMAND, MAKEWPARAM(kFirstId + index_, BN_CLICKED),
                   reinterpret_cast<LPARAM>(hwnd()));
}

void Swatch::release(LPARAM at) const {
    if (::GetCapture() != hwnd()) return;
    ::ReleaseCapture();
    RECT area{};
    ::GetClientRect(hwnd(), &area);
    if (::PtInRect(&area, win::PointOf(at))) click();
}

void Swatch::moveFocus(int columns, int rows) const {
    const int column = index_ % kSwatchColumns + columns;
    const int row = index_ / kSwatchColumns + rows;
    if (column < 0 || column >= kSwatchColumns || row < 0 || row >= kSwatchRows) return;
    ::SetFocus(::GetDlgItem(::GetParent(hwnd()), kFirstId + row * kSwatchColumns + column));
}

bool Swatch::handleKey(WPARAM key) const {
    switch (key) {
        case VK_LEFT:
            moveFocus(-1, 0);
            return true;
        case VK_RIGHT:
            moveFocus(1, 0);
            return true;
        case VK_UP:
            moveFocus(0, -1);
            return true;
        case VK_DOWN:
            moveFocus(0, 1);
            return true;
        case VK_RETURN:
        case VK_SPACE:
            click();
            return true;
        case VK_ESCAPE:
            ::PostMessageW(::GetParent(hwnd()), WM_COMMAND, IDCANCEL, 0);
            return true;
        default:
            return false;
    }
}

// Painted without the control, which would take several times as long, for text that nobody is to see.
void Swatch::paint() const {
    PAINTSTRUCT paint{};
    RECT area{};
    ::GetClientRect(hwnd(), &area);
    draw(::BeginPaint(hwnd(), &paint), area);
    ::EndPaint(hwnd(), &paint);
}

void Swatch::drawInParent(HDC dc) const {
    draw(dc, Place(index_));
}

void Swatch::draw(HDC dc, RECT area) const {
    ::FrameRect(dc, &area, ::GetSysColorBrush(COLOR_BTNSHADOW));
    ::InflateRect(&area, -1, -1);
    ::SetDCBrushColor(dc, ColorRef(index_));
    ::FillRect(dc, &area, static_cast<HBRUSH>(::GetStockObject(DC_BRUSH)));
    if (::GetFocus() == hwnd()) {
        const auto brush = static_cast<HBRUSH>(::GetStockObject(IsLight(index_) ? BLACK_BRUSH : WHITE_BRUSH));
        for (int i = win::Scaled(2); i > 0; --i) {
            ::InflateRect(&area, -1, -1);
            ::FrameRect(dc, &area, brush);
        }
    }
}

LRESULT Swatch::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_GETDLGCODE:
            return DLGC_WANTARROWS;
        case WM_SETCURSOR:
            ::SetCursor(::LoadCursorW(nullptr, IDC_HAND));
            return TRUE;
        case WM_MOUSEMOVE:
            ::SendMessageW(::GetParent(hwnd()), WM_COMMAND, MAKEWPARAM(kFirstId + index_, kHovered), 0);
            return 0;
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
            ::SetFocus(hwnd());
            ::SetCapture(hwnd());
            return 0;
        case WM_LBUTTONUP:
            release(lParam);
            return 0;
        case WM_RBUTTONDOWN:
        case WM_CONTEXTMENU:
            return 0;
        case WM_KEYDOWN:
            if (handleKey(wParam)) return 0;
            break;
        case WM_SETFOCUS:
        case WM_KILLFOCUS: {
            const LRESULT result = Control::onMessage(message, wParam, lParam);
            ::HideCaret(hwnd());
            ::InvalidateRect(hwnd(), nullptr, FALSE);
            return result;
        }
        case WM_NCPAINT:  // there is no frame
            return 0;
        case WM_ERASEBKGND:
            return TRUE;
        case WM_PAINT:
            paint();
            return 0;
        default:
            break;
    }
    return Control::onMessage(message, wParam, lParam);
}

}  // namespace authoring
