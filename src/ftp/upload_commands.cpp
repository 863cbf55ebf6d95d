#include "ftp/upload_commands.h"

#include "ftp/frmCrypt.h"
#include "ftp/frmToUp.h"
#include "ftp/frmUpload.h"
#include "ftp/site_store.h"

namespace ftp {

void OnUploadFile(MainWindow& main, int) {
    frmUpload::open(main, LastUsedIndex(ReadSections()).value_or(0), MakeOrdinarySession);
}

void OnUploadSites(MainWindow& main, int index) {
    const std::string site = main.menu().caption(static_cast<Command>(mnuUploadSites + index));
    if (frmToUp::ask(main, site) != frmToUp::Choice::connect || !main.mainHwnd()) return;
    // Another site may stand at that index by now.
    const std::optional<Site> chosen = FindSite(ReadSections(), site);
    frmUpload::open(main, chosen ? chosen->index : kNoSite, MakeOrdinarySession);
}

void OnUploadSite(MainWindow& main, int) {
    frmCrypt::open(main);
}

}  // namespace ftp
