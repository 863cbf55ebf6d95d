#include "ftp/frmToUp.h"

#include "document/system_code_pages.h"
#include "forms/frmToUp.h"
#include "ftp/core/password.h"
#include "ftp/core/server_text.h"
#include "ftp/site_store.h"
#include "win/input_box.h"
#include "win/message_box.h"

frmToUp::Choice frmToUp::ask(MainWindow& main, const std::string& site) {
    frmToUp form(main, site);
    return form.showModal(main.mainHwnd()) == IDOK ? Choice::connect : Choice::none;
}

bool frmToUp::onInit() {
    setItemText(lblSite, site_);
    return true;
}

bool frmToUp::onCommand(WORD id, WORD) {
    if (id == cmdUpload) {
        close(IDOK);
    } else if (id == cmdDelete) {
        cmdDelete_Click();
    } else {
        return false;
    }
    return true;
}

frmToUp::Answer frmToUp::askPassword(const std::string& storedPassword) const {
    if (storedPassword.empty()) return Answer::right;
    std::string typed =
        win::AskText(hwnd(), "Enter Site Password To Delete " + site_, "Quillon", win::Reply::masked);
    if (typed.empty()) return Answer::none;
    const document::CodePages& pages = document::SystemCodePages();
    std::string sent = ftp::SentText(typed, pages);
    std::string stored = ftp::ReadPassword(storedPassword, pages);
    const bool right = sent == stored;
    for (std::string* secret : {&typed, &sent, &stored}) ftp::Wipe(*secret);
    return right ? Answer::right : Answer::wrong;
}

void frmToUp::cmdDelete_Click() {
    std::optional<ftp::Site> site = ftp::FindSite(ftp::ReadSections(), site_);
    const Answer answer = site ? askPassword(site->storedPassword) : Answer::none;
    if (!hwnd()) return;
    if (answer == Answer::wrong) {
        win::ShowMessage(hwnd(), "Check password and try again.", "INCORRECT PASSWORD", MB_ICONEXCLAMATION);
        return;
    }
    if (answer == Answer::right) {
        site = ftp::FindSite(ftp::ReadSections(), site_);
        if (site) ftp::Apply(ftp::RemoveSite(ftp::ReadSections(), site->index));
        ftp::ShowSites(main_);
    }
    close();
}
