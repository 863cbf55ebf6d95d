#include "authoring/preview_wait.h"

#include "files/modPubFuncs.h"
#include "win/message_box.h"
#include "win/wide_path.h"

namespace authoring {
namespace {

constexpr char kClass[] = "modPreview";
constexpr UINT_PTR kTimer = 1;
constexpr UINT kLookupPatience = 5 * 500;  // milliseconds
constexpr UINT kLoadPatience = 3000;

}  // namespace

bool ShownFile::remove() {
    if (isCopy_ && modPubFuncs::FileExists(path_)) isCopy_ = !::DeleteFileW(win::WidePath(path_).c_str());
    return !isCopy_;
}

void PreviewWait::begin(HWND owner, PreviewWait* wait, UINT milliseconds) {
    WNDCLASSEXA cls{};
    cls.lpszClassName = kClass;
    wait->create(cls, wait->file_.path(), WS_POPUP, 0, {0, 0, 0, 0}, owner);
    ::SetTimer(wait->hwnd(), kTimer, milliseconds, nullptr);
}

void PreviewWait::forBrowser(HWND owner, ShownFile file) {
    begin(owner, new PreviewWait(std::move(file), false), kLookupPatience);
}

void PreviewWait::forLoading(HWND owner, ShownFile file) {
    begin(owner, new PreviewWait(std::move(file), true), kLoadPatience);
}

void PreviewWait::end(const std::string& path) {
    if (const HWND wait = ::FindWindowA(kClass, path.c_str())) ::SendMessageA(wait, WM_CLOSE, 0, 0);
}

void PreviewWait::elapsed() {
    const bool removed = file_.remove();
    if (found_) {
        // Otherwise the browser is still at it, and the timer comes again.
        if (removed) ::DestroyWindow(hwnd());
        return;
    }
    ::KillTimer(hwnd(), kTimer);
    const HWND owner = ::GetWindow(hwnd(), GW_OWNER);
    win::ShowMessage(owner, "Could not find associated Browser", "Browser Not Found", MB_ICONEXCLAMATION);
    TellNotOpened(owner);
    if (hwnd()) ::DestroyWindow(hwnd());
}

LRESULT PreviewWait::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_TIMER:
            elapsed();
            return 0;
        case WM_ENDSESSION:
            // The process ends without its windows being destroyed.
            if (wParam) file_.remove();
            return 0;
        default:
            return defaultHandling(message, wParam, lParam);
    }
}

void TellNotOpened(HWND owner) {
    win::ShowMessage(owner, "Web Page Could Not Be Opened.", "URL Failed", MB_ICONEXCLAMATION);
}

}  // namespace authoring
