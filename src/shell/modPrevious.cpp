#include "shell/modPrevious.h"

#include <vector>

#include "files/modPubFuncs.h"
#include "shell/core/wildcard.h"
#include "win/message_loop.h"
#include "win/wide_path.h"

namespace modPrevious {
namespace {

constexpr char kTitle[] = "Quillon";
constexpr DWORD kDialogPatience = 5000;  // milliseconds until the open dialog must have come
constexpr DWORD kPollInterval = 20;

std::string TitleOf(HWND window) {
    char title[255];
    return {title, static_cast<std::size_t>(::GetWindowTextA(window, title, sizeof title))};
}

std::string ClassOf(HWND window) {
    char name[255];
    return {name, static_cast<std::size_t>(::GetClassNameA(window, name, sizeof name))};
}

// As the main window's title reads also while a maximised page adds its name.
HWND FindByTitle() {
    const HWND exact = ::FindWindowA(nullptr, kTitle);
    return exact ? exact : FindWindowLike(std::string(kTitle) + "*", "*");
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
        key.ki.wScan = static_cast<WORD>(::MapVirtualKeyA(virtualKey, 0));
    }
    keys[1].ki.dwFlags = KEYEVENTF_KEYUP;
    Send(keys);
}

// As characters and not as keys, so that no layout and no sign with a meaning of its own changes the path.
void TypeText(const std::string& text) {
    std::wstring wide(text.size(), L'\0');
    wide.resize(static_cast<std::size_t>(::MultiByteToWideChar(
        CP_ACP, 0, text.data(), static_cast<int>(text.size()), wide.data(), static_cast<int>(wide.size()))));
    std::vector<INPUT> keys;
    for (const wchar_t c : wide) {
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

bool BelongsTo(HWND window, HWND main) {
    DWORD processOfWindow = 0;
    DWORD processOfMain = 0;
    ::GetWindowThreadProcessId(window, &processOfWindow);
    ::GetWindowThreadProcessId(main, &processOfMain);
    return processOfWindow == processOfMain;
}

// The edit box that has the focus in the foreground window, once that is a dialog of the running instance.
bool WaitForDialog(HWND main) {
    for (DWORD waited = 0; waited < kDialogPatience; waited += kPollInterval) {
        const HWND front = ::GetForegroundWindow();
        if (front != main && BelongsTo(front, main) && ClassOf(front) == "#32770") {
            GUITHREADINFO info{};
            info.cbSize = sizeof info;
            ::GetGUIThreadInfo(::GetWindowThreadProcessId(front, nullptr), &info);
            if (info.hwndFocus && ClassOf(info.hwndFocus).find("Edit") != std::string::npos) return true;
        }
        ::Sleep(kPollInterval);
    }
    return false;
}

// This instance's folder need not be the other's.
std::string PathForOther(const std::string& commandLine) {
    return modPubFuncs::FileExists(commandLine) ? win::FullPath(commandLine) : commandLine;
}

}  // namespace

InstanceMark::InstanceMark()
    : mutex_(::CreateMutexA(nullptr, FALSE, "Quillon.Instance")),
      first_(::GetLastError() != ERROR_ALREADY_EXISTS) {}

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

void HandOver(const std::string& commandLine) {
    ActivateWindow(FindWindowLike("*Quillon*", "*"));
    const HWND main = FindByTitle();
    ActivateWindow(main);
    win::RunPending();
    if (commandLine.empty()) return;
    PressKey(VK_F3);
    // Where no dialog came and a page has the keyboard, the path would be typed into that page.
    if (!WaitForDialog(main) && ::GetForegroundWindow() == main && ::IsWindowEnabled(main)) return;
    TypeText(PathForOther(commandLine));
    PressKey(VK_RETURN);
}

}  // namespace modPrevious
