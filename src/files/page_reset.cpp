#include "files/page_reset.h"

#include <exception>

#include "document/frmChild.h"
#include "files/mBinOpen.h"
#include "files/modPubFuncs.h"
#include "win/message_box.h"
#include "win/message_loop.h"

namespace files {
namespace {

// False when the file cannot be read.
bool Reset(MainWindow& main, DocumentId id, const std::string& path) {
    const win::WaitCursor wait;
    const auto saved = mBinOpen::ReadFileBinary(path);
    if (!saved) return false;
    // Reading handles messages: the page may have been closed by now, or saved, here or elsewhere.
    frmChild* page = main.find(id);
    if (page && page->txtPad().isChanged() && page->Tag() == path) page->toReset(document::PageOf(*saved));
    return true;
}

}  // namespace

void OnReset(MainWindow& main, int) {
    const frmChild* page = main.activeDocument();
    if (!page) return;
    const std::string path = page->Tag();
    if (!modPubFuncs::FileExists(path)) {
        win::ShowMessage(
            main.mainHwnd(),
            "File was not previously saved, or was moved.\r\n\r\n      Reset is therefore aborted.",
            "Quillon", MB_ICONEXCLAMATION);
        return;
    }
    if (!page->txtPad().isChanged()) {
        win::ShowMessage(main.mainHwnd(),
                         "Page has not been edited since last save...\r\n\r\nNo need to Reset", "Quillon");
        return;
    }
    bool done = false;
    try {
        done = Reset(main, page->id(), path);
    } catch (const std::exception&) {
        // Reported below, like a file that cannot be read.
    }
    if (done || !main.mainHwnd()) return;
    win::ShowMessage(
        main.mainHwnd(),
        "Error reading in file.\r\n\r\n...may have never been save, or been moved since last save.",
        "Quillon");
}

}  // namespace files
