#include "ftp/frmUpload.h"

#include <exception>
#include <memory>
#include <utility>

#include "forms/frmUpload.h"
#include "ftp/core/password.h"
#include "ftp/frmConnect.h"
#include "ftp/remote_commands.h"
#include "ftp/site_store.h"
#include "win/drop_target.h"
#include "win/message_box.h"
#include "win/modWndPos.h"
#include "win/picture.h"
#include "win/window.h"

namespace {

constexpr UINT kLoad = WM_APP;
constexpr UINT kUpload = WM_APP + 1;  // what was dropped before
// How long, in milliseconds, a window that closes waits for the server.
constexpr DWORD kTimeout = 1000;

constexpr char kNoConnection[] = "Cannot connect to FTP site...";

constexpr int kSessionControls[] = {lstRemoteFiles, cmdUp,  cmdRefresh, cmdMakeDir,
                                    cmdShut,        upType, upType + 1, upType + 2};
constexpr int kLoginControls[] = {txtPassword, cmdPassword};

struct ButtonPicture {
    int button;
    const char* icon;
};
constexpr ButtonPicture kPictures[] = {
    {cmdUp, "ftp"}, {cmdRefresh, "refresh"}, {cmdUpDir, "up"}, {cmdMakeDir, "new_folder"}};

}  // namespace

frmUpload::Busy::Busy(frmUpload& form, const char* status) : form_(form), focus_(::GetFocus()) {
    if (form_.busy_++ == 0) form_.enableControls();
    if (!status) return;
    form_.result_.clear();
    form_.setItemText(txtCurDir, status);
    win::RunPending();
}

frmUpload::Busy::~Busy() {
    // Clicks and keys from meanwhile still find the window at work, and do nothing.
    if (form_.busy_ == 1) win::RunPending();
    if (--form_.busy_ == 0) form_.finishWork(focus_);
}

void frmUpload::open(MainWindow& main, int siteIndex, ftp::SessionMaker makeSession) {
    auto* shown = static_cast<frmUpload*>(find(main.mainHwnd(), "frmUpload"));
    if (shown ? shown->comeForward(siteIndex) : find(main.mainHwnd(), "frmConnect") != nullptr) return;
    const HWND connecting = frmConnect::open(main.mainHwnd());
    win::RunPending();
    if (!::IsWindow(connecting)) return;
    auto* form = new frmUpload(main, siteIndex, connecting, makeSession);
    form->createModeless(main.mainHwnd());
    // As a message, because the object lives as long as one of its handlers runs.
    ::SendMessageW(form->hwnd(), kLoad, 0, 0);
}

frmUpload::frmUpload(MainWindow& main, int siteIndex, HWND connecting, ftp::SessionMaker makeSession)
    : Dialog("frmUpload"),
      main_(main),
      siteIndex_(siteIndex),
      connecting_(connecting),
      session_(makeSession) {}

bool frmUpload::onInit() {
    lstRemoteFiles_.attach(item(lstRemoteFiles));
    txtPassword_.attach(item(txtPassword));
    showPictures();
    ::CheckRadioButton(hwnd(), upType, upType + 2, upType + 2);
    showIdle();
    main_.askBeforeClosing([this] { return mayBreakOff(AtEnd::closeProgram); });
    // Until it is shown the keyboard stays with the connecting window, where Esc gives up.
    return false;
}

void frmUpload::showPictures() {
    icon_ = win::SmallIcon("ftp");
    ::SendMessageW(hwnd(), WM_SETICON, ICON_SMALL, reinterpret_cast<LPARAM>(icon_.get()));
    for (const auto& [button, icon] : kPictures) pictures_.push_back(win::ShowPicture(item(button), icon));
}

void frmUpload::onClosing() {
    main_.askBeforeClosing({});
    unloadConnect();
    if (busy_ > 0) {
        session_.giveUp(kTimeout);
    } else {
        session_.close();
    }
    modWndPos::DropTopmost(hwnd());
    ::SetFocus(main_.mainHwnd());
}

void frmUpload::load() {
    openSite();
    if (!hwnd()) return;
    win::RunPending();
    if (!hwnd()) return;
    notConnected = !session_.isConnected();
    if (notConnected && noInfoNeeded) {
        close();
        return;
    }
    place();
    ::ShowWindow(hwnd(), SW_SHOW);
    focusItem(notConnected ? txtPassword : lstRemoteFiles);
    win::RunPending();
}

void frmUpload::openSite() {
    try {
        const std::optional<ftp::Site> site = ftp::FindSite(ftp::ReadSections(), siteIndex_);
        noInfoNeeded = !site || !site->storedPassword.empty();
        if (!site) {
            unloadConnect();
            say("Must enter NEW FTP info before you can upload files.", "NO SITES LISTED");
            return;
        }
        session_.use(*site);
        setItemText(lblFtpSite, "Site: " + site->url);
    } catch (const std::exception&) {
        noInfoNeeded = true;
        unloadConnect();
        say("Preset FTP settings not retrieved.\r\nMay need to set them from ADD A SITE menu.",
            "NO SITE LOADED");
        return;
    }
    if (session_.hasPassword()) {
        Connect();
    } else {
        unloadConnect();
        txtPassword_.showHint();
    }
}

void frmUpload::cmdPassword_Click() {
    std::string typed = txtPassword_.typed();
    session_.setPassword(typed);
    ftp::Wipe(typed);
    if (!session_.hasPassword()) {
        say("Must enter PASSWORD to use FTP.", "NO PASSWORD GIVEN");
        if (hwnd()) focusItem(txtPassword);
        return;
    }
    txtPassword_.clear();
    const Busy busy(*this, ("Connecting to " + session_.url()).c_str());
    if (isThere()) Connect();
}

void frmUpload::Connect() {
    using Opened = ftp::SiteSession::Opened;
    const Busy busy(*this);
    if (!session_.dial() && isThere()) {
        unloadConnect();
        ::ShowWindow(hwnd(), SW_HIDE);
        say("Could not connect to the internet through AutoDial.\r\n"
            "Connect to Internet before attempting to use FTP.",
            "NOT CONNECTED", MB_ICONINFORMATION);
    }
    if (!isThere()) return;
    const Opened opened = session_.open();
    if (opened != Opened::yes) {
        endAttempt(opened == Opened::noNetworking ? "Cannot obtain internet handle..." : kNoConnection);
    } else if (isThere()) {
        startInSiteDirectory();
    }
}

void frmUpload::endAttempt(const char* failure) {
    unloadConnect();
    if (!isThere()) return;
    session_.close();
    say(failure, "NOT CONNECTED");
    if (hwnd()) close();
}

void frmUpload::startInSiteDirectory() {
    const bool entered = session_.enterStart();
    if (!entered && isThere() && session_.isConnected()) say("Cannot access Directory!", "Quillon Note:");
    if (!isThere()) return;
    ListRemote();
    if (!isThere()) return;
    if (!session_.isConnected()) {
        endAttempt(kNoConnection);
        return;
    }
    unloadConnect();
    ftp::SaveLastSite(main_, session_.url());
    if (::IsWindowVisible(hwnd())) return;
    place();
    ::ShowWindow(hwnd(), SW_SHOW);
}

void frmUpload::closeDuringWork() {
    if (mayBreakOff(AtEnd::close)) giveUp();
}

bool frmUpload::mayBreakOff(AtEnd otherwise) {
    if (sending_.empty()) return true;
    if (asking_) return false;
    asking_ = true;
    const int answer =
        say("Still sending " + sending_ + ".\r\nBreak it off? The server then has only a part.",
            "UPLOAD NOT FINISHED", MB_YESNO | MB_ICONQUESTION | MB_DEFBUTTON2);
    asking_ = false;
    if (answer != IDYES) {
        atEnd_ = otherwise;
        return false;
    }
    session_.giveUp(kTimeout);
    return true;
}

void frmUpload::giveUp() {
    closeWanted_ = !connecting_;
    session_.giveUp(connecting_ ? 0 : kTimeout);
    unloadConnect();
}

void frmUpload::CloseSession() {
    session_.close();
    lstRemoteFiles_.show({});
    idle_ = "NO SITE ACTIVE";
    txtPassword_.showHint();
    showIdle();
    focusItem(txtPassword);
}

std::optional<ftp::Unsent> frmUpload::send(std::vector<ftp::LocalFile> files) {
    struct Sending {
        std::string& what;
        ~Sending() { what.clear(); }
    } const sending{sending_};
    sending_ = files.size() == 1 ? files.front().name() : std::to_string(files.size()) + " files";
    const auto shared = std::make_shared<std::vector<ftp::LocalFile>>(std::move(files));
    return work("Uploading.....", [shared, directory = session_.directory()](ftp::FtpSession& session) {
        return ftp::Send(session, *shared, directory);
    });
}

void frmUpload::ListRemote() {
    const Busy busy(*this, "Listing Files...");
    if (!isThere()) return;
    const ftp::RemoteFile* line = lstRemoteFiles_.selected();
    const std::string selected = line ? line->name : std::string();
    const std::string before = session_.directory();
    lstRemoteFiles_.show({});
    auto files = session_.readDirectory();
    if (!isThere() || !files) return;
    lstRemoteFiles_.show(std::move(*files));
    if (session_.directory() == before) lstRemoteFiles_.select(selected);
}

void frmUpload::showMenu(POINT at) {
    if (busy_ > 0 || !lstRemoteFiles_.findMenuPoint(at)) return;
    const win::UniqueMenu menus(::LoadMenuW(::GetModuleHandleW(nullptr), L"frmUpload"));
    const int position = lstRemoteFiles_.selected()->isDirectory() ? 1 : 0;
    ::TrackPopupMenu(::GetSubMenu(menus.get(), position), TPM_RIGHTBUTTON, at.x, at.y, 0, hwnd(), nullptr);
}

ftp::TransferMode frmUpload::transferMode() const {
    return isChecked(upType) ? ftp::TransferMode::binary : ftp::TransferMode::automatic;
}

int frmUpload::say(const std::string& text, const char* title, UINT style) const {
    const HWND owner = ::IsWindowVisible(hwnd()) ? hwnd() : main_.mainHwnd();
    return win::ShowMessage(owner, text, title, style);
}

void frmUpload::showResult(const std::string& text) {
    result_ = text;
    setItemText(txtCurDir, result_);
}

void frmUpload::showIdle() {
    const std::string state = session_.isConnected() ? session_.shownDirectory() : idle_;
    setItemText(txtCurDir, result_.empty() ? state : result_);
    enableControls();
}

void frmUpload::enableControls() const {
    const bool idle = busy_ == 0;
    const bool connected = session_.isConnected();
    for (const int id : kSessionControls) enableItem(id, idle && connected);
    for (const int id : kLoginControls) enableItem(id, idle && !connected);
    enableItem(cmdUpDir, idle && connected && session_.directoryAbove());
}

void frmUpload::finishWork(HWND focus) {
    if (!hwnd()) return;
    if (closeWanted_ || atEnd_ != AtEnd::stay) {
        if (atEnd_ == AtEnd::closeProgram) ::PostMessageW(main_.mainHwnd(), WM_CLOSE, 0, 0);
        close();
        return;
    }
    showIdle();
    // A control that was disabled has lost the keyboard.
    if (::GetActiveWindow() != hwnd() || ::GetFocus()) return;
    const int fallback = session_.isConnected() ? lstRemoteFiles : txtPassword;
    ::SetFocus(::IsChild(hwnd(), focus) && ::IsWindowEnabled(focus) ? focus : item(fallback));
}

void frmUpload::unloadConnect() {
    const HWND window = std::exchange(connecting_, nullptr);
    if (window && ::IsWindow(window)) ::DestroyWindow(window);
}

void frmUpload::place() const {
    modWndPos::MakeTopmost(hwnd());
    const RECT main = modWndPos::RectInTwips(main_.mainHwnd());
    const RECT own = modWndPos::RectInTwips(hwnd());
    modWndPos::MoveTo(hwnd(), main.right - (own.right - own.left), main.top);
}

bool frmUpload::comeForward(int siteIndex) {
    const bool occupied = busy_ > 0 || !::IsWindowEnabled(hwnd());
    const std::optional<ftp::Site> site = ftp::FindSite(ftp::ReadSections(), siteIndex);
    const bool ours = site && site->url == session_.url();
    if (!occupied && !(ours && session_.isConnected() && !session_.isLost())) {
        close();
        return false;
    }
    if (ours) {
        ::SetForegroundWindow(connecting_ ? connecting_ : ::GetLastActivePopup(hwnd()));
    } else {
        win::ShowMessage(main_.mainHwnd(),
                         session_.url() + " is still busy.\r\nWait until it is done, or close its window.",
                         "Quillon Note:");
    }
    return true;
}

bool frmUpload::onCommand(WORD id, WORD notification) {
    if (id == txtPassword) {
        txtPassword_.onNotification(notification);
    } else if (busy_ > 0) {
        if (id == IDCANCEL) closeDuringWork();
    } else if (id == lstRemoteFiles) {
        if (notification == LBN_DBLCLK) ftp::EnterDirectory(*this, lstRemoteFiles_.selected());
    } else if (id == IDCANCEL || notification != BN_CLICKED) {
        return false;
    } else {
        onButton(id);
    }
    return true;
}

void frmUpload::onButton(WORD id) {
    // The Enter key: there is no default button, what it means depends on where the focus is.
    const HWND focus = id == IDOK ? ::GetFocus() : nullptr;
    if (focus && focus == item(lstRemoteFiles)) {
        ftp::EnterDirectory(*this, lstRemoteFiles_.selected());
    } else if (id == cmdPassword || (focus && focus == item(txtPassword))) {
        cmdPassword_Click();
    } else if (id == cmdShut) {
        CloseSession();
    } else {
        ftp::RunCommand(*this, id, lstRemoteFiles_.selected());
    }
}

INT_PTR frmUpload::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case kLoad:
            load();
            return TRUE;
        case win::kDropped:
            // The source program does not wait for the server, and may delete its files.
            if (!win::DroppedFiles()) return TRUE;
            dropped_ = ftp::OpenFiles(*win::DroppedFiles());
            ::PostMessageW(hwnd(), kUpload, 0, 0);
            return TRUE;
        case kUpload:
            if (busy_ == 0 && session_.isConnected()) ftp::UploadDropped(*this, std::exchange(dropped_, {}));
            dropped_.clear();
            return TRUE;
        case WM_CONTEXTMENU:
            if (reinterpret_cast<HWND>(wParam) != item(lstRemoteFiles)) return FALSE;
            showMenu(win::PointOf(lParam));
            return TRUE;
        case WM_SETCURSOR:
            if (busy_ == 0) return FALSE;
            ::SetCursor(::LoadCursorW(nullptr, IDC_WAIT));
            ::SetWindowLongPtrW(hwnd(), DWLP_MSGRESULT, TRUE);
            return TRUE;
        default:
            return FALSE;
    }
}
