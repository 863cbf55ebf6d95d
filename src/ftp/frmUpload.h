// The FTP window: one session with a stored site, and the directory that it shows.
#pragma once

#include <memory>
#include <string>

#include "ftp/ftp_session.h"
#include "ftp/remote_list.h"
#include "main_window.h"
#include "win/dialog.h"
#include "win/drop_target.h"

class frmUpload : public win::Dialog {
 public:
    // Opens the window for the stored site at `siteIndex` and connects to it. There is one such window: one
    // that shows this site comes to the front, another one makes room unless it is at work.
    static void open(MainWindow& main, int siteIndex, ftp::SessionMaker makeSession);

    // Both set: there is nothing that the window could be good for.
    bool notConnected = true;   // the session could not be opened
    bool noInfoNeeded = false;  // nor does the window wait for anything from the user

 private:
    class Busy;
    class Drop;

    frmUpload(MainWindow& main, int siteIndex, HWND connecting, ftp::SessionMaker makeSession);
    ~frmUpload() override;

    bool onInit() override;
    bool onCommand(WORD id, WORD notification) override;
    INT_PTR onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void onClosing() override;
    bool onPasswordField(WORD notification);
    bool showsHint() const;
    bool runCommand(WORD id);
    bool runMenu(WORD id, const std::string& line);
    // Whether this window is the one to stay for a site.
    bool comeForward(int siteIndex);

    void load();
    void openSite();
    void ReadPassword(const std::string& stored);
    void cmdPassword_Click();
    void Connect();
    bool openSession();
    void startInSiteDirectory();
    void CloseSession();

    void ListRemote();
    void listLines(const std::vector<std::string>& lines);
    bool IsRemoteDirectory(const std::string& name);
    void enterDirectory();
    void cmdUpDir_Click();
    void cmdMakeDir_Click();
    void showMenu(POINT at);
    void checkSize(const std::string& name);
    void download(const std::string& name);
    void renameFile(const std::string& name);
    void deleteFile(const std::string& name);
    void mnuDirDelete_Click(const std::string& name);
    void removeDirectory(const std::string& name);

    void uploadDropped();
    void uploadAll(const win::DroppedFiles& files);
    bool UploadFile(const std::string& path);
    void cmdUp_Click();
    void uploadDocument(const std::string& path);

    // False once the window is going: after every message that was let through this has to be asked.
    bool isThere() const { return hwnd() && !closeWanted_; }
    ftp::TransferType transferType(const std::string& name) const;
    int say(const std::string& text, const char* title = "Quillon", UINT style = MB_OK) const;
    void showStatus(const std::string& text) const;
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
    std::unique_ptr<Drop> drop_;
    std::string site_;
    std::string user_;
    std::string password_;  // only until the server has it
    std::string root_;      // the directory that the session started in
    std::string current_;
    const char* idle_ = "NOT CONNECTED";  // what txtCurDir says without a session
    int busy_ = 0;
    bool closeWanted_ = false;
};
