#include "help/frmAbout.h"

#include <string>
#include <vector>

#include "forms/frmAbout.h"
#include "win/core/ascii.h"
#include "win/error.h"
#include "win/shell_open.h"
#include "win/system_colours.h"
#include "win/system_dll.h"
#include "win/unicode.h"
#include "win/window.h"

namespace {

constexpr int kLinks = 2;

// Not an import: one of that name beside the program would be loaded with it.
constexpr win::DelayLoaded<decltype(&::VerQueryValueW)> kVerQueryValue{"version.dll", "VerQueryValueW"};

constexpr char kDescription[] =
    "Description: Small in file size yet robust in features, Quillon edits any number of pages at once, "
    "writes tags, scripts and image sizes for you, shows the web-safe colors, finds and replaces, previews "
    "and prints, checks spelling, keeps your templates, and uploads pages to your sites by FTP.\r\n"
    "   What I wanted above all was a program without baggage: Quillon is a stand-alone executable, needs no "
    "installation, and is small enough to be carried on a diskette.";

// Major, minor and revision; the third number of the record is unused.
std::string Version() {
    const HRSRC resource =
        win::Check(::FindResourceW(nullptr, MAKEINTRESOURCEW(VS_VERSION_INFO), MAKEINTRESOURCEW(16)));
    const auto* first =
        static_cast<const BYTE*>(win::Check(::LockResource(win::Check(::LoadResource(nullptr, resource)))));
    // A copy: the system may write into what it reads.
    std::vector<BYTE> record(first, first + ::SizeofResource(nullptr, resource));
    void* fixed = nullptr;
    UINT size = 0;
    win::Check(kVerQueryValue(static_cast<const void*>(record.data()), L"\\", &fixed, &size));
    const auto& info = *static_cast<const VS_FIXEDFILEINFO*>(fixed);
    return std::to_string(HIWORD(info.dwFileVersionMS)) + "." + std::to_string(LOWORD(info.dwFileVersionMS)) +
           "." + std::to_string(LOWORD(info.dwFileVersionLS));
}

// Asked for its text, by a screen reader or this program, a SysLink would answer with its mark-up.
LRESULT CALLBACK TellCaption(HWND link, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR) {
    if (message == WM_GETTEXT || message == WM_GETTEXTLENGTH)
        return ::DefWindowProcW(link, message, wParam, lParam);
    return ::DefSubclassProc(link, message, wParam, lParam);
}

// Makes all of its text a link, and keeps the plain text as the window's.
void MakeLink(HWND link) {
    const std::wstring caption = win::ToWide(win::WindowText(link));
    ::SendMessageW(link, WM_SETTEXT, 0, reinterpret_cast<LPARAM>((L"<a>" + caption + L"</a>").c_str()));
    ::SetWindowSubclass(link, TellCaption, 0, 0);
    ::DefWindowProcW(link, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(caption.c_str()));
}

// What a link with this caption opens: a mail to the address that an "@" makes of it, or the page itself.
std::string LinkTarget(const std::string& caption) {
    const bool isAddress = caption.find('@') != std::string::npos;
    return isAddress ? "mailto:" + std::string(win::Trimmed(caption)) : caption;
}

}  // namespace

bool frmAbout::onInit() {
    setItemText(lblDescription, kDescription);
    setItemText(lblVersion, "Version " + Version());
    for (int i = 0; i < kLinks; ++i) MakeLink(item(lblLinks + i));
    focusItem(cmdOK);
    return false;
}

bool frmAbout::onCommand(WORD id, WORD) {
    if (id != cmdOK) return false;
    close(IDOK);
    return true;
}

INT_PTR frmAbout::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NOTIFY) {
        const auto& notification = *reinterpret_cast<const NMHDR*>(lParam);
        if (notification.code != NM_CLICK && notification.code != NM_RETURN) return FALSE;
        win::OpenAddress(LinkTarget(itemText(static_cast<int>(notification.idFrom))));
        return TRUE;
    }
    if (message == WM_SYSCOLORCHANGE || message == WM_SETTINGCHANGE)
        win::PassToControls(hwnd(), message, wParam, lParam);
    return FALSE;
}

namespace help {

void OnHelpAbout(MainWindow& main, int) {
    frmAbout about;
    about.showModal(main.mainHwnd());
}

}  // namespace help
