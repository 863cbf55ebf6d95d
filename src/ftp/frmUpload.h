// The FTP window: one session with a stored site, and the directory that it shows.
#pragma once

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "ftp/ftp_session.h"
#include "ftp/password_field.h"
#include "ftp/remote_list.h"
#include "main_window.h"
#include "win/dialog.h"
#include "win/message_loop.h"
#include "win/unique.h"

class frmUpload : public win::Dialog {
 public:
    // Opens the window for the stored site at `siteIndex` and connects to it. There is one such window: one
    // that shows this site already comes to the front, another one makes room unless it is at work.
    static void open(MainWindow& main, int siteIndex, ftp::SessionMaker makeSession);

    // Both set: there is nothing that the window could be good for.
    bool notConnected = true;   // the session could not be opened
    bool noInfoNeeded = false;  // nor does the window wait for anything from the user

    // What its commands work with.

    MainWindow& main() const { return main_; }
    // False once the window is going. To be asked after all that lets messages through: a message box, work.
    bool isThere() const { return hwnd() && !closeWanted_; }
    int say(const std::string& text, const char* title = "Quillon", UINT style = MB_OK) const;
    // Shows the status while `request` works with the session; unless the window goes before that.
    template <typename Request>
    void work(const char* status, Request request) {
        const Busy busy(*this, status);
        if (isThere()) request(*session_);
    }
    // Tells the server what changes the directory: lists it anew and gives true when that was granted.
    bool change(const char* status, ftp::RemoteCommand command, const std::string& first,
                const std::string& second = {});
    void ListRemote();
    const std::string& currentDirectory() const { return current_; }
    std::optional<std::string> directoryAbove() const;  // nothing where the session started
    ftp::TransferType transferType(const std::string& name) const;
    void select(const std::string& line) { lstRemoteFiles_.select(line); }
    void showResult(const std::string& text) const;  // in txtCurDir

 private:
    // The window while it works: nothing in it can be clicked, the pointer shows it, and closing waits a
    // moment for the end. The other windows go on: all that a call of the session's lets through can happen.
    class Busy {
     public:
        explicit Busy(frmUpload& form, const char* status = nullptr);
        ~Busy();
        Busy(const Busy&) = delete;
        Busy& operator=(const Busy&) = delete;

     private:
        frmUpload& form_;
        HWND focus_;
        win::WaitCursor cursor_;
    };

    frmUpload(MainWindow& main, int siteIndex, HWND connecting, ftp::SessionMaker makeSession);
    ~frmUpload() override;

    bool onInit() override;
    bool onCommand(WORD id, WORD notification) override;
    INT_PTR onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void onClosing() override;
    void showPictures();

    void load();
    void openSite();
    void ReadPassword(const std::string& stored);
    void cmdPassword_Click();
    void Connect();
    bool openSession();
    void endAttempt(const char* failure);
    void startInSiteDirectory();
    // The user has closed this window, or the connecting one, while the session works.
    void giveUp();
    void CloseSession();
    // Whether this window is the one to stay for a site.
    bool comeForward(int siteIndex);

    void listLines(const std::vector<std::string>& lines);
    bool IsRemoteDirectory(const std::string& name);
    bool changeDirectory(const std::string& directory);
    void showMenu(POINT at);

    void showIdle();
    void enableControls() const;
    void finishWork(HWND focus);
    void unloadConnect();
    void place() const;

    MainWindow& main_;
    int siteIndex_;
    HWND connecting_;
    std::unique_ptr<ftp::FtpSession> session_;
    ftp::RemoteList lstRemoteFiles_;
    ftp::PasswordField txtPassword_;
    win::UniqueIcon icon_;
    std::array<win::UniqueIcon, 4> pictures_;
    std::vector<std::string> dropped_;
    std::string site_;
    std::string user_;
    std::string password_;  // only until the server has it
    std::string root_;      // the directory that the session started in
    std::string current_;
    const char* idle_ = "NOT CONNECTED";  // what txtCurDir says without a session
    int busy_ = 0;
    bool closeWanted_ = false;
};
