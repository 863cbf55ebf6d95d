// One connection to an FTP server.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "ftp/core/transfer_type.h"
#include "win/windows.h"

namespace ftp {

struct RemoteEntry {
    std::string name;
    unsigned long attributes = 0;  // FILE_ATTRIBUTE_... flags
    unsigned long size = 0;        // bytes, the low 32 bits
};

// What a server can be told to do, and is granted or refused.
enum class RemoteCommand {
    changeDirectory,
    createDirectory,
    removeDirectory,
    removeFile,
    rename,  // from, to
    get,     // the remote name, the local path
    put      // the local path, the remote path
};

// What WinINet offers, behind an interface so that a test can refuse what no server can. Every call waits
// for the server's answer, letting messages through, and then returns false or nothing on failure; answered()
// tells a refusal from silence. Names and directories are the server's, in the ANSI code page.
class FtpSession {
 public:
    FtpSession() = default;
    FtpSession(const FtpSession&) = delete;
    FtpSession& operator=(const FtpSession&) = delete;
    virtual ~FtpSession() = default;

    // Brings up a dial-up link where the machine goes online by one.
    virtual bool dial() = 0;
    // The two steps of connecting: the system's networking, then the server with its login.
    virtual bool open() = 0;
    virtual bool connect(const std::string& host, const std::string& user, const std::string& password) = 0;
    virtual bool isConnected() const = 0;
    // Not while a call waits; otherwise safe in any state.
    virtual void close() = 0;
    // Ends the waiting after these milliseconds at the latest, and with it the session: a call that waits
    // fails then, and those that follow. A file that was to be fetched is deleted when it has arrived.
    virtual void giveUp(DWORD patience) = 0;
    // False when the last failure was no refusal: the server is gone or keeps silent.
    virtual bool answered() const = 0;

    virtual std::optional<std::string> currentDirectory() = 0;
    // The entries that match a pattern, in the server's order. Any other command ends the listing too.
    virtual std::optional<RemoteEntry> findFirst(const std::string& pattern) = 0;
    virtual std::optional<RemoteEntry> findNext() = 0;
    virtual void endFind() = 0;
    // What the command works on, and the type of a transfer.
    virtual bool tell(RemoteCommand command, const std::string& first, const std::string& second = {},
                      TransferType type = TransferType::ascii) = 0;
};

constexpr unsigned short kFtpPort = 21;

// A session through WinINet, in active mode.
std::unique_ptr<FtpSession> MakeSession(unsigned short port);

// What the FTP window makes its session with.
using SessionMaker = std::unique_ptr<FtpSession> (*)();
std::unique_ptr<FtpSession> MakeOrdinarySession();  // on kFtpPort

}  // namespace ftp
