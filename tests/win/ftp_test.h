// The FTP window over the servers that tests/ftp/servers keeps up during a test run.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "ftp/ftp_session.h"
#include "win/app_test.h"

std::unique_ptr<ftp::FtpSession> HonestSession();
std::unique_ptr<ftp::FtpSession> ScriptedSession();

inline constexpr char kFtpTitle[] = "Quillon FTP - - - - -";

class FtpTest : public AppTest {
 protected:
    void SetUp() override;

    // Stores a site at the front of the list, as the dialog would; with an empty password none is stored.
    static void addSite(const std::string& url, const std::string& name, const std::string& password);
    // Opens the FTP window for the first site on the ordinary server, with a folder of this test's own as its
    // start, or on the scripted server, where the name of the login says what happens.
    HWND openHonest(const std::vector<std::string>& files = {});
    HWND reopen();  // the first site as it is stored
    HWND openScripted(const std::string& behaviour);
    // Null when there is none.
    static HWND ftpWindow() { return window(kFtpTitle); }
    // What the scripted server was told since the test's start, a command a line.
    static std::string told() { return readFile(Environment("QUILLON_FTP_LOG")); }

    // A file of the folder that openHonest() starts in, as the server's disk has it.
    static std::string onServer(const std::string& name) {
        return Environment("QUILLON_FTP_FOLDER") + "\\own\\" + name;
    }

    static HWND control(int id) { return ::GetDlgItem(ftpWindow(), id); }
    static std::string textOf(int id) { return seen::TextOf(control(id)); }
    static void click(int id) { ::SendMessageA(control(id), BM_CLICK, 0, 0); }
    // Clicks, and gives what the message box with this title then says.
    static std::string saidToClick(int id, const std::string& title) {
        return said([id] { click(id); }, title);
    }
    // The same for files that are dropped on the list.
    static std::string saidToDrop(std::vector<std::string> files, const std::string& title);
    // Chooses a command of the list's menus for a line, and gives what the last dialog then says.
    static std::string say(const std::string& line, int item, const std::vector<User::Act>& acts);
    // A page in front that is saved under this name.
    void savePage(const std::string& name, const std::string& text);
    static std::string lines();  // of the list, separated by commas
    static bool select(const std::string& line);
    static void doubleClick(const std::string& line);
};
