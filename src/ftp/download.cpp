#include "ftp/download.h"

#include <array>

#include "win/wide_path.h"

namespace ftp {
namespace {

// Empty when the folder takes no new file.
std::string NewFileBeside(const std::string& path) {
    const std::string full = win::FullPath(path);
    std::array<char, MAX_PATH> name{};
    const std::string folder = full.substr(0, full.rfind('\\') + 1);
    return ::GetTempFileNameA(folder.c_str(), "qui", 0, name.data()) ? name.data() : std::string();
}

}  // namespace

bool Download(FtpSession& session, const std::string& remote, const std::string& path, TransferType type) {
    const std::string arriving = NewFileBeside(path);
    if (arriving.empty()) return false;
    const std::wstring from = win::WidePath(arriving);
    const bool done = session.tell(RemoteCommand::get, remote, arriving, type) &&
                      ::MoveFileExW(from.c_str(), win::WidePath(path).c_str(),
                                    MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH);
    if (!done) ::DeleteFileW(from.c_str());
    return done;
}

}  // namespace ftp
