// Files of this machine on their way to and from a server.
#pragma once

#include <string>
#include <vector>

#include "ftp/ftp_session.h"
#include "win/unique.h"

namespace ftp {

// Open for reading while anybody may change, replace or delete it: what is being sent can be saved, and a
// program that gives a file away only for a moment can take it back.
struct LocalFile {
    LocalFile() = default;
    explicit LocalFile(const std::string& path);

    std::string name;      // without folder
    win::UniqueFile file;  // empty when it could not be opened
    TransferType type = TransferType::ascii;
};

std::vector<LocalFile> OpenFiles(const std::vector<std::string>& paths);

// What did not arrive, by the files' names.
struct Unsent {
    std::vector<std::string> failed;
    std::vector<std::string> unnameable;  // that the server would not get right: these were not tried

    bool none() const { return failed.empty() && unnameable.empty(); }
};

// Sends each file into a remote directory until the server has gone: then the rest has failed too.
Unsent Send(FtpSession& session, const std::vector<LocalFile>& files, const std::string& directory);

// True when the file at `path` is the remote file, whole. The bytes arrive in a file beside the target that
// takes its place in one step at the end; false leaves the target as it was.
bool Download(FtpSession& session, const std::string& remote, const std::string& path, TransferType type);

}  // namespace ftp
