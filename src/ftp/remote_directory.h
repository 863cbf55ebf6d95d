// What a server tells about a directory.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "ftp/ftp_session.h"

namespace ftp {

struct RemoteDirectory {
    std::string path;
    std::vector<RemoteFile> files;
};

// Reads the session's current directory; `known` is its path where the server does not say. Entries that the
// listing does not mark as directories are tried out by entering them. Afterwards the session is in the
// directory of the result; where that cannot be made sure of, it is closed.
RemoteDirectory ReadDirectory(FtpSession& session, const std::string& known);

// Bytes, the low 32 bits; nothing when there is no such file.
std::optional<unsigned long> SizeOf(FtpSession& session, const std::string& name);

}  // namespace ftp
