#include "ftp/remote_directory.h"

#include <utility>

#include "document/system_code_pages.h"

namespace ftp {
namespace {

std::vector<RemoteFile> ListFiles(FtpSession& session) {
    RemoteListing listing(document::SystemCodePages());
    session.list("*",
                 [&listing](const RemoteEntry& entry) { return listing.add(entry.name, entry.attributes); });
    return std::move(listing).files();
}

// False when the session may have stayed in one of them.
bool MarkDirectories(FtpSession& session, RemoteDirectory& directory) {
    for (RemoteFile& file : directory.files) {
        // A server that no longer answers would be waited for at every entry.
        if (session.isLost() || !session.isConnected()) return true;
        if (file.isDirectory() || !session.changeDirectory(JoinRemote(directory.path, file.name))) continue;
        file.markAsDirectory();
        if (!session.changeDirectory(directory.path)) return false;
    }
    return true;
}

}  // namespace

RemoteDirectory ReadDirectory(FtpSession& session, const std::string& known) {
    RemoteDirectory directory{session.currentDirectory().value_or(known), {}};
    directory.files = ListFiles(session);
    if (MarkDirectories(session, directory)) return directory;
    const std::optional<std::string> now = session.currentDirectory();
    if (!now) {
        session.close();
        return {};
    }
    if (*now == directory.path) return directory;
    // No more tries on a server that does not let the session back.
    return {*now, ListFiles(session)};
}

std::optional<unsigned long> SizeOf(FtpSession& session, const std::string& name) {
    // A pattern ends at a blank, and these stand for other characters.
    const bool isPattern = name.find_first_of(" *?[") != std::string::npos;
    std::optional<unsigned long> size;
    session.list(isPattern ? "*" : name, [&](const RemoteEntry& entry) {
        if (!isPattern || entry.name == name) size = entry.size;
        return !size;
    });
    return size;
}

}  // namespace ftp
