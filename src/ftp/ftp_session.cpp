#include "ftp/ftp_session.h"

#include <array>
#include <utility>

#include <wininet.h>

#include "win/late.h"
#include "win/unique.h"

namespace ftp {
namespace {

constexpr char kDll[] = "wininet.dll";
constexpr win::Late<decltype(&::FtpCreateDirectoryA)> kFtpCreateDirectory{kDll, "FtpCreateDirectoryA"};
constexpr win::Late<decltype(&::FtpDeleteFileA)> kFtpDeleteFile{kDll, "FtpDeleteFileA"};
constexpr win::Late<decltype(&::FtpFindFirstFileA)> kFtpFindFirstFile{kDll, "FtpFindFirstFileA"};
constexpr win::Late<decltype(&::FtpGetCurrentDirectoryA)> kFtpGetCurrentDirectory{kDll,
                                                                                  "FtpGetCurrentDirectoryA"};
constexpr win::Late<decltype(&::FtpGetFileA)> kFtpGetFile{kDll, "FtpGetFileA"};
constexpr win::Late<decltype(&::FtpPutFileA)> kFtpPutFile{kDll, "FtpPutFileA"};
constexpr win::Late<decltype(&::FtpRemoveDirectoryA)> kFtpRemoveDirectory{kDll, "FtpRemoveDirectoryA"};
constexpr win::Late<decltype(&::FtpRenameFileA)> kFtpRenameFile{kDll, "FtpRenameFileA"};
constexpr win::Late<decltype(&::FtpSetCurrentDirectoryA)> kFtpSetCurrentDirectory{kDll,
                                                                                  "FtpSetCurrentDirectoryA"};
constexpr win::Late<decltype(&::InternetAutodial)> kInternetAutodial{kDll, "InternetAutodial"};
constexpr win::Late<decltype(&::InternetCloseHandle)> kInternetCloseHandle{kDll, "InternetCloseHandle"};
constexpr win::Late<decltype(&::InternetConnectA)> kInternetConnect{kDll, "InternetConnectA"};
constexpr win::Late<decltype(&::InternetFindNextFileA)> kInternetFindNextFile{kDll, "InternetFindNextFileA"};
constexpr win::Late<decltype(&::InternetOpenA)> kInternetOpen{kDll, "InternetOpenA"};

void CloseInternet(HINTERNET handle) {
    kInternetCloseHandle(handle);
}

using UniqueInternet = win::Unique<HINTERNET, CloseInternet>;

RemoteEntry Entry(const WIN32_FIND_DATAA& found) {
    return {found.cFileName, found.dwFileAttributes, found.nFileSizeLow};
}

class WinInetSession final : public FtpSession {
 public:
    explicit WinInetSession(INTERNET_PORT port) : port_(port) {}
    ~WinInetSession() override { close(); }

    bool dial() override { return kInternetAutodial(INTERNET_AUTODIAL_FORCE_UNATTENDED, nullptr) != FALSE; }

    bool open() override {
        internet_.reset(kInternetOpen("Quillon", INTERNET_OPEN_TYPE_DIRECT, nullptr, nullptr, 0));
        return static_cast<bool>(internet_);
    }

    bool connect(const std::string& host, const std::string& user, const std::string& password) override {
        server_.reset(kInternetConnect(internet_.get(), host.c_str(), port_, user.c_str(), password.c_str(),
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
        if (!note(kFtpGetCurrentDirectory(server(), directory.data(), &size))) return std::nullopt;
        return directory.data();
    }

    bool changeDirectory(const std::string& directory) override {
        return note(kFtpSetCurrentDirectory(server(), directory.c_str()));
    }

    std::optional<RemoteEntry> findFirst(const std::string& pattern) override {
        WIN32_FIND_DATAA found{};
        UniqueInternet find(kFtpFindFirstFile(server(), pattern.c_str(), &found, 0, 0));
        if (!note(static_cast<bool>(find))) return std::nullopt;
        find_ = std::move(find);
        return Entry(found);
    }

    std::optional<RemoteEntry> findNext() override {
        WIN32_FIND_DATAA found{};
        if (!note(kInternetFindNextFile(find_.get(), &found))) return std::nullopt;
        return Entry(found);
    }

    void endFind() override { find_.reset(); }

    bool get(const std::string& remote, const std::string& localPath, TransferType type) override {
        return note(
            kFtpGetFile(server(), remote.c_str(), localPath.c_str(), FALSE, 0, static_cast<DWORD>(type), 0));
    }

    bool put(const std::string& localPath, const std::string& remote, TransferType type) override {
        return note(kFtpPutFile(server(), localPath.c_str(), remote.c_str(), static_cast<DWORD>(type), 0));
    }

    bool createDirectory(const std::string& directory) override {
        return note(kFtpCreateDirectory(server(), directory.c_str()));
    }

    bool removeDirectory(const std::string& directory) override {
        return note(kFtpRemoveDirectory(server(), directory.c_str()));
    }

    bool removeFile(const std::string& name) override { return note(kFtpDeleteFile(server(), name.c_str())); }

    bool rename(const std::string& from, const std::string& to) override {
        return note(kFtpRenameFile(server(), from.c_str(), to.c_str()));
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
