// Fetching a remote file without harm to the local one that it replaces.
#pragma once

#include <string>

#include "ftp/ftp_session.h"

namespace ftp {

// True when the file at `path` is the remote file, whole. The bytes arrive in a file beside the target that
// takes its place in one step at the end; false leaves the target as it was.
bool Download(FtpSession& session, const std::string& remote, const std::string& path, TransferType type);

}  // namespace ftp
