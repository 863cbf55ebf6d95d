// The FTP window: one session with a stored site, and the directory that it shows.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "ftp/password_field.h"
#include "ftp/remote_list.h"
#include "ftp/site_session.h"
#include "ftp/transfers.h"
#include "main_window.h"
#include "win/dialog.h"
#include "win/message_loop.h"
#include "win/picture.h"
#include "win/unique.h"

class frmUpload : public win::Dialog {
 public:
    // Opens the window for the stored site at `siteIndex` and connects to it. There is one such window: one
    // that shows this site already comes to the front, another one makes room unless it is at work.
    static void open(MainWindow& main, int siteIndex, ftp::SessionMaker makeSession);

    // With both set the window is of no use.
    bool notConnected = true;   // the session could not be opened
    bool noInfoNeeded = false;  // nor does the window wait for anything from the user

    // What its commands work with.

    MainWindow& main() const { return main_; }
    // False once the window is closing. To be asked again after whatever handles messages: a message box,
    // work().
    bool isThere() const { return hwnd() && !closeWanted_; }
    int say(const std::string& text, const char* title = "Quillon", UINT style = MB_OK) const;
    // Shows the status while the request runs on the session, and returns its answer; nothing when the window
    // is closed before that.
    template <typename Request>
    auto work(const char* status, Request request) {
        const Busy busy(*this, status);
        decltype(session_.ask(request)) answer;
        if (isThere()) answer = session_.ask(std::move(request));
        if (!isThere()) answer.reset();
        return answer;
    }
    // The same for a request that changes the directory. When it succeeds, lists the directory anew and
    // returns true.
    template <typename Request>
    bool change(const char* status, Request request) {
        const Busy busy(*this, status);
        const bool granted = isThere() && session_.ask(std::move(request)).value_or(false);
        if (granted && isThere()) ListRemote();
        return granted;
    }
    // Sends files into the current directory; nothing when the window is closed before the end.
    std::optional<ftp::Unsent> send(std::vector<ftp::LocalFile> files);
    void ListRemote();
    const ftp::SiteSession& session() const { return session_; }
    ftp::TransferMode transferMode() const;
    void select(const std::string& name) { lstRemoteFiles_.select(name); }
    // In txtCurDir, until the next work.
    void showResult(const std::string& text);

    // The window while it works: its controls are disabled, the pointer is an hourglass, and closing waits a
    // moment for the end of the work. The other windows can be used, so anything can happen meanwhile.
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

 private:
    frmUpload(MainWindow& main, int siteIndex, HWND connecting, ftp::SessionMaker makeSession);

    bool onInit() override;
    bool onCommand(WORD id, WORD notification) override;
    INT_PTR onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void onClosing() override;
    void showPictures();
    void onButton(WORD id);

    void load();
    void openSite();
    void cmdPassword_Click();
    void Connect();
    void endAttempt(const char* failure);
    void startInSiteDirectory();
    // The user has closed this window, or the connecting one, while the session works.
    void closeDuringWork();
    // Asks the user, if something is being sent, whether to break that off. If not, `otherwise` follows the
    // work.
    enum class AtEnd { stay, close, closeProgram };
    bool mayBreakOff(AtEnd otherwise);
    void giveUp();
    void CloseSession();
    // Whether this window stays when a site is to be opened: it shows the site already, or it is busy.
    bool comeForward(int siteIndex);

    void showMenu(POINT at);
    void showIdle();
    void enableControls() const;
    void finishWork(HWND focus);
    void unloadConnect();
    void place() const;

    MainWindow& main_;
    int siteIndex_;
    HWND connecting_;
    ftp::SiteSession session_;
    ftp::RemoteList lstRemoteFiles_;
    ftp::PasswordField txtPassword_;
    win::UniqueIcon icon_;
    std::vector<win::UniqueImageList> pictures_;
    std::vector<ftp::LocalFile> dropped_;
    const char* idle_ = "NOT CONNECTED";  // what txtCurDir says without a session
    std::string result_;                  // what it says instead
    int busy_ = 0;
    std::string sending_;  // what is on its way to the server
    bool asking_ = false;  // whether to break that off
    bool closeWanted_ = false;
    AtEnd atEnd_ = AtEnd::stay;  // of the work, if it is not broken off
};
