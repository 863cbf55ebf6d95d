// Files of this machine on their way to and from a server.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "ftp/ftp_session.h"
#include "win/unique.h"

namespace ftp {

// A file as it was when this object was made. It is read whole, because Windows lets nobody replace a file
// that is open, and because the source of a drop may delete its file at once. One of more than `room` bytes,
// or larger than any page, stays open instead, shared in every way.
class LocalFile {
 public:
    LocalFile(const std::string& path, std::size_t& room);

    const std::string& name() const { return name_; }  // without folder
    bool isOpen() const { return file_ || bytes_; }
    std::optional<std::size_t> read(char* chunk, std::size_t size);

    TransferType type = TransferType::ascii;

 private:
    bool readWhole(std::size_t size);

    std::string name_;
    win::UniqueFile file_;
    std::optional<std::string> bytes_;
    std::size_t sent_ = 0;  // of bytes_
};

std::vector<LocalFile> OpenFiles(const std::vector<std::string>& paths);

// What did not arrive, by the files' names.
struct Unsent {
    std::vector<std::string> failed;
    std::vector<std::string> unnameable;  // not tried, because the server would get another name

    bool none() const { return failed.empty() && unnameable.empty(); }
};

// Sends each file into a remote directory until the connection is lost: the rest has then failed too.
Unsent Send(FtpSession& session, std::vector<LocalFile>& files, const std::string& directory);

// True when the file at `path` is the remote file, whole; false leaves what was there.
bool Download(FtpSession& session, const std::string& remote, const std::string& path, TransferType type);

}  // namespace ftp
