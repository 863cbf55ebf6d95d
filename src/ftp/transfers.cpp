#include "ftp/transfers.h"

#include <utility>

#include "document/system_code_pages.h"
#include "files/atomic_file.h"
#include "files/core/path.h"
#include "ftp/core/server_text.h"
#include "win/wide_path.h"

namespace ftp {
namespace {

constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

// In bytes: of one file that is read whole, and of all that are sent together.
constexpr LONGLONG kLargestInMemory = 16 << 20;
constexpr std::size_t kRoom = 64 << 20;

}  // namespace

LocalFile::LocalFile(const std::string& path, std::size_t& room)
    : name_(modPubFuncs::FileNameFromPath(path)),
      file_(::CreateFileW(win::WidePath(path).c_str(), GENERIC_READ, kShareAll, nullptr, OPEN_EXISTING,
                          FILE_FLAG_SEQUENTIAL_SCAN, nullptr)) {
    LARGE_INTEGER size{};
    if (!file_ || !::GetFileSizeEx(file_.get(), &size) || size.QuadPart > kLargestInMemory) return;
    const auto needed = static_cast<std::size_t>(size.QuadPart);
    if (needed > room) return;
    if (readWhole(needed)) room -= needed;
    file_.reset();
}

bool LocalFile::readWhole(std::size_t size) {
    std::string bytes(size, '\0');
    DWORD done = 0;
    if (!::ReadFile(file_.get(), bytes.data(), static_cast<DWORD>(size), &done, nullptr)) return false;
    bytes.resize(done);
    bytes_ = std::move(bytes);
    return true;
}

std::optional<std::size_t> LocalFile::read(char* chunk, std::size_t size) {
    if (bytes_) {
        const std::size_t now = bytes_->copy(chunk, size, sent_);
        sent_ += now;
        return now;
    }
    DWORD done = 0;
    if (!::ReadFile(file_.get(), chunk, static_cast<DWORD>(size), &done, nullptr)) return std::nullopt;
    return done;
}

std::vector<LocalFile> OpenFiles(const std::vector<std::string>& paths) {
    std::vector<LocalFile> files;
    std::size_t room = kRoom;
    for (const std::string& path : paths) files.emplace_back(path, room);
    return files;
}

Unsent Send(FtpSession& session, std::vector<LocalFile>& files, const std::string& directory) {
    Unsent unsent;
    for (LocalFile& local : files) {
        const std::optional<std::string> name = SentName(local.name(), document::SystemCodePages());
        if (!name) {
            unsent.unnameable.push_back(local.name());
            continue;
        }
        const auto read = [&local](char* chunk, std::size_t size) { return local.read(chunk, size); };
        const bool arrived = local.isOpen() && !session.isLost() &&
                             session.put(read, JoinRemote(directory, *name), local.type);
        if (!arrived) unsent.failed.push_back(local.name());
    }
    return unsent;
}

bool Download(FtpSession& session, const std::string& remote, const std::string& path, TransferType type) {
    files::AtomicFile file(path);
    return file.handle() && session.get(remote, file.handle(), type) && file.commit();
}

}  // namespace ftp
