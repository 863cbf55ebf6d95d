#include "authoring/colours/frmColors.h"

#include <utility>

#include "document/frmChild.h"
#include "forms/frmColors.h"
#include "win/clipboard.h"
#include "win/error.h"
#include "win/message_box.h"
#include "win/message_loop.h"
#include "win/modWndPos.h"
#include "win/unicode.h"
#include "win/units.h"

namespace {

using authoring::kSwatchCount;
using authoring::PlaceOfSwatch;
using authoring::Swatch;

constexpr int kMargin = 120;  // twips: from the edges of the screen
constexpr int kLabelHeight = 300;
constexpr int kPadding = 45;

void MoveToCorner(HWND chart) {
    RECT rect{};
    ::GetWindowRect(chart, &rect);
    const int width = win::TwipsFromPixels(rect.right - rect.left);
    const int screen = win::TwipsFromPixels(::GetSystemMetrics(SM_CXSCREEN));
    modWndPos::MoveTo(chart, screen - (width + kMargin), kMargin);
}

}  // namespace

void frmColors::open(MainWindow& main) {
    if (const Dialog* chart = bringForward(main.mainHwnd(), kTemplate)) {
        MoveToCorner(chart->hwnd());
    } else {
        (new frmColors(main))->showModeless(main.mainHwnd());
    }
}

bool frmColors::onInit() {
    showProgramIcon();
    for (int i = 0; i < kSwatchCount; ++i) Text1_[static_cast<std::size_t>(i)].create(hwnd(), i);
    layOut();
    modWndPos::MakeTopmost(hwnd());
    MoveToCorner(hwnd());
    ::SetFocus(Text1_.front().hwnd());
    return false;
}

void frmColors::layOut() const {
    const authoring::SwatchPlace last = PlaceOfSwatch(kSwatchCount - 1);
    const int width = win::PixelsFromTwips(last.left + last.size);
    const int labelTop = win::PixelsFromTwips(last.top + last.size + kPadding);
    const int padding = win::PixelsFromTwips(kPadding);
    const int labelHeight = win::PixelsFromTwips(kLabelHeight);
    ::MoveWindow(item(lblColor), padding, labelTop, width - 2 * padding, labelHeight, FALSE);
    RECT area{0, 0, width, labelTop + labelHeight};
    ::AdjustWindowRectEx(&area, static_cast<DWORD>(::GetWindowLongW(hwnd(), GWL_STYLE)), FALSE,
                         static_cast<DWORD>(::GetWindowLongW(hwnd(), GWL_EXSTYLE)));
    ::SetWindowPos(hwnd(), nullptr, 0, 0, area.right - area.left, area.bottom - area.top,
                   SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

// Paints all boxes at once: a message and a device context for each would take most of the time in which the
// chart opens.
void frmColors::paint() const {
    PAINTSTRUCT paint{};
    ::BeginPaint(hwnd(), &paint);
    ::EndPaint(hwnd(), &paint);
    ::UpdateWindow(item(lblColor));
    const HDC dc = ::GetDC(hwnd());
    for (const Swatch& box : Text1_) box.drawInParent(dc);
    ::ReleaseDC(hwnd(), dc);
    ::RedrawWindow(hwnd(), nullptr, nullptr, RDW_VALIDATE | RDW_ALLCHILDREN);
}

void frmColors::insert(int index) const {
    win::SetClipboardText(main_.mainHwnd(), win::Utf16FromUtf8(authoring::TextOfSwatch(index)));
    frmChild* page = main_.activeDocument();
    if (!page) return;
    page->insert(win::ClipboardText(main_.mainHwnd()));
    page->focusPage();
}

void frmColors::pick(int index) {
    // The second click of a double-click arrives while the chart is closing.
    if (std::exchange(closing_, true)) return;
    try {
        insert(index);
    } catch (const win::Error& error) {
        win::ShowMessage(hwnd(), error.what(), "Quillon", MB_ICONEXCLAMATION);
    }
    leave();
}

void frmColors::unload() {
    if (!std::exchange(closing_, true)) leave();
}

void frmColors::leave() {
    win::RunPending();
    if (!hwnd()) return;
    modWndPos::DropTopmost(hwnd());
    close();
    if (const frmChild* page = main_.activeDocument()) page->focusPage();
}

bool frmColors::onCommand(WORD id, WORD notification) {
    if (id == IDCANCEL) {
        unload();
        return true;
    }
    const int control = id == IDOK ? ::GetDlgCtrlID(::GetFocus()) : id;
    if (!Swatch::isSwatch(control)) return false;
    if (notification == BN_CLICKED) pick(control - Swatch::kFirstId);
    // The label has no quotes, so that only the box has the text that is inserted.
    if (notification == EN_SETFOCUS || notification == Swatch::kHovered) {
        setItemText(lblColor, authoring::TextOfSwatch(control - Swatch::kFirstId).substr(1, 7));
    }
    return true;
}

INT_PTR frmColors::onMessage(UINT message, WPARAM wParam, LPARAM) {
    if (message == WM_KEYDOWN && wParam == VK_ESCAPE) unload();
    if (message != WM_PAINT) return FALSE;
    paint();
    return TRUE;
}

namespace authoring {

void OnColor(MainWindow& main, int) {
    frmColors::open(main);
}

}  // namespace authoring
