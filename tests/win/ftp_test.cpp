#include "win/ftp_test.h"

#include <cstdlib>

#include "document/system_code_pages.h"
#include "forms/frmUpload.h"
#include "ftp/core/password.h"
#include "ftp/frmUpload.h"
#include "ftp/site_store.h"
#include "win/drop_target.h"
#include "win/message_loop.h"
#include "win/window.h"

namespace {

std::unique_ptr<ftp::FtpSession> SessionOn(const char* variable) {
    return ftp::MakeSession(static_cast<unsigned short>(std::atoi(Environment(variable).c_str())));
}

}  // namespace

std::unique_ptr<ftp::FtpSession> HonestSession() {
    return SessionOn("QUILLON_FTP_PORT");
}

std::unique_ptr<ftp::FtpSession> ScriptedSession() {
    return SessionOn("QUILLON_FTP_SCRIPTED_PORT");
}

void FtpTest::SetUp() {
    AppTest::SetUp();
    if (Environment("QUILLON_FTP_PORT").empty()) GTEST_SKIP() << "tests/ftp/servers has not been started";
    ::DeleteFileA(Environment("QUILLON_FTP_LOG").c_str());
}

void AddSite(const std::string& url, const std::string& name, const std::string& password) {
    const ftp::Site site{0, url, name, ftp::StoredPassword(password, document::SystemCodePages())};
    ftp::Apply(ftp::AddSite(ftp::ReadSections(), site).changes);
}

HWND FtpTest::openHonest(const std::vector<std::string>& files) {
    DeleteTree(onServer(""));
    ::CreateDirectoryA(onServer("").c_str(), nullptr);
    for (const std::string& file : files) {
        if (file.back() == '/') {
            ::CreateDirectoryA(onServer(file).c_str(), nullptr);
        } else {
            writeFile(onServer(file), "The file " + file);
        }
    }
    AddSite("127.0.0.1/own", "user", "secret");
    return reopen();
}

HWND FtpTest::reopen() {
    frmUpload::open(main(), 0, HonestSession);
    return ftpWindow();
}

HWND FtpTest::openScripted(const std::string& behaviour) {
    if (ftpWindow()) ::SendMessageA(ftpWindow(), WM_COMMAND, IDCANCEL, 0);
    ftp::Apply(ftp::RemoveSite(ftp::ReadSections(), 0));
    AddSite("127.0.0.1", behaviour, "pw");
    frmUpload::open(main(), 0, ScriptedSession);
    return ftpWindow();
}

std::string FtpTest::saidToDrop(std::vector<std::string> files, const std::string& title) {
    const auto drop = [&] {
        win::SendDropped(control(lstRemoteFiles), files);
        win::RunPending();
    };
    return said(drop, title);
}

std::string FtpTest::say(const std::string& line, int item, const std::vector<User::Act>& acts) {
    const auto choose = [&] {
        ASSERT_TRUE(select(line)) << line << " in " << lines();
        ::SendMessageA(ftpWindow(), WM_COMMAND, static_cast<WPARAM>(item), 0);
    };
    return heard(choose, acts);
}

void FtpTest::savePage(const std::string& name, const std::string& text) {
    newPage(text);
    writeFile(scratch(name), text);
    active().setTag(scratch(name));
}

std::string FtpTest::lines() {
    std::string all;
    const HWND list = control(lstRemoteFiles);
    const auto count = static_cast<WPARAM>(::SendMessageA(list, LB_GETCOUNT, 0, 0));
    for (WPARAM i = 0; i < count; ++i)
        all.append(all.empty() ? "" : ",").append(win::ListRow(list, static_cast<LRESULT>(i)));
    return all;
}

bool FtpTest::select(const std::string& line) {
    const HWND list = control(lstRemoteFiles);
    if (!list) return false;
    const LRESULT index = ::SendMessageW(list, LB_FINDSTRINGEXACT, static_cast<WPARAM>(-1),
                                         reinterpret_cast<LPARAM>(win::ToWide(line).c_str()));
    if (index != LB_ERR) ::SendMessageA(list, LB_SETCURSEL, static_cast<WPARAM>(index), 0);
    return index != LB_ERR;
}

void FtpTest::doubleClick(const std::string& line) {
    ASSERT_TRUE(select(line)) << line << " in " << lines();
    Notify(control(lstRemoteFiles), LBN_DBLCLK);
}
