#include "ftp/ftp_session.h"

#include <array>
#include <utility>

#include <wininet.h>

#include "win/unique.h"

namespace ftp {
namespace {

using UniqueInternet = win::Unique<HINTERNET, ::InternetCloseHandle>;

RemoteEntry Entry(const WIN32_FIND_DATAA& found) {
    return {found.cFileName, found.dwFileAttributes, found.nFileSizeLow};
}

class WinInetSession final : public FtpSession {
 public:
    explicit WinInetSession(INTERNET_PORT port) : port_(port) {}
    ~WinInetSession() override { close(); }

    bool dial() override { return ::InternetAutodial(INTERNET_AUTODIAL_FORCE_UNATTENDED, nullptr) != FALSE; }

    bool open() override {
        internet_.reset(::InternetOpenA("Quillon", INTERNET_OPEN_TYPE_DIRECT, nullptr, nullptr, 0));
        return static_cast<bool>(internet_);
    }

    bool connect(const std::string& host, const std::string& user, const std::string& password) override {
        server_.reset(::InternetConnectA(internet_.get(), host.c_str(), port_, user.c_str(), password.c_str(),
                                         INTERNET_SERVICE_FTP, 0, 0));
        return isConnected();
    }

    bool isConnected() const override { return static_cast<bool>(server_); }

    void close() override {
        find_.reset();
        server_.reset();
        internet_.reset();
    }

    bool answered() const override { return answered_; }

    std::optional<std::string> currentDirectory() override {
        std::array<char, 4096> directory{};
        auto size = static_cast<DWORD>(directory.size());
        if (!note(::FtpGetCurrentDirectoryA(server(), directory.data(), &size))) return std::nullopt;
        return directory.data();
    }

    bool changeDirectory(const std::string& directory) override {
        return note(::FtpSetCurrentDirectoryA(server(), directory.c_str()));
    }

    std::optional<RemoteEntry> findFirst(const std::string& pattern) override {
        WIN32_FIND_DATAA found{};
        UniqueInternet find(::FtpFindFirstFileA(server(), pattern.c_str(), &found, 0, 0));
        if (!note(static_cast<bool>(find))) return std::nullopt;
        find_ = std::move(find);
        return Entry(found);
    }

    std::optional<RemoteEntry> findNext() override {
        WIN32_FIND_DATAA found{};
        if (!note(::InternetFindNextFileA(find_.get(), &found))) return std::nullopt;
        return Entry(found);
    }

    void endFind() override { find_.reset(); }

    bool get(const std::string& remote, const std::string& localPath, TransferType type) override {
        return note(::FtpGetFileA(server(), remote.c_str(), localPath.c_str(), FALSE, 0,
                                  static_cast<DWORD>(type), 0));
    }

    bool put(const std::string& localPath, const std::string& remote, TransferType type) override {
        return note(::FtpPutFileA(server(), localPath.c_str(), remote.c_str(), static_cast<DWORD>(type), 0));
    }

    bool createDirectory(const std::string& directory) override {
        return note(::FtpCreateDirectoryA(server(), directory.c_str()));
    }

    bool removeDirectory(const std::string& directory) override {
        return note(::FtpRemoveDirectoryA(server(), directory.c_str()));
    }

    bool removeFile(const std::string& name) override {
        return note(::FtpDeleteFileA(server(), name.c_str()));
    }

    bool rename(const std::string& from, const std::string& to) override {
        return note(::FtpRenameFileA(server(), from.c_str(), to.c_str()));
    }

 private:
    // Windows refuses a command while a listing is open.
    HINTERNET server() {
        find_.reset();
        return server_.get();
    }

    bool note(bool done) {
        const DWORD error = done ? ERROR_SUCCESS : ::GetLastError();
        answered_ = done || error == ERROR_INTERNET_EXTENDED_ERROR || error == ERROR_FILE_NOT_FOUND ||
                    error == ERROR_NO_MORE_FILES;
        return done;
    }

    INTERNET_PORT port_;
    // Released last to first, the listing before the connection that it belongs to.
    UniqueInternet internet_;
    UniqueInternet server_;
    UniqueInternet find_;
    bool answered_ = true;
};

}  // namespace

std::unique_ptr<FtpSession> MakeSession(unsigned short port) {
    return std::make_unique<WinInetSession>(port);
}

std::unique_ptr<FtpSession> MakeOrdinarySession() {
    return MakeSession(kFtpPort);
}

}  // namespace ftp
