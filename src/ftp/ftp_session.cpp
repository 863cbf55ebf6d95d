#include "ftp/ftp_session.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <string_view>
#include <utility>
#include <vector>

#include <wininet.h>

#include "win/system_dll.h"
#include "win/unique.h"

namespace ftp {
namespace {

// The ...A functions: names and answers are the server's bytes, which no code page of ours may touch.
constexpr char kDll[] = "wininet.dll";
constexpr win::DelayLoaded<decltype(&::FtpCreateDirectoryA)> kFtpCreateDirectory{kDll, "FtpCreateDirectoryA"};
constexpr win::DelayLoaded<decltype(&::FtpDeleteFileA)> kFtpDeleteFile{kDll, "FtpDeleteFileA"};
constexpr win::DelayLoaded<decltype(&::FtpFindFirstFileA)> kFtpFindFirstFile{kDll, "FtpFindFirstFileA"};
constexpr win::DelayLoaded<decltype(&::FtpGetCurrentDirectoryA)> kFtpGetCurrentDirectory{
    kDll, "FtpGetCurrentDirectoryA"};
constexpr win::DelayLoaded<decltype(&::FtpOpenFileA)> kFtpOpenFile{kDll, "FtpOpenFileA"};
constexpr win::DelayLoaded<decltype(&::FtpRemoveDirectoryA)> kFtpRemoveDirectory{kDll, "FtpRemoveDirectoryA"};
constexpr win::DelayLoaded<decltype(&::FtpRenameFileA)> kFtpRenameFile{kDll, "FtpRenameFileA"};
constexpr win::DelayLoaded<decltype(&::FtpSetCurrentDirectoryA)> kFtpSetCurrentDirectory{
    kDll, "FtpSetCurrentDirectoryA"};
constexpr win::DelayLoaded<decltype(&::InternetAutodial)> kInternetAutodial{kDll, "InternetAutodial"};
constexpr win::DelayLoaded<decltype(&::InternetCloseHandle)> kInternetCloseHandle{kDll,
                                                                                  "InternetCloseHandle"};
constexpr win::DelayLoaded<decltype(&::InternetConnectA)> kInternetConnect{kDll, "InternetConnectA"};
constexpr win::DelayLoaded<decltype(&::InternetFindNextFileA)> kInternetFindNextFile{kDll,
                                                                                     "InternetFindNextFileA"};
constexpr win::DelayLoaded<decltype(&::InternetGetLastResponseInfoA)> kInternetGetLastResponseInfo{
    kDll, "InternetGetLastResponseInfoA"};
constexpr win::DelayLoaded<decltype(&::InternetOpenW)> kInternetOpen{kDll, "InternetOpenW"};
constexpr win::DelayLoaded<decltype(&::InternetReadFile)> kInternetReadFile{kDll, "InternetReadFile"};
constexpr win::DelayLoaded<decltype(&::InternetSetStatusCallbackA)> kInternetSetStatusCallback{
    kDll, "InternetSetStatusCallbackA"};
constexpr win::DelayLoaded<decltype(&::InternetWriteFile)> kInternetWriteFile{kDll, "InternetWriteFile"};

constexpr std::size_t kChunk = 64 * 1024;

void CloseInternet(HINTERNET handle) {
    kInternetCloseHandle(handle);
}

using UniqueInternet = win::Unique<HINTERNET, CloseInternet>;

// A handle that one thread uses and another may close.
class SharedInternet {
 public:
    ~SharedInternet() { reset(); }

    HINTERNET get() const { return handle_; }
    void reset(HINTERNET handle = nullptr) {
        if (const HINTERNET old = handle_.exchange(handle)) CloseInternet(old);
    }

 private:
    std::atomic<HINTERNET> handle_ = nullptr;
};

// The code of the server's last answer to this thread ("226 Transfer complete."); 0 when there was none.
int AnswerCode() {
    std::array<char, 4096> text{};
    DWORD error = 0;
    auto size = static_cast<DWORD>(text.size());
    if (!kInternetGetLastResponseInfo(&error, text.data(), &size)) return 0;
    std::string_view lines(text.data(), std::min<std::size_t>(size, text.size()));
    int code = 0;
    while (!lines.empty()) {
        const std::string_view line = lines.substr(0, lines.find('\n'));
        lines.remove_prefix(std::min(lines.size(), line.size() + 1));
        const bool isAnswer = line.size() >= 3 && line.find_first_not_of("0123456789") >= 3;
        // All but the last line of an answer have a "-" behind the code (RFC 959, 4.2).
        if (isAnswer && (line.size() == 3 || line[3] != '-'))
            code = (line[0] - '0') * 100 + (line[1] - '0') * 10 + (line[2] - '0');
    }
    return code;
}

constexpr bool IsPreliminary(int code) {
    return code < 200;
}
constexpr bool IsSuccess(int code) {
    return code >= 200 && code < 300;
}

class WinInetSession final : public FtpSession {
 public:
    explicit WinInetSession(INTERNET_PORT port) : port_(port) {}

    bool dial() override {
        return !stopped_ && kInternetAutodial(INTERNET_AUTODIAL_FORCE_UNATTENDED, nullptr) != FALSE;
    }

    bool open() override {
        if (stopped_) return false;
        lost_ = false;
        internet_.reset(kInternetOpen(L"Quillon", INTERNET_OPEN_TYPE_DIRECT, nullptr, nullptr, 0));
        return internet_.get() != nullptr;
    }

    bool connect(const std::string& host, const std::string& user, const std::string& password) override {
        if (stopped_) return false;
        kInternetSetStatusCallback(internet_.get(), Follow);
        isReaching_ = true;
        server_.reset(kInternetConnect(internet_.get(), host.c_str(), port_, user.c_str(), password.c_str(),
                                       INTERNET_SERVICE_FTP, 0, reinterpret_cast<DWORD_PTR>(this)));
        isReaching_ = false;
        connecting_ = nullptr;
        if (server_.get()) kInternetSetStatusCallback(server_.get(), nullptr);
        return isConnected();
    }

    bool isConnected() const override { return server_.get() && !stopped_; }
    bool isLost() const override { return lost_; }
    void stop() override { stopped_ = true; }

    void close() override {
        server_.reset();
        // While the server is being reached there is no connection yet that would end with this: Follow()
        // ends it.
        if (!isReaching_) internet_.reset();
    }

    std::optional<std::string> currentDirectory() override {
        std::array<char, 4096> directory{};
        auto size = static_cast<DWORD>(directory.size());
        if (!command(kFtpGetCurrentDirectory, directory.data(), &size)) return std::nullopt;
        return directory.data();
    }

    void list(const std::string& pattern, const std::function<bool(const RemoteEntry&)>& take) override {
        WIN32_FIND_DATAA found{};
        if (stopped_) return;
        const UniqueInternet find(kFtpFindFirstFile(server_.get(), pattern.c_str(), &found, 0, 0));
        bool more = note(static_cast<bool>(find));
        while (more && take({found.cFileName, found.dwFileAttributes, found.nFileSizeLow}))
            more = !stopped_ && note(kInternetFindNextFile(find.get(), &found));
    }

    bool changeDirectory(const std::string& directory) override {
        return command(kFtpSetCurrentDirectory, directory.c_str());
    }
    bool createDirectory(const std::string& name) override {
        return command(kFtpCreateDirectory, name.c_str());
    }
    bool removeDirectory(const std::string& name) override {
        return command(kFtpRemoveDirectory, name.c_str());
    }
    bool removeFile(const std::string& name) override { return command(kFtpDeleteFile, name.c_str()); }
    bool rename(const std::string& from, const std::string& to) override {
        return command(kFtpRenameFile, from.c_str(), to.c_str());
    }

    bool put(const ReadChunk& read, const std::string& remote, TransferType type) override {
        UniqueInternet file = openRemote(remote, GENERIC_WRITE, type);
        if (!file) return false;
        const bool sent = send(read, file.get());
        return finish(file) && sent;
    }

    bool get(const std::string& remote, HANDLE to, TransferType type) override {
        UniqueInternet file = openRemote(remote, GENERIC_READ, type);
        if (!file) return false;
        const bool received = receive(file.get(), to);
        return finish(file) && received;
    }

 private:
    // The call that connects also logs in. On the thread that waits for it the system reports each step, and
    // a handle before the first: once that is closed, nothing more is sent.
    static void CALLBACK Follow(HINTERNET, DWORD_PTR context, DWORD status, LPVOID about, DWORD) {
        auto& self = *reinterpret_cast<WinInetSession*>(context);
        if (status == INTERNET_STATUS_CONNECTED_TO_SERVER) self.isReaching_ = false;
        if (status == INTERNET_STATUS_HANDLE_CREATED) {
            const auto& created = *static_cast<const INTERNET_ASYNC_RESULT*>(about);
            self.connecting_ = reinterpret_cast<HINTERNET>(created.dwResult);
        } else if (status != INTERNET_STATUS_HANDLE_CLOSING && self.stopped_ && self.connecting_) {
            CloseInternet(std::exchange(self.connecting_, nullptr));
        }
    }

    // Passes on a call's result, and notes when it has failed because the connection is lost.
    bool note(bool done) {
        if (done) return true;
        const DWORD error = ::GetLastError();
        const bool refused = error == ERROR_INTERNET_EXTENDED_ERROR || error == ERROR_FILE_NOT_FOUND ||
                             error == ERROR_NO_MORE_FILES || error == ERROR_SUCCESS;
        constexpr int kClosing = 421;  // what a server says last to one that was idle for too long
        if (!refused || (error == ERROR_INTERNET_EXTENDED_ERROR && AnswerCode() == kClosing)) lost_ = true;
        return false;
    }
    bool note(BOOL done) { return note(done != FALSE); }

    template <typename Function, typename... Arguments>
    bool command(const Function& function, Arguments... arguments) {
        return !stopped_ && note(function(server_.get(), arguments...));
    }

    UniqueInternet openRemote(const std::string& name, DWORD access, TransferType type) {
        if (stopped_) return {};
        UniqueInternet file(kFtpOpenFile(server_.get(), name.c_str(), access, static_cast<DWORD>(type), 0));
        note(static_cast<bool>(file));
        return file;
    }

    // A failure here ends the transfer; the server's answer tells whether the connection is lost too.
    bool send(const ReadChunk& read, HINTERNET to) const {
        std::vector<char> chunk(kChunk);
        while (!stopped_) {
            const std::optional<std::size_t> size = read(chunk.data(), chunk.size());
            if (!size) return false;
            if (*size == 0) return true;
            for (std::size_t sent = 0; sent < *size;) {
                DWORD now = 0;
                if (!kInternetWriteFile(to, chunk.data() + sent, static_cast<DWORD>(*size - sent), &now))
                    return false;
                sent += now;
            }
        }
        return false;
    }

    bool receive(HINTERNET from, HANDLE to) const {
        std::vector<char> chunk(kChunk);
        while (!stopped_) {
            DWORD size = 0;
            DWORD written = 0;
            if (!kInternetReadFile(from, chunk.data(), static_cast<DWORD>(chunk.size()), &size)) return false;
            if (size == 0) return true;
            if (!::WriteFile(to, chunk.data(), size, &written, nullptr) || written != size) return false;
        }
        return false;
    }

    // The server answers when the file is closed. Where the system keeps that answer to itself, the next
    // command shows whether the connection still stands.
    bool finish(UniqueInternet& file) {
        if (!note(kInternetCloseHandle(file.release()))) return false;
        const int code = AnswerCode();
        return IsPreliminary(code) ? currentDirectory().has_value() : IsSuccess(code);
    }

    INTERNET_PORT port_;
    std::atomic<bool> stopped_ = false;
    std::atomic<bool> lost_ = false;
    std::atomic<bool> isReaching_ = false;  // there is no connection yet
    HINTERNET connecting_ = nullptr;
    // Closed last to first: the connection belongs to the system's networking.
    SharedInternet internet_;
    SharedInternet server_;
};

}  // namespace

std::unique_ptr<FtpSession> MakeSession(unsigned short port) {
    return std::make_unique<WinInetSession>(port);
}

std::unique_ptr<FtpSession> MakeOrdinarySession() {
    return MakeSession(kFtpPort);
}

}  // namespace ftp
