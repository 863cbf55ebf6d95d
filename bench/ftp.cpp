// Listing and uploading in the FTP window, beside the bare WinINet calls in the same order.
#include "document/system_code_pages.h"
#include "ftp/core/password.h"
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
    const std::string password = ftp::StoredPassword("secret", document::SystemCodePages());
    const ftp::Site site{0, "127.0.0.1/own", "user", password};
    ftp::Apply(ftp::AddSite(ftp::ReadSections(), site).changes);
    frmUpload::open(main, 0, MakeSession);
    win::Dialog* form = win::Dialog::find(main.mainHwnd(), "frmUpload");
    if (!form) throw win::Failure("The FTP window did not open.");
    return static_cast<frmUpload&>(*form);
}

// Only the calls that a listing needs.
void BareListing(HINTERNET server) {
    char directory[MAX_PATH];
    DWORD size = sizeof directory;
    win::Check(::FtpGetCurrentDirectoryA(server, directory, &size));
    WIN32_FIND_DATAA found{};
    std::vector<std::string> names;
    const HINTERNET find = win::Check(::FtpFindFirstFileA(server, "*", &found, 0, 0));
    do {
        names.emplace_back(found.cFileName);
    } while (::InternetFindNextFileA(find, &found));
    ::InternetCloseHandle(find);
    for (const std::string& name : names) {
        ::FtpSetCurrentDirectoryA(server, (std::string(directory) + "/" + name).c_str());
    }
}

}  // namespace

void Ftp(MainWindow& main) {
    frmUpload& form = OpenWindow(main);
    const HINTERNET internet =
        ::InternetOpenW(L"Quillon bench", INTERNET_OPEN_TYPE_DIRECT, nullptr, nullptr, 0);
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
        [&] {
            const std::optional<ftp::Unsent> unsent = form.send(ftp::OpenFiles({path}));
            if (!unsent || !unsent->none()) throw win::Failure("The upload failed.");
        },
        [&] {
            win::Check(::FtpPutFileA(server, path.c_str(), "/own/large.htm", FTP_TRANSFER_TYPE_ASCII, 0));
        },
        connect);
    form.change("PROCESSING REQUEST...",
                [](ftp::FtpSession& session) { return session.changeDirectory(kFolder); });
    Compare(
        "listing 1,000 files by FTP, beside WinINet's bare calls", 1.05, 3, [&] { form.ListRemote(); },
        [&] { BareListing(server); }, connect);
    ::InternetCloseHandle(internet);
    form.close();
}

}  // namespace bench
