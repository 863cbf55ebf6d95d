#include "ftp/ftp_session.h"

#include <array>
#include <utility>

#include <wininet.h>

#include "ftp/core/scramble.h"
#include "win/late.h"
#include "win/unique.h"
#include "win/worker.h"

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

// The calls that are no RemoteCommand.
enum class Call { command, dial, connect, currentDirectory, findFirst, findNext };

// One call with what it takes and gives. What comes of it when nobody waits any more is not kept: a
// connection is closed, a file that has arrived is deleted.
class Request final : public win::Task {
 public:
    Request(Call call, HINTERNET handle, const char* first, const char* second = "",
            RemoteCommand command = {}, DWORD number = 0)
        : call_(call), command_(command), handle_(handle), first_(first), second_(second), number_(number) {}

    std::string password;
    bool wanted = true;

    BOOL done = FALSE;
    UniqueInternet opened;
    std::array<char, 4096> directory{};
    WIN32_FIND_DATAA found{};

 private:
    ~Request() override {
        Wipe(password);
        if (command_ == RemoteCommand::get && !wanted) ::DeleteFileA(second_.c_str());
    }
    void run() override;
    BOOL runCommand();

    const Call call_;
    const RemoteCommand command_;
    const HINTERNET handle_;
    const std::string first_;
    const std::string second_;
    DWORD number_;
};

void Request::run() {
    switch (call_) {
        case Call::command:
            done = runCommand();
            return;
        case Call::dial:
            done = kInternetAutodial(INTERNET_AUTODIAL_FORCE_UNATTENDED, nullptr);
            return;
        case Call::connect:
            opened.reset(kInternetConnect(handle_, first_.c_str(), static_cast<INTERNET_PORT>(number_),
                                          second_.c_str(), password.c_str(), INTERNET_SERVICE_FTP, 0, 0));
            break;
        case Call::currentDirectory:
            number_ = static_cast<DWORD>(directory.size());
            done = kFtpGetCurrentDirectory(handle_, directory.data(), &number_);
            return;
        case Call::findFirst:
            opened.reset(kFtpFindFirstFile(handle_, first_.c_str(), &found, 0, 0));
            break;
        case Call::findNext:
            done = kInternetFindNextFile(handle_, &found);
            return;
    }
    done = static_cast<bool>(opened);
}

BOOL Request::runCommand() {
    const char* first = first_.c_str();
    const char* second = second_.c_str();
    switch (command_) {
        case RemoteCommand::changeDirectory:
            return kFtpSetCurrentDirectory(handle_, first);
        case RemoteCommand::createDirectory:
            return kFtpCreateDirectory(handle_, first);
        case RemoteCommand::removeDirectory:
            return kFtpRemoveDirectory(handle_, first);
        case RemoteCommand::removeFile:
            return kFtpDeleteFile(handle_, first);
        case RemoteCommand::rename:
            return kFtpRenameFile(handle_, first, second);
        case RemoteCommand::get:
            return kFtpGetFile(handle_, first, second, FALSE, 0, number_, 0);
        case RemoteCommand::put:
            return kFtpPutFile(handle_, first, second, number_, 0);
    }
    return FALSE;
}

void Release(Request* request) {
    request->release();
}

using UniqueRequest = win::Unique<Request*, Release>;

class WinInetSession final : public FtpSession {
 public:
    explicit WinInetSession(INTERNET_PORT port) : port_(port) {}
    ~WinInetSession() override { close(); }

    // To the user who does not want to wait there is nothing to tell.
    bool dial() override { return ask(Call::dial, nullptr) || worker_.isGivenUp(); }

    bool open() override {
        internet_.reset(kInternetOpen("Quillon", INTERNET_OPEN_TYPE_DIRECT, nullptr, nullptr, 0));
        return static_cast<bool>(internet_);
    }

    bool connect(const std::string& host, const std::string& user, const std::string& password) override {
        const UniqueRequest request(
            new Request(Call::connect, internet_.get(), host.c_str(), user.c_str(), {}, port_));
        request.get()->password = password;
        if (await(*request.get())) server_ = std::move(request.get()->opened);
        return isConnected();
    }

    bool isConnected() const override { return server_ && !worker_.isGivenUp(); }

    void giveUp(DWORD patience) override { worker_.giveUp(patience); }

    void close() override {
        find_.reset();
        server_.reset();
        internet_.reset();
    }

    bool answered() const override { return answered_; }

    std::optional<std::string> currentDirectory() override {
        const UniqueRequest request = ask(Call::currentDirectory, server());
        if (!request) return std::nullopt;
        return request.get()->directory.data();
    }

    std::optional<RemoteEntry> findFirst(const std::string& pattern) override {
        const UniqueRequest request = ask(Call::findFirst, server(), pattern.c_str());
        if (request) find_ = std::move(request.get()->opened);
        return Entry(request);
    }

    std::optional<RemoteEntry> findNext() override { return Entry(ask(Call::findNext, find_.get())); }

    void endFind() override { find_.reset(); }

    bool tell(RemoteCommand command, const std::string& first, const std::string& second,
              TransferType type) override {
        const UniqueRequest request(new Request(Call::command, server(), first.c_str(), second.c_str(),
                                                command, static_cast<DWORD>(type)));
        return await(*request.get());
    }

 private:
    static std::optional<RemoteEntry> Entry(const UniqueRequest& request) {
        if (!request) return std::nullopt;
        const WIN32_FIND_DATAA& found = request.get()->found;
        return RemoteEntry{found.cFileName, found.dwFileAttributes, found.nFileSizeLow};
    }

    // Windows refuses a command while a listing is open.
    HINTERNET server() {
        find_.reset();
        return server_.get();
    }

    // What came of a call; nothing when it was refused.
    UniqueRequest ask(Call call, HINTERNET on, const char* pattern = "") {
        UniqueRequest request(new Request(call, on, pattern));
        if (!await(*request.get())) request.reset();
        return request;
    }

    bool await(Request& request) {
        const bool ended = worker_.run(request);
        const DWORD error = ended && request.done ? ERROR_SUCCESS : ::GetLastError();
        answered_ = error == ERROR_SUCCESS || error == ERROR_INTERNET_EXTENDED_ERROR ||
                    error == ERROR_FILE_NOT_FOUND || error == ERROR_NO_MORE_FILES;
        if (!ended) {
            request.wanted = false;
            // Ends the call, where the system can.
            close();
        }
        return ended && request.done;
    }

    INTERNET_PORT port_;
    win::Worker worker_;
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
