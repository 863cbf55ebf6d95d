// The FTP window over the servers that tests/ftp/servers runs during the tests.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "ftp/ftp_session.h"
#include "win/app_test.h"

std::unique_ptr<ftp::FtpSession> HonestSession();
std::unique_ptr<ftp::FtpSession> ScriptedSession();

// Stores a site at the front of the list, as the dialog does; an empty password is not stored.
void AddSite(const std::string& url, const std::string& name, const std::string& password);

inline constexpr char kFtpTitle[] = "Quillon FTP - - - - -";

class FtpTest : public AppTest {
 protected:
    void SetUp() override;

    // Opens the FTP window for the first site on the ordinary server, in a folder of this test's own with
    // these files, or on the scripted server, which behaves as the user name of the login says.
    HWND openHonest(const std::vector<std::string>& files = {});
    HWND reopen();  // the first site as it is stored
    HWND openScripted(const std::string& behaviour);
    // Null when none is open.
    static HWND ftpWindow() { return window(kFtpTitle); }
    // What the scripted server has received since the start of the test, a command a line.
    static std::string told() { return readFile(Environment("QUILLON_FTP_LOG")); }

    // The path, on the server's disk, of a file in the folder that openHonest() starts in.
    static std::string onServer(const std::string& name) {
        return Environment("QUILLON_FTP_FOLDER") + "\\own\\" + name;
    }

    static HWND control(int id) { return ::GetDlgItem(ftpWindow(), id); }
    static std::string textOf(int id) { return seen::TextOf(control(id)); }
    static void click(int id) { ::SendMessageA(control(id), BM_CLICK, 0, 0); }
    // Clicks, and returns what the message box with this title then says.
    static std::string saidToClick(int id, const std::string& title) {
        return said([id] { click(id); }, title);
    }
    // The same after dropping files on the list.
    static std::string saidToDrop(std::vector<std::string> files, const std::string& title);
    // Chooses a command of the list's menus for a line, and returns what the last dialog then says.
    static std::string say(const std::string& line, int item, const std::vector<User::Act>& acts);
    // Opens a page that is saved under this name.
    void savePage(const std::string& name, const std::string& text);
    static std::string lines();  // the lines of the list, separated by commas
    static bool select(const std::string& line);
    static void doubleClick(const std::string& line);
};
