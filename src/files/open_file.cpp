#include "files/open_file.h"

#include "document/frmChild.h"
#include "files/mBinOpen.h"
#include "files/modPubFuncs.h"
#include "win/message_loop.h"

namespace files {

frmChild* OpenFile(MainWindow& main, const std::string& path) {
    const win::WaitCursor wait;
    const auto bytes = mBinOpen::ReadFileBinary(path);
    // Reading handles messages: the program may be closing, or the file may be open by now.
    if (!bytes || !main.mainHwnd() || modPubFuncs::IsFileOpen(main, path)) return nullptr;
    const std::string name(modPubFuncs::FileNameFromPath(path));
    try {
        frmChild& page = frmChild::open(main, name, document::PageOf(*bytes));
        page.setTag(path);
        return &page;
    } catch (const document::PageTooLarge&) {
        throw document::PageTooLarge(
            name + " (" + std::to_string(bytes->size()) +
            " bytes) is too large to be opened: there is not enough memory for it.\r\n"
            "Close other pages and try again, or open it in parts.");
    }
}

}  // namespace files
