#include "e2e/quillon.h"

#include <cstdlib>

#include "support/wide.h"

#include <shlwapi.h>

namespace {

void Press(WORD virtualKey, WORD unicode, bool up) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = virtualKey;
    input.ki.wScan = unicode;
    input.ki.dwFlags = (unicode ? KEYEVENTF_UNICODE : 0U) | (up ? KEYEVENTF_KEYUP : 0U);
    ::SendInput(1, &input, sizeof input);
}

}  // namespace

Quillon::Quillon(const std::string& file, bool wait) {
    const std::string command = "\"" + Environment("QUILLON_EXE") + "\" " + file;
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process{};
    EXPECT_TRUE(::CreateProcessW(nullptr, Wide(command).data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                                 &startup, &process))
        << command;
    ::CloseHandle(process.hThread);
    handle_ = process.hProcess;
    id_ = process.dwProcessId;
    if (!wait) return;
    EXPECT_TRUE(seen::Until([this] {
        window_ = anyOfClass("frmNotePad");
        return window_ && pad() && ::IsWindowEnabled(window_);
    })) << "no page came: "
        << command;
}

Quillon::~Quillon() {
    kill();
    ::CloseHandle(handle_);
}

bool Quillon::isRunning() const {
    return ::WaitForSingleObject(handle_, 0) == WAIT_TIMEOUT;
}

bool Quillon::waitForEnd() {
    return ::WaitForSingleObject(handle_, 10000) == WAIT_OBJECT_0;
}

void ForgetCopies() {
    for (const auto& [copy, details] : Listing(Environment("TEMP") + "\\~qu*")) ::DeleteFileA(copy.c_str());
}

void Quillon::kill() {
    ::TerminateProcess(handle_, 1);
    ::WaitForSingleObject(handle_, 10000);
}

std::vector<HWND> Quillon::pages() const {
    std::vector<HWND> pages = seen::Below(window_);
    std::erase_if(pages, [](HWND window) { return seen::ClassOf(window) != "frmChild"; });
    return pages;
}

HWND Quillon::page() const {
    return reinterpret_cast<HWND>(
        ::SendMessageA(seen::ChildOfClass(window_, "MDIClient"), WM_MDIGETACTIVE, 0, 0));
}

bool Quillon::shows(const std::string& label) const {
    return seen::Until([&] { return seen::Child(window_, label, "Static") != nullptr; });
}

void Quillon::choose(int command) const {
    ::PostMessageA(window_, WM_COMMAND, static_cast<WPARAM>(command), 0);
}

void Quillon::bringToFront() const {
    const auto isInFront = [this] {
        DWORD owner = 0;
        ::GetWindowThreadProcessId(::GetForegroundWindow(), &owner);
        return owner == id_;
    };
    // One of the program's dialogs may have the focus.
    if (isInFront()) return;
    ::SetForegroundWindow(window_);
    seen::Until(isInFront);
}

void Quillon::typeText(const std::string& text) const {
    bringToFront();
    for (const char c : text) {
        Press(0, static_cast<unsigned char>(c), false);
        Press(0, static_cast<unsigned char>(c), true);
    }
}

void Quillon::pressKey(WORD virtualKey, bool control) const {
    bringToFront();
    if (control) Press(VK_CONTROL, 0, false);
    Press(virtualKey, 0, false);
    Press(virtualKey, 0, true);
    if (control) Press(VK_CONTROL, 0, true);
}

HWND Quillon::anyOfClass(const std::string& cls, HWND but) const {
    for (const HWND window : seen::TopLevel(id_)) {
        if (window != but && seen::ClassOf(window) == cls) return window;
    }
    return nullptr;
}

HWND Quillon::waitForDialog(const std::string& title) const {
    HWND dialog = nullptr;
    if (!seen::Until([&] { return (dialog = seen::Dialog(id_, title)) && ::IsWindowEnabled(dialog); }))
        ADD_FAILURE() << "no window came with the title \"" << title << '"';
    return dialog;
}

std::string Quillon::answer(const std::string& title, WORD button) const {
    const HWND dialog = waitForDialog(title);
    if (!dialog) return {};
    const std::string said = seen::LabelsOf(dialog);
    ::PostMessageA(dialog, WM_COMMAND, button, 0);
    seen::Until([dialog] { return !::IsWindow(dialog); });
    return said;
}

void Quillon::chooseFile(const std::string& title, const std::string& path, bool exists) const {
    const HWND dialog = waitForDialog(title);
    seen::ChooseFile(dialog, path);
    // The question has the same title as the dialog.
    if (exists && seen::Until([&] { return anyOfClass("#32770", dialog) != nullptr; }))
        ::PostMessageA(anyOfClass("#32770", dialog), WM_COMMAND, IDYES, 0);
    seen::Until([dialog] { return !::IsWindow(dialog); });
}

int EnvironmentNumber(const char* name, int otherwise) {
    const std::string text = Environment(name);
    return text.empty() ? otherwise : std::atoi(text.c_str());
}

void QuillonTest::SetUp() {
    FilesTest::SetUp();
    ::SHDeleteKeyA(HKEY_CURRENT_USER, "Software\\VB and VBA Program Settings\\Quillon");
    ::SHDeleteKeyA(HKEY_CURRENT_USER, "Software\\Corvale\\Quillon");
    ForgetCopies();
    ::SHSetValueA(HKEY_CURRENT_USER, "Software\\VB and VBA Program Settings\\Quillon\\File Count", "Count",
                  REG_SZ, "0", 2);
}
