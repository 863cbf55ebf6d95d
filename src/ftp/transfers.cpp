#include "ftp/transfers.h"

#include <array>
#include <optional>

#include "document/system_code_pages.h"
#include "files/core/path.h"
#include "ftp/core/server_text.h"
#include "win/unicode.h"
#include "win/wide_path.h"

namespace ftp {
namespace {

constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

// Empty when the folder takes no new file.
std::string NewFileBeside(const std::string& path) {
    const std::string full = win::FullPath(path);
    std::array<wchar_t, MAX_PATH> name{};
    const std::string folder = full.substr(0, full.rfind('\\') + 1);
    return ::GetTempFileNameW(win::ToWide(folder).c_str(), L"qui", 0, name.data()) ? win::ToUtf8(name.data())
                                                                                   : std::string();
}

bool Receive(FtpSession& session, const std::string& remote, const std::wstring& path, TransferType type) {
    const win::UniqueFile file(::CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                             FILE_ATTRIBUTE_NORMAL, nullptr));
    return file && session.get(remote, file.get(), type);
}

}  // namespace

LocalFile::LocalFile(const std::string& path)
    : name(modPubFuncs::FileNameFromPath(path)),
      file(::CreateFileW(win::WidePath(path).c_str(), GENERIC_READ, kShareAll, nullptr, OPEN_EXISTING,
                         FILE_FLAG_SEQUENTIAL_SCAN, nullptr)) {}

std::vector<LocalFile> OpenFiles(const std::vector<std::string>& paths) {
    return std::vector<LocalFile>(paths.begin(), paths.end());
}

Unsent Send(FtpSession& session, const std::vector<LocalFile>& files, const std::string& directory) {
    Unsent unsent;
    for (const LocalFile& local : files) {
        const std::optional<std::string> name = SentName(local.name, document::SystemCodePages());
        if (!name) {
            unsent.unnameable.push_back(local.name);
            continue;
        }
        const bool arrived = local.file && !session.isLost() &&
                             session.put(local.file.get(), JoinRemote(directory, *name), local.type);
        if (!arrived) unsent.failed.push_back(local.name);
    }
    return unsent;
}

bool Download(FtpSession& session, const std::string& remote, const std::string& path, TransferType type) {
    const std::string arriving = NewFileBeside(path);
    if (arriving.empty()) return false;
    const std::wstring from = win::WidePath(arriving);
    const bool done = Receive(session, remote, from, type) &&
                      ::MoveFileExW(from.c_str(), win::WidePath(path).c_str(),
                                    MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH);
    if (!done) ::DeleteFileW(from.c_str());
    return done;
}

}  // namespace ftp
