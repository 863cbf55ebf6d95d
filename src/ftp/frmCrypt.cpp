#include "ftp/frmCrypt.h"

#include "document/system_code_pages.h"
#include "forms/frmCrypt.h"
#include "ftp/core/password.h"
#include "ftp/core/server_text.h"
#include "ftp/site_store.h"
#include "win/message_box.h"
#include "win/modWndPos.h"

namespace {

constexpr UINT kCheckUrl = WM_APP;
constexpr int kFromMainLeft = 600;  // twips
constexpr int kFromMainTop = 900;

}  // namespace

void frmCrypt::open(MainWindow& main) {
    if (!bringForward(main.mainHwnd(), "frmCrypt")) (new frmCrypt(main))->showModeless(main.mainHwnd());
}

bool frmCrypt::onInit() {
    modWndPos::MakeTopmost(hwnd());
    const RECT main = modWndPos::RectInTwips(main_.mainHwnd());
    modWndPos::MoveTo(hwnd(), main.left + kFromMainLeft, main.top + kFromMainTop);
    return true;
}

bool frmCrypt::onCommand(WORD id, WORD notification) {
    if (id == cmdSetVal && notification == BN_CLICKED) {
        cmdSetVal_Click();
        return true;
    }
    // Where the focus went is known only once it has arrived.
    if (id == txtURL && notification == EN_KILLFOCUS) ::PostMessageW(hwnd(), kCheckUrl, 0, 0);
    return false;
}

INT_PTR frmCrypt::onMessage(UINT message, WPARAM, LPARAM) {
    if (message != kCheckUrl) return FALSE;
    checkUrl();
    return TRUE;
}

void frmCrypt::onClosing() {
    modWndPos::DropTopmost(hwnd());
    ::SetFocus(main_.mainHwnd());
}

void frmCrypt::remind(const char* text) const {
    win::ShowMessage(hwnd(), text, "REMINDER");
}

bool frmCrypt::checkFields(bool savePassword, bool hasPassword) {
    if (itemText(txtURL).empty()) {
        remind("You need to enter an FTP URL.");
        focusItem(txtURL);
    } else if (itemText(txtName).empty()) {
        remind("You need to enter a USER NAME.");
        focusItem(txtName);
    } else if (savePassword && !hasPassword) {
        remind("You need to enter a PASSWORD to save it.");
        focusItem(txtPassWord);
    } else {
        return true;
    }
    return false;
}

void frmCrypt::cmdSetVal_Click() {
    const bool savePassword = isChecked(chkPass);
    std::string password = itemText(txtPassWord);
    if (checkFields(savePassword, !password.empty())) SaveSiteEntry(savePassword, password);
    ftp::Wipe(password);
}

void frmCrypt::SaveSiteEntry(bool savePassword, const std::string& password) {
    ftp::Site site;
    site.url = itemText(txtURL);
    site.name = itemText(txtName);
    if (savePassword) {
        const document::CodePages& pages = document::SystemCodePages();
        std::string sent = ftp::SentText(password, pages);
        site.storedPassword = ftp::StoredPassword(sent, pages);
        ftp::Wipe(sent);
    }
    const ftp::SiteAddition addition = ftp::AddSite(ftp::ReadSections(), site);
    ftp::Apply(addition.changes);
    if (!addition.added) {
        win::ShowMessage(hwnd(), "There is already an entry for " + site.url + ".", "REDUNDANT LOCATION",
                         MB_ICONEXCLAMATION);
        return;
    }
    ftp::LoadSiteMenu(main_);
    close();
}

// Only when the focus has left the dialog: moving to another of its fields never complains.
void frmCrypt::checkUrl() {
    const HWND focus = ::GetFocus();
    const bool inDialog = focus && (focus == hwnd() || ::IsChild(hwnd(), focus));
    // A message box of the dialog's own takes the focus too.
    if (inDialog || !::IsWindowEnabled(hwnd())) return;
    const std::string entered = itemText(txtURL);
    const std::string url(ftp::StripScheme(entered));
    if (url != entered) setItemText(txtURL, url);
    if (ftp::LooksLikeUrl(url)) return;
    win::ShowMessage(hwnd(), "You must enter a valid FTP URL, for example: \r\nftp.example.com",
                     "FTP URL NEEDED", MB_ICONINFORMATION);
    if (!hwnd()) return;
    setItemText(txtURL, "");
    focusItem(txtURL);
}
