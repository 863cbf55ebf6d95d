#include "authoring/find/page_dialog.h"

#include "document/frmChild.h"
#include "win/message_box.h"
#include "win/modWndPos.h"

namespace authoring {
namespace {

constexpr UINT_PTR kWatch = 1;
constexpr UINT kWatchInterval = 200;  // milliseconds

constexpr int kInward = 4600;  // twips from the main window's right edge to the dialog's left one

}  // namespace

PageDialog::PageDialog(const char* templateName, MainWindow& main, int down)
    : Dialog(templateName), main_(main), pageId_(main.activeDocument()->id()), down_(down) {}

bool PageDialog::onInit() {
    const RECT beside = modWndPos::RectInTwips(main_.mainHwnd());
    modWndPos::MoveTo(hwnd(), beside.right - kInward, beside.top + down_);
    modWndPos::MakeTopmost(hwnd());
    ::SetTimer(hwnd(), kWatch, kWatchInterval, nullptr);
    return true;
}

INT_PTR PageDialog::onMessage(UINT message, WPARAM wParam, LPARAM) {
    if (message != WM_TIMER || wParam != kWatch) return FALSE;
    if (!::IsWindow(originalKid())) close();
    return TRUE;
}

void PageDialog::onClosing() {
    ::KillTimer(hwnd(), kWatch);
    modWndPos::DropTopmost(hwnd());
    if (const frmChild* active = main_.activeDocument()) active->focusPage();
}

frmChild* PageDialog::page() const {
    return hwnd() ? main_.find(pageId_) : nullptr;
}

void PageDialog::bringPageToTop() const {
    const HWND kid = originalKid();
    if (::IsIconic(kid)) ::SendMessageW(main_.mdiClient(), WM_MDIRESTORE, reinterpret_cast<WPARAM>(kid), 0);
    ::SendMessageW(main_.mdiClient(), WM_MDIACTIVATE, reinterpret_cast<WPARAM>(kid), 0);
}

int PageDialog::ask(const std::string& text, const char* title, UINT style) const {
    return win::ShowMessage(hwnd(), text, title, style | MB_SETFOREGROUND);
}

void UnloadPageDialogs(const MainWindow& main) {
    for (const char* name : {"frmFind", "frmReplace"}) {
        if (win::Dialog* dialog = win::Dialog::find(main.mainHwnd(), name)) dialog->close();
    }
}

}  // namespace authoring
