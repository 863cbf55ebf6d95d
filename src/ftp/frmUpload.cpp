#include "ftp/frmUpload.h"

#include <exception>
#include <utility>

#include "forms/frmUpload.h"
#include "ftp/core/remote_listing.h"
#include "ftp/core/remote_path.h"
#include "ftp/core/scramble.h"
#include "ftp/core/site_url.h"
#include "ftp/frmConnect.h"
#include "ftp/remote_commands.h"
#include "ftp/site_store.h"
#include "ftp/uploads.h"
#include "win/drop_target.h"
#include "win/message_box.h"
#include "win/modWndPos.h"
#include "win/picture.h"

namespace {

constexpr UINT kLoad = WM_APP;
constexpr UINT kUpload = WM_APP + 1;  // what was dropped before
// How long, in milliseconds, a closed window lets the server finish what it is at: long enough for a page.
constexpr DWORD kPatience = 1000;

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
    form_.showResult(status);
    win::RunPending();
}

frmUpload::Busy::~Busy() {
    // What was clicked and typed meanwhile still finds the window at work, and comes to nothing.
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
    // As a message, because the object lasts as long as one of its handlers runs.
    ::SendMessageA(form->hwnd(), kLoad, 0, 0);
}

frmUpload::frmUpload(MainWindow& main, int siteIndex, HWND connecting, ftp::SessionMaker makeSession)
    : Dialog("frmUpload"),
      main_(main),
      siteIndex_(siteIndex),
      connecting_(connecting),
      session_(makeSession()) {}

frmUpload::~frmUpload() {
    ftp::Wipe(password_);
}

bool frmUpload::onInit() {
    lstRemoteFiles_.attach(item(lstRemoteFiles));
    txtPassword_.attach(item(txtPassword));
    showPictures();
    ::CheckRadioButton(hwnd(), upType, upType + 2, upType + 2);
    showIdle();
    // Until it is shown the keyboard stays with the connecting window, where Esc gives up.
    return false;
}

void frmUpload::showPictures() {
    icon_ = win::SmallIcon("ftp");
    ::SendMessageA(hwnd(), WM_SETICON, ICON_SMALL, reinterpret_cast<LPARAM>(icon_.get()));
    for (std::size_t i = 0; i < pictures_.size(); ++i) {
        pictures_[i] = win::IconBeforeText(kPictures[i].icon);
        ::SendMessageA(item(kPictures[i].button), BM_SETIMAGE, IMAGE_ICON,
                       reinterpret_cast<LPARAM>(pictures_[i].get()));
    }
}

void frmUpload::onClosing() {
    unloadConnect();
    if (busy_ > 0) {
        session_->giveUp(kPatience);
    } else {
        session_->close();
    }
    modWndPos::DropTopmost(hwnd());
    ::SetFocus(main_.mainHwnd());
}

void frmUpload::load() {
    openSite();
    if (!hwnd()) return;
    win::RunPending();
    if (!hwnd()) return;
    notConnected = !session_->isConnected();
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
        site_ = site->url;
        user_ = site->name;
        ReadPassword(site->storedPassword);
    } catch (const std::exception&) {
        noInfoNeeded = true;
        unloadConnect();
        say("Preset FTP settings not retrieved.\r\nMay need to set them from ADD A SITE menu.",
            "NO SITE LOADED");
        return;
    }
    if (password_.empty()) {
        unloadConnect();
        txtPassword_.showHint();
    } else {
        Connect();
    }
}

void frmUpload::ReadPassword(const std::string& stored) {
    password_ = ftp::ScramblePassword(stored);
}

void frmUpload::cmdPassword_Click() {
    password_ = txtPassword_.typed();
    if (password_.empty()) {
        say("Must enter PASSWORD to use FTP.", "NO PASSWORD GIVEN");
        if (hwnd()) focusItem(txtPassword);
        return;
    }
    txtPassword_.clear();
    const Busy busy(*this, ("Connecting to " + site_).c_str());
    if (isThere()) Connect();
}

void frmUpload::Connect() {
    const Busy busy(*this);
    if (!session_->dial() && isThere()) {
        unloadConnect();
        ::ShowWindow(hwnd(), SW_HIDE);
        say("Could not connect to the internet through AutoDial.\r\n"
            "Connect to Internet before attempting to use FTP.",
            "NOT CONNECTED", MB_ICONINFORMATION);
    }
    if (isThere() && openSession() && isThere()) startInSiteDirectory();
    ftp::Wipe(password_);
}

bool frmUpload::openSession() {
    if (!session_->open()) {
        endAttempt("Cannot obtain internet handle...");
    } else if (!session_->connect(ftp::SplitSiteUrl(site_).host, user_, password_)) {
        endAttempt(kNoConnection);
    }
    return session_->isConnected();
}

void frmUpload::endAttempt(const char* failure) {
    unloadConnect();
    if (!isThere()) return;
    session_->close();
    say(failure, "NOT CONNECTED");
    if (hwnd()) close();
}

void frmUpload::startInSiteDirectory() {
    const std::string path = ftp::SplitSiteUrl(site_).path;
    const bool refused = !path.empty() && !changeDirectory(path);
    if (refused && isThere() && session_->isConnected()) say("Cannot access Directory!", "Quillon Note:");
    if (!isThere()) return;
    root_ = session_->currentDirectory().value_or("/");
    if (!isThere()) return;
    current_ = root_;
    ListRemote();
    if (!isThere()) return;
    if (!session_->isConnected()) {
        endAttempt(kNoConnection);
        return;
    }
    unloadConnect();
    ftp::SaveLastSite(main_, siteIndex_, site_);
    if (::IsWindowVisible(hwnd())) return;
    place();
    ::ShowWindow(hwnd(), SW_SHOW);
}

void frmUpload::giveUp() {
    closeWanted_ = !connecting_;
    session_->giveUp(connecting_ ? 0 : kPatience);
    unloadConnect();
}

void frmUpload::CloseSession() {
    session_->close();
    current_.clear();
    lstRemoteFiles_.clear();
    idle_ = "NO SITE ACTIVE";
    txtPassword_.showHint();
    showIdle();
    focusItem(txtPassword);
}

bool frmUpload::change(const char* status, ftp::RemoteCommand command, const std::string& first,
                       const std::string& second) {
    const Busy busy(*this, status);
    const bool granted = isThere() && session_->tell(command, first, second);
    if (granted) ListRemote();
    return granted;
}

void frmUpload::ListRemote() {
    const Busy busy(*this, "Listing Files...");
    if (!isThere()) return;
    const std::string selected = lstRemoteFiles_.selected();
    const std::string before = current_;
    const std::optional<std::string> now = session_->currentDirectory();
    if (!isThere()) return;
    current_ = now.value_or(before);
    lstRemoteFiles_.clear();
    ftp::RemoteListing listing;
    auto entry = session_->findFirst("*");
    while (entry && listing.add(entry->name, entry->attributes)) entry = session_->findNext();
    session_->endFind();
    if (!isThere()) return;
    listLines(listing.lines());
    if (isThere() && current_ == before) lstRemoteFiles_.select(selected);
}

void frmUpload::listLines(const std::vector<std::string>& lines) {
    // A server that has stopped to answer would be waited for once an entry.
    bool probing = true;
    for (const std::string& line : lines) {
        const bool directory = probing && !ftp::IsDirectoryLine(line) && IsRemoteDirectory(line);
        if (!isThere()) return;
        probing = probing && session_->answered();
        lstRemoteFiles_.add(directory ? line + "/" : line);
        win::RunPending();
        if (!isThere()) return;
    }
}

bool frmUpload::IsRemoteDirectory(const std::string& name) {
    return changeDirectory(ftp::JoinRemote(current_, name)) && changeDirectory(current_);
}

bool frmUpload::changeDirectory(const std::string& directory) {
    return session_->tell(ftp::RemoteCommand::changeDirectory, directory);
}

std::optional<std::string> frmUpload::directoryAbove() const {
    return ftp::DirectoryAbove(current_, root_);
}

void frmUpload::showMenu(POINT at) {
    if (busy_ > 0 || !lstRemoteFiles_.findMenuPoint(at)) return;
    const win::UniqueMenu menus(::LoadMenuA(::GetModuleHandleA(nullptr), "frmUpload"));
    const int position = ftp::IsDirectoryLine(lstRemoteFiles_.selected()) ? 1 : 0;
    ::TrackPopupMenu(::GetSubMenu(menus.get(), position), TPM_RIGHTBUTTON, at.x, at.y, 0, hwnd(), nullptr);
}

ftp::TransferType frmUpload::transferType(const std::string& name) const {
    const auto mode = isChecked(upType) ? ftp::TransferMode::binary : ftp::TransferMode::automatic;
    return ftp::ChooseTransferType(mode, name);
}

int frmUpload::say(const std::string& text, const char* title, UINT style) const {
    const HWND owner = ::IsWindowVisible(hwnd()) ? hwnd() : main_.mainHwnd();
    return win::ShowMessage(owner, text, title, style);
}

void frmUpload::showResult(const std::string& text) const {
    setItemText(txtCurDir, text);
}

void frmUpload::showIdle() {
    setItemText(txtCurDir, session_->isConnected() ? current_ : idle_);
    enableControls();
}

void frmUpload::enableControls() const {
    const bool idle = busy_ == 0;
    const bool connected = session_->isConnected();
    for (const int id : kSessionControls) enableItem(id, idle && connected);
    for (const int id : kLoginControls) enableItem(id, idle && !connected);
    enableItem(cmdUpDir, idle && connected && directoryAbove());
}

void frmUpload::finishWork(HWND focus) {
    if (!hwnd()) return;
    if (closeWanted_) {
        close();
        return;
    }
    showIdle();
    // A control that was disabled has lost the keyboard.
    if (::GetActiveWindow() != hwnd() || ::GetFocus()) return;
    const int fallback = session_->isConnected() ? lstRemoteFiles : txtPassword;
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
    if (!occupied && !(session_->isConnected() && site && site->url == site_)) {
        close();
        return false;
    }
    ::SetForegroundWindow(connecting_ ? connecting_ : ::GetLastActivePopup(hwnd()));
    return true;
}

bool frmUpload::onCommand(WORD id, WORD notification) {
    if (id == txtPassword) {
        txtPassword_.onNotification(notification);
        return true;
    }
    if (busy_ > 0) {
        if (id == IDCANCEL) giveUp();
        return true;
    }
    if (id == lstRemoteFiles) {
        if (notification == LBN_DBLCLK) ftp::EnterDirectory(*this, lstRemoteFiles_.selected());
        return true;
    }
    // The Enter key: there is no default button, what it means depends on where the focus is.
    if (id == IDOK) {
        if (::GetFocus() == item(lstRemoteFiles)) {
            ftp::EnterDirectory(*this, lstRemoteFiles_.selected());
        }
        if (::GetFocus() == item(txtPassword)) cmdPassword_Click();
        return true;
    }
    if (notification != BN_CLICKED) return false;
    if (id == cmdPassword) {
        cmdPassword_Click();
    } else if (id == cmdShut) {
        CloseSession();
    } else {
        return ftp::RunCommand(*this, id, lstRemoteFiles_.selected());
    }
    return true;
}

INT_PTR frmUpload::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case kLoad:
            load();
            return TRUE;
        case win::kDropped:
            // The program that the files come from is not kept waiting for the server.
            dropped_ = *reinterpret_cast<const std::vector<std::string>*>(lParam);
            ::PostMessageA(hwnd(), kUpload, 0, 0);
            return TRUE;
        case kUpload:
            if (busy_ == 0 && session_->isConnected()) ftp::UploadDropped(*this, std::exchange(dropped_, {}));
            return TRUE;
        case WM_CONTEXTMENU:
            if (reinterpret_cast<HWND>(wParam) != item(lstRemoteFiles)) return FALSE;
            showMenu({static_cast<SHORT>(LOWORD(lParam)), static_cast<SHORT>(HIWORD(lParam))});
            return TRUE;
        case WM_SETCURSOR:
            if (busy_ == 0) return FALSE;
            ::SetCursor(::LoadCursorA(nullptr, IDC_WAIT));
            ::SetWindowLongPtrA(hwnd(), DWLP_MSGRESULT, TRUE);
            return TRUE;
        default:
            return FALSE;
    }
}
