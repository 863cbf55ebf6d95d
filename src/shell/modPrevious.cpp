#include "shell/modPrevious.h"

#include <algorithm>
#include <iterator>
#include <utility>
#include <vector>

#include "shell/core/wildcard.h"
#include "win/message_box.h"
#include "win/message_loop.h"
#include "win/unicode.h"

namespace modPrevious {
namespace {

constexpr DWORD kReadyWait = 5000;   // milliseconds for the running instance to be there and to take input
constexpr DWORD kKeyWait = 10000;    // for its answer to a key
constexpr DWORD kTurnWait = 120000;  // for other starts that hand their files over
constexpr DWORD kInterval = 20;
constexpr std::size_t kMostText = 4096;
constexpr std::size_t kChunk = 16;  // characters typed at once

std::string TitleOf(HWND window) {
    wchar_t title[255];
    const int length = ::GetWindowTextW(window, title, static_cast<int>(std::size(title)));
    return win::ToUtf8({title, static_cast<std::size_t>(length)});
}

std::string ClassOf(HWND window) {
    wchar_t name[255];
    const int length = ::GetClassNameW(window, name, static_cast<int>(std::size(name)));
    return win::ToUtf8({name, static_cast<std::size_t>(length)});
}

// By its class as well, because an Explorer window may have such a title too.
HWND FindMain() {
    return FindWindowLike("*Quillon*", "frmNotePad");
}

template <typename Condition>
bool WaitUntil(const Condition& holds, DWORD wait = kKeyWait) {
    const DWORD start = ::GetTickCount();
    while (!holds()) {
        if (::GetTickCount() - start >= wait) return false;
        ::Sleep(kInterval);
    }
    return true;
}

void Send(std::vector<INPUT>& keys) {
    ::SendInput(static_cast<UINT>(keys.size()), keys.data(), sizeof(INPUT));
    win::RunPending();
}

void PressKey(WORD virtualKey) {
    std::vector<INPUT> keys(2);
    for (INPUT& key : keys) {
        key.type = INPUT_KEYBOARD;
        key.ki.wVk = virtualKey;
        key.ki.wScan = static_cast<WORD>(::MapVirtualKeyW(virtualKey, 0));
    }
    keys[1].ki.dwFlags = KEYEVENTF_KEYUP;
    Send(keys);
}

// As characters and not as keys, so that no layout and no sign with a meaning of its own changes the text.
void TypeText(std::wstring_view text) {
    std::vector<INPUT> keys;
    for (const wchar_t c : text) {
        INPUT key{};
        key.type = INPUT_KEYBOARD;
        key.ki.wScan = c;
        key.ki.dwFlags = KEYEVENTF_UNICODE;
        keys.push_back(key);
        key.ki.dwFlags |= KEYEVENTF_KEYUP;
        keys.push_back(key);
    }
    Send(keys);
}

// With one of them held down, F3 is another key.
bool ModifiersAreUp() {
    for (const int key : {VK_SHIFT, VK_CONTROL, VK_MENU, VK_LWIN, VK_RWIN}) {
        if (::GetAsyncKeyState(key) < 0) return false;
    }
    return true;
}

std::vector<HWND> DialogsOf(HWND main) {
    std::vector<HWND> dialogs;
    HWND dialog = nullptr;
    while ((dialog = ::FindWindowExW(nullptr, dialog, L"#32770", nullptr))) {
        if (::GetWindow(dialog, GW_OWNER) == main) dialogs.push_back(dialog);
    }
    return dialogs;
}

// The open dialog of the running instance, and its box for the file's name.
struct OpenDialog {
    HWND window = nullptr;
    HWND edit = nullptr;

    bool isInFront() const {
        GUITHREADINFO info{};
        info.cbSize = sizeof info;
        return window && ::GetForegroundWindow() == window &&
               ::GetGUIThreadInfo(::GetWindowThreadProcessId(window, nullptr), &info) &&
               info.hwndFocus == edit;
    }
    std::wstring text() const {
        std::wstring text(kMostText, L'\0');
        DWORD_PTR length = 0;
        ::SendMessageTimeoutW(edit, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()),
                              SMTO_ABORTIFHUNG, kKeyWait, &length);
        text.resize(std::min<std::size_t>(length, text.size()));
        return text;
    }
};

// A dialog of the main window's that was not there before, is in front and has the focus in an edit box. It
// is modal, unlike Find and Replace: the main window is disabled.
OpenDialog NewDialog(HWND main, const std::vector<HWND>& before) {
    const HWND front = ::GetForegroundWindow();
    const std::vector<HWND> now = DialogsOf(main);
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    const bool isNew = std::find(now.begin(), now.end(), front) != now.end() &&
                       std::find(before.begin(), before.end(), front) == before.end();
    if (!isNew || ::IsWindowEnabled(main)) return {};
    if (!::GetGUIThreadInfo(::GetWindowThreadProcessId(front, nullptr), &info)) return {};
    if (!info.hwndFocus || ClassOf(info.hwndFocus).find("Edit") == std::string::npos) return {};
    return {front, info.hwndFocus};
}

OpenDialog CallOpenDialog(HWND main) {
    const std::vector<HWND> before = DialogsOf(main);
    if (!WaitUntil(ModifiersAreUp) || ::GetForegroundWindow() != main || !::IsWindowEnabled(main)) return {};
    PressKey(VK_F3);
    OpenDialog dialog;
    WaitUntil([&] { return (dialog = NewDialog(main, before)).window != nullptr; });
    return dialog;
}

// Types in pieces, each only while the dialog has the focus: the user may be typing as well.
bool TypeInto(const OpenDialog& dialog, std::wstring_view path) {
    std::wstring_view typed;
    while (typed.size() < path.size()) {
        if (!dialog.isInFront()) return false;
        const std::size_t from = typed.size();
        typed = path.substr(0, from + kChunk);
        // Never half of a character.
        if (win::IsHighSurrogate(typed.back())) typed = path.substr(0, typed.size() + 1);
        TypeText(typed.substr(from));
        // The system may complete what is typed; the completion is selected, and goes with the next key.
        if (!WaitUntil([&] { return dialog.text().starts_with(typed) || !dialog.isInFront(); })) return false;
    }
    if (!dialog.isInFront()) return false;
    if (dialog.text() != path) PressKey(VK_DELETE);
    return WaitUntil([&] { return dialog.text() == path || !dialog.isInFront(); }) && dialog.isInFront();
}

bool OpenInOther(HWND main, const std::string& path) {
    const OpenDialog dialog = CallOpenDialog(main);
    if (!dialog.window) return false;
    if (!TypeInto(dialog, win::ToWide(path))) {
        if (dialog.isInFront()) PressKey(VK_ESCAPE);
        return false;
    }
    PressKey(VK_RETURN);
    // The next start waits for its turn until this dialog is no longer there to be typed into.
    WaitUntil([&] { return !::IsWindow(dialog.window) || !dialog.isInFront(); });
    return true;
}

// One start at a time: two that type at once would mix their paths.
class Turn {
 public:
    Turn() : mutex_(::CreateMutexW(nullptr, FALSE, L"Quillon.HandOver")) {
        const DWORD result = ::WaitForSingleObject(mutex_.get(), kTurnWait);
        isMine_ = result == WAIT_OBJECT_0 || result == WAIT_ABANDONED;
    }
    ~Turn() {
        if (isMine_) ::ReleaseMutex(mutex_.get());
    }
    Turn(const Turn&) = delete;
    Turn& operator=(const Turn&) = delete;
    bool isMine() const { return isMine_; }

 private:
    win::UniqueHandle mutex_;
    bool isMine_ = false;
};

enum class Outcome { done, failed, isFirst };

// Waits for a main window that is not there yet, or is disabled by a dialog.
Outcome Transfer(InstanceMark& mark, const std::string& path) {
    const Turn turn;
    HWND main = nullptr;
    bool shown = false;
    const bool ready = turn.isMine() && WaitUntil(
                                            [&] {
                                                if (mark.isFirst()) return true;
                                                main = FindMain();
                                                if (!main || !::IsWindowVisible(main)) return false;
                                                if (!std::exchange(shown, true)) ActivateWindow(main);
                                                return path.empty() || ::IsWindowEnabled(main) != FALSE;
                                            },
                                            kReadyWait);
    if (mark.isFirst()) return Outcome::isFirst;
    if (path.empty()) return Outcome::done;
    if (!ready) return Outcome::failed;
    ActivateWindow(main);
    const bool inFront = WaitUntil([main] { return ::GetForegroundWindow() == main; });
    return inFront && OpenInOther(main, path) ? Outcome::done : Outcome::failed;
}

}  // namespace

InstanceMark::InstanceMark() : mutex_(::CreateMutexW(nullptr, FALSE, L"Quillon.Instance")) {}

InstanceMark::~InstanceMark() {
    if (first_) ::ReleaseMutex(mutex_.get());
}

bool InstanceMark::isFirst() {
    if (first_) return true;
    const DWORD result = ::WaitForSingleObject(mutex_.get(), 0);
    first_ = result == WAIT_OBJECT_0 || result == WAIT_ABANDONED;
    return first_;
}

HWND FindWindowLike(const std::string& titlePattern, const std::string& classPattern, HWND start) {
    HWND window = ::GetWindow(start ? start : ::GetDesktopWindow(), GW_CHILD);
    while (window && !(shell::MatchesWildcard(TitleOf(window), titlePattern) &&
                       shell::MatchesWildcard(ClassOf(window), classPattern))) {
        window = ::GetWindow(window, GW_HWNDNEXT);
    }
    return window;
}

bool ActivateWindow(HWND window) {
    const HWND front = ::GetForegroundWindow();
    if (window == front && !::IsIconic(window)) return true;
    const DWORD frontThread = ::GetWindowThreadProcessId(front, nullptr);
    const DWORD thread = ::GetWindowThreadProcessId(window, nullptr);
    // The system lets only the thread that has the foreground give it away.
    const bool attach = frontThread != thread;
    if (attach) ::AttachThreadInput(frontThread, thread, TRUE);
    const bool done = ::SetForegroundWindow(window) != FALSE;
    if (attach) ::AttachThreadInput(frontThread, thread, FALSE);
    ::ShowWindow(window, ::IsIconic(window) ? SW_RESTORE : SW_SHOW);
    return done;
}

bool HandOver(InstanceMark& mark, const std::string& path) {
    const Outcome outcome = Transfer(mark, path);
    if (outcome == Outcome::failed) {
        win::ShowMessage(nullptr,
                         path +
                             "\r\nwas not opened: the Quillon that is running could not take it.\r\n\r\n"
                             "Close any dialog or message there, then open the file with F3.",
                         "Quillon", MB_ICONEXCLAMATION | MB_SETFOREGROUND);
    }
    return outcome != Outcome::isFirst;
}

}  // namespace modPrevious
