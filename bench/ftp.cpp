// Listing and uploading in the FTP window, beside the bare calls of WinINet's in the same order.
#include "ftp/core/scramble.h"
#include "ftp/frmUpload.h"
#include "ftp/site_store.h"

#include <cstdlib>

#include <wininet.h>

#include "bench.h"
#include "win/error.h"

namespace bench {
namespace {

constexpr char kFolder[] = "/many";

INTERNET_PORT Port() {
    const char* port = std::getenv("QUILLON_FTP_PORT");
    if (!port) throw win::Failure("QUILLON_FTP_PORT names no server.");
    return static_cast<INTERNET_PORT>(std::atoi(port));
}

std::unique_ptr<ftp::FtpSession> MakeSession() {
    return ftp::MakeSession(Port());
}

frmUpload& OpenWindow(MainWindow& main) {
    const ftp::Site site{0, "127.0.0.1/own", "user", ftp::ScramblePassword("secret")};
    ftp::Apply(ftp::AddSite(ftp::ReadSections(), site).changes);
    frmUpload::open(main, 0, MakeSession);
    win::Dialog* form = win::Dialog::find(main.mainHwnd(), "frmUpload");
    if (!form) throw win::Failure("The FTP window did not open.");
    return static_cast<frmUpload&>(*form);
}

void BareListing(HINTERNET server) {
    WIN32_FIND_DATAA found{};
    std::vector<std::string> names;
    const HINTERNET find = win::Check(::FtpFindFirstFileA(server, "*", &found, 0, 0));
    do {
        names.emplace_back(found.cFileName);
    } while (::InternetFindNextFileA(find, &found));
    ::InternetCloseHandle(find);
    for (const std::string& name : names) {
        ::FtpSetCurrentDirectoryA(server, (std::string(kFolder) + "/" + name).c_str());
    }
}

}  // namespace

void Ftp(MainWindow& main) {
    frmUpload& form = OpenWindow(main);
    const auto tell = [&form](ftp::RemoteCommand command, const std::string& first, const char* second = "") {
        form.work("PROCESSING REQUEST...", [&](ftp::FtpSession& session) {
            if (!session.tell(command, first, second)) throw win::Failure("The server refused a command.");
        });
    };
    const HINTERNET internet =
        ::InternetOpenA("Quillon bench", INTERNET_OPEN_TYPE_DIRECT, nullptr, nullptr, 0);
    HINTERNET server = nullptr;
    const auto connect = [&] {
        ::InternetCloseHandle(server);
        server = win::Check(
            ::InternetConnectA(internet, "127.0.0.1", Port(), "user", "secret", INTERNET_SERVICE_FTP, 0, 0));
        win::Check(::FtpSetCurrentDirectoryA(server, kFolder));
    };
    const std::string path = Scratch("large.htm");
    WriteFile(path, Page(10000000));
    Compare(
        "uploading 10 MB by FTP, beside WinINet's bare call", 1.1, 5,
        [&] { tell(ftp::RemoteCommand::put, path, "/own/large.htm"); },
        [&] {
            win::Check(::FtpPutFileA(server, path.c_str(), "/own/large.htm", FTP_TRANSFER_TYPE_ASCII, 0));
        },
        connect);
    tell(ftp::RemoteCommand::changeDirectory, kFolder);
    Compare(
        "listing 1,000 files by FTP, beside WinINet's bare calls", 1.1, 3, [&] { form.ListRemote(); },
        [&] { BareListing(server); }, connect);
    ::InternetCloseHandle(internet);
    form.close();
}

}  // namespace bench
