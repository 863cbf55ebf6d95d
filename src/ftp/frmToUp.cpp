#include "ftp/frmToUp.h"

#include "forms/frmToUp.h"
#include "ftp/core/scramble.h"
#include "ftp/site_store.h"
#include "win/input_box.h"
#include "win/message_box.h"

frmToUp::Choice frmToUp::ask(MainWindow& main, const std::string& site, int index) {
    frmToUp form(main, site, index);
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
    const bool right = ftp::ScramblePassword(typed) == storedPassword;
    ftp::Wipe(typed);
    return right ? Answer::right : Answer::wrong;
}

void frmToUp::cmdDelete_Click() {
    const std::optional<ftp::Site> site = ftp::FindSite(ftp::ReadSections(), index_);
    const Answer answer = site && site->url == site_ ? askPassword(site->storedPassword) : Answer::none;
    if (!hwnd()) return;
    if (answer == Answer::wrong) {
        win::ShowMessage(hwnd(), "Check password and try again.", "INCORRECT PASSWORD", MB_ICONEXCLAMATION);
        return;
    }
    if (answer == Answer::right) {
        ftp::Apply(ftp::RemoveSite(ftp::ReadSections(), index_));
        ftp::ShowSites(main_);
    }
    close();
}
