// One connection to an FTP server.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "ftp/core/remote_names.h"
#include "win/windows.h"

namespace ftp {

struct RemoteEntry {
    std::string name;
    unsigned long attributes = 0;  // FILE_ATTRIBUTE_... flags
    unsigned long size = 0;        // bytes, the low 32 bits
};

// Reads the next bytes to send into the chunk and returns how many: 0 at the end, nothing on failure.
using ReadChunk = std::function<std::optional<std::size_t>(char* chunk, std::size_t size)>;

// What WinINet offers, behind an interface so that a test can refuse what no server can. Every call waits for
// the server's answer, so it belongs on a thread without windows, and returns false or nothing on failure.
// All texts are the server's own bytes.
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

    // These may be called on any thread.
    virtual bool isConnected() const = 0;
    // Whether the connection is lost or the server silent; any other failure is a refusal of the server's.
    virtual bool isLost() const = 0;
    // Also ends a waiting call, where the system can.
    virtual void close() = 0;
    // From then on no call is begun; a transfer or a listing is broken off.
    virtual void stop() = 0;

    virtual std::optional<std::string> currentDirectory() = 0;
    // Passes the entries that match a pattern to `take`, in the server's order, until that returns false.
    virtual void list(const std::string& pattern, const std::function<bool(const RemoteEntry&)>& take) = 0;
    virtual bool changeDirectory(const std::string& directory) = 0;
    virtual bool createDirectory(const std::string& name) = 0;
    virtual bool removeDirectory(const std::string& name) = 0;
    virtual bool removeFile(const std::string& name) = 0;
    virtual bool rename(const std::string& from, const std::string& to) = 0;
    // True when the server has said that all of it has arrived. `to` is open for writing.
    virtual bool put(const ReadChunk& read, const std::string& remote, TransferType type) = 0;
    virtual bool get(const std::string& remote, HANDLE to, TransferType type) = 0;
};

constexpr unsigned short kFtpPort = 21;

// A session through WinINet, in active mode.
std::unique_ptr<FtpSession> MakeSession(unsigned short port);

// What the FTP window makes its session with.
using SessionMaker = std::unique_ptr<FtpSession> (*)();
std::unique_ptr<FtpSession> MakeOrdinarySession();  // on kFtpPort

}  // namespace ftp
