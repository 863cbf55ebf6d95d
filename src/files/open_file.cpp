#include "files/open_file.h"

#include "document/frmChild.h"
#include "files/mBinOpen.h"
#include "files/modPubFuncs.h"
#include "win/message_loop.h"

namespace files {

frmChild* OpenFile(MainWindow& main, const std::string& path) {
    const win::WaitCursor wait;
    const auto bytes = mBinOpen::ReadFileBinary(path);
    // Reading lets messages through: the program may be closing, or the file may be open by now.
    if (!bytes || !main.mainHwnd() || modPubFuncs::IsFileOpen(main, path)) return nullptr;
    frmChild& page = frmChild::open(main, std::string(modPubFuncs::FileNameFromPath(path)), *bytes);
    page.setTag(path);
    return &page;
}

}  // namespace files
