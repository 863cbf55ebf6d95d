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

// The session's current directory; `known` is where it is when the server does not say. What the listing does
// not mark as a directory is tried out. Each of these tries leads back, or the session is where the path says
// that it is; where that cannot be found out, it is closed.
RemoteDirectory ReadDirectory(FtpSession& session, const std::string& known);

// Bytes, the low 32 bits; nothing when there is no such file.
std::optional<unsigned long> SizeOf(FtpSession& session, const std::string& name);

}  // namespace ftp
