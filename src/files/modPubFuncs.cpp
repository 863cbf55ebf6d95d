#include "files/modPubFuncs.h"

#include <algorithm>

#include "document/frmChild.h"
#include "win/wide_path.h"

namespace modPubFuncs {

bool FileExists(const std::string& path) {
    const DWORD attributes = ::GetFileAttributesW(win::WidePath(path).c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

bool SamePath(const std::string& a, const std::string& b) {
    return ::lstrcmpiA(a.c_str(), b.c_str()) == 0;
}

bool IsFileOpen(MainWindow& main, const std::string& path) {
    const auto& documents = main.documents();
    return std::any_of(documents.begin(), documents.end(),
                       [&path](const frmChild* document) { return SamePath(document->Tag(), path); });
}

}  // namespace modPubFuncs
