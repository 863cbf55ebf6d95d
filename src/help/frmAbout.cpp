#include "help/frmAbout.h"

#include <cstdlib>
#include <cstring>

#include "forms/frmAbout.h"
#include "help/core/links.h"
#include "win/error.h"
#include "win/shell_open.h"
#include "win/unique.h"
#include "win/units.h"
#include "win/window.h"

namespace {

constexpr int kLinks = 2;
constexpr int kFrame = 1;  // of the focus, in pixels
constexpr UINT kLinkFormat = DT_SINGLELINE | DT_NOPREFIX;

constexpr char kDescription[] =
    "Description: Small in file size yet robust in features, Quillon edits any number of pages at once, "
    "writes "
    "tags, scripts and image sizes for you, shows the web-safe colors, finds and replaces, previews and "
    "prints, "
    "checks spelling, keeps your templates, and uploads pages to your sites by FTP.\r\n"
    "   What I wanted above all was a program without baggage: Quillon is a stand-alone executable, needs no "
    "installation, and is small enough to be carried on a diskette.";

// The version record begins with a header of 6 bytes, "VS_VERSION_INFO" in UTF-16 and padding to 4 bytes.
constexpr std::size_t kFixedInfoOffset = 40;

// Major, minor and revision; the third number of the record is unused.
std::string Version() {
    const HRSRC resource =
        win::Check(::FindResourceA(nullptr, MAKEINTRESOURCEA(VS_VERSION_INFO), MAKEINTRESOURCEA(16)));
    const void* record = win::Check(::LockResource(win::Check(::LoadResource(nullptr, resource))));
    VS_FIXEDFILEINFO info{};
    std::memcpy(&info, static_cast<const char*>(record) + kFixedInfoOffset, sizeof info);
    return std::to_string(HIWORD(info.dwFileVersionMS)) + "." + std::to_string(LOWORD(info.dwFileVersionMS)) +
           "." + std::to_string(LOWORD(info.dwFileVersionLS));
}

int Brightness(COLORREF colour) {
    return (30 * GetRValue(colour) + 59 * GetGValue(colour) + 11 * GetBValue(colour)) / 100;
}

// The system's, unless a scheme has left it too near the colour of the box to be read.
COLORREF LinkColour() {
    const COLORREF link = ::GetSysColor(COLOR_HOTLIGHT);
    const int contrast = std::abs(Brightness(link) - Brightness(::GetSysColor(COLOR_BTNFACE)));
    return contrast >= 80 ? link : ::GetSysColor(COLOR_BTNTEXT);
}

// Letter by letter, for the line below to be as long as the text: Wine draws whole texts narrower than it
// measures them.
void DrawMeasured(HDC dc, RECT area, const std::string& text) {
    for (const char& letter : text) {
        RECT size{};
        ::DrawTextA(dc, &letter, 1, &size, kLinkFormat | DT_CALCRECT);
        ::DrawTextA(dc, &letter, 1, &area, kLinkFormat);
        area.left += size.right;
    }
}

}  // namespace

bool frmAbout::onInit() {
    setItemText(lblDescription, kDescription);
    setItemText(lblVersion, "Version " + Version());
    for (int i = 0; i < kLinks; ++i) fitLink(item(lblLinks + i));
    focusItem(cmdOK);
    return false;
}

bool frmAbout::onCommand(WORD id, WORD notification) {
    // Enter on a link reaches the default button, since buttons that draw themselves cannot be that.
    if (id == cmdOK && isLink(::GetFocus())) id = static_cast<WORD>(::GetDlgCtrlID(::GetFocus()));
    if (id == cmdOK) {
        close(IDOK);
        return true;
    }
    if (id < lblLinks || id >= lblLinks + kLinks) return false;
    if (notification == BN_CLICKED) win::OpenAddress(help::LinkTarget(itemText(id)));
    return true;
}

bool frmAbout::isLink(HWND window) const {
    const int id = ::GetDlgCtrlID(window);
    return ::GetParent(window) == hwnd() && id >= lblLinks && id < lblLinks + kLinks;
}

void frmAbout::fitLink(HWND link) const {
    const HDC dc = ::GetDC(link);
    const HGDIOBJ old = ::SelectObject(dc, reinterpret_cast<HFONT>(::SendMessageA(link, WM_GETFONT, 0, 0)));
    RECT area{};
    ::DrawTextA(dc, win::WindowText(link).c_str(), -1, &area, kLinkFormat | DT_CALCRECT);
    ::SelectObject(dc, old);
    ::ReleaseDC(link, dc);
    ::SetWindowPos(link, nullptr, 0, 0, area.right + kFrame, area.bottom + 2 * kFrame,
                   SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void frmAbout::drawLink(const DRAWITEMSTRUCT& link) {
    ::FillRect(link.hDC, &link.rcItem, ::GetSysColorBrush(COLOR_BTNFACE));
    RECT area = link.rcItem;
    // The letters begin where those of the labels do.
    area.right -= kFrame;
    ::InflateRect(&area, 0, -kFrame);
    ::SetBkMode(link.hDC, TRANSPARENT);
    ::SetTextColor(link.hDC, LinkColour());
    DrawMeasured(link.hDC, area, win::WindowText(link.hwndItem));
    area.top = area.bottom - win::Scaled(1);
    const win::UniqueBrush line(::CreateSolidBrush(LinkColour()));
    ::FillRect(link.hDC, &area, line.get());
    if ((link.itemState & ODS_FOCUS) != 0 && (link.itemState & ODS_NOFOCUSRECT) == 0) {
        ::DrawFocusRect(link.hDC, &link.rcItem);
    }
}

INT_PTR frmAbout::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_DRAWITEM) {
        drawLink(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
        return TRUE;
    }
    if (message == WM_SETCURSOR && isLink(reinterpret_cast<HWND>(wParam))) {
        ::SetCursor(::LoadCursorA(nullptr, IDC_HAND));
        ::SetWindowLongPtrA(hwnd(), DWLP_MSGRESULT, TRUE);
        return TRUE;
    }
    return FALSE;
}

namespace help {

void OnHelpAbout(MainWindow& main, int) {
    frmAbout about;
    about.showModal(main.mainHwnd());
}

}  // namespace help
