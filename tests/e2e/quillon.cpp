#include "e2e/quillon.h"

#include <algorithm>
#include <cstdlib>

#include <shellapi.h>

#include "shell/menu_table.h"

namespace {

std::string Environment(const char* name) {
    const char* value = std::getenv(name);
    return value ? value : "";
}

std::vector<std::string> Split(const std::string& path) {
    std::vector<std::string> parts{""};
    for (const char c : path) {
        if (c == '/') {
            parts.emplace_back();
        } else {
            parts.back() += c;
        }
    }
    return parts;
}

Command CommandOf(const std::string& path) {
    const std::vector<std::string> wanted = Split(path);
    std::vector<std::string> open;
    for (const win::MenuRow& row : shell::kMenu) {
        open.resize(row.level);
        open.emplace_back(row.caption);
        if (open == wanted) return row.id;
    }
    ADD_FAILURE() << "no menu item " << path;
    return 0;
}

void Press(WORD virtualKey, WORD unicode, bool up) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = virtualKey;
    input.ki.wScan = unicode;
    input.ki.dwFlags = (unicode ? KEYEVENTF_UNICODE : 0U) | (up ? KEYEVENTF_KEYUP : 0U);
    ::SendInput(1, &input, sizeof input);
}

void DeleteKeyTree(const std::string& path) {
    HKEY key = nullptr;
    if (::RegOpenKeyExA(HKEY_CURRENT_USER, path.c_str(), 0, KEY_ALL_ACCESS, &key) != ERROR_SUCCESS) return;
    char child[256];
    while (::RegEnumKeyA(key, 0, child, sizeof child) == ERROR_SUCCESS) DeleteKeyTree(path + "\\" + child);
    ::RegCloseKey(key);
    ::RegDeleteKeyA(HKEY_CURRENT_USER, path.c_str());
}

}  // namespace

Quillon::Quillon(const std::string& file, bool wait) {
    std::string command = "\"" + Environment("QUILLON_EXE") + "\" " + file;
    STARTUPINFOA startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process{};
    if (!::CreateProcessA(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                          &process)) {
        ADD_FAILURE() << "cannot start " << command;
        return;
    }
    ::CloseHandle(process.hThread);
    handle_ = process.hProcess;
    id_ = process.dwProcessId;
    if (!wait) return;
    const bool came = seen::Until([this] {
        for (const HWND window : seen::TopLevel(id_)) {
            if (seen::ClassOf(window) == "frmNotePad") window_ = window;
        }
        return window_ && pad() && ::IsWindowEnabled(window_);
    });
    if (!came) ADD_FAILURE() << "no page came: " << command;
}

Quillon::~Quillon() {
    if (handle_) kill();
    ::CloseHandle(handle_);
}

bool Quillon::isRunning() const {
    return ::WaitForSingleObject(handle_, 0) == WAIT_TIMEOUT;
}

bool Quillon::waitForEnd() {
    return ::WaitForSingleObject(handle_, 10000) == WAIT_OBJECT_0;
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

void Quillon::choose(const std::string& path) const {
    ::PostMessageA(window_, WM_COMMAND, CommandOf(path), 0);
}

void Quillon::bringToFront() const {
    const auto isInFront = [this] {
        DWORD owner = 0;
        ::GetWindowThreadProcessId(::GetForegroundWindow(), &owner);
        return owner == id_;
    };
    // A dialog of its own may be what has the focus.
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

HWND Quillon::waitForDialog(const std::string& title) const {
    HWND dialog = nullptr;
    if (!seen::Until([&] {
            dialog = seen::Titled(id_, title);
            return dialog && dialog != window_ && ::IsWindowEnabled(dialog);
        })) {
        ADD_FAILURE() << "no window came with the title \"" << title << '"';
    }
    return dialog;
}

HWND Quillon::waitForBox(const std::string& title) const {
    HWND dialog = nullptr;
    // The main window has the same title as many boxes.
    const bool came = seen::Until([&] {
        for (const HWND window : seen::TopLevel(id_)) {
            if (seen::ClassOf(window) == "#32770" && seen::TextOf(window) == title) dialog = window;
        }
        return dialog != nullptr;
    });
    if (!came) ADD_FAILURE() << "no box came with the title \"" << title << '"';
    return dialog;
}

std::string Quillon::answer(const std::string& title, WORD button) const {
    const HWND dialog = waitForBox(title);
    if (!dialog) return {};
    const std::string said = seen::LabelsOf(dialog);
    ::PostMessageA(dialog, WM_COMMAND, button, 0);
    seen::Until([dialog] { return !::IsWindow(dialog); });
    return said;
}

void Quillon::chooseFile(const std::string& title, const std::string& path, bool exists) const {
    const HWND dialog = waitForDialog(title);
    seen::ChooseFile(dialog, path);
    HWND question = nullptr;
    // The question has the dialog's own title.
    const auto asked = [&] {
        for (const HWND window : seen::TopLevel(id_)) {
            if (window != dialog && seen::ClassOf(window) == "#32770") question = window;
        }
        return question != nullptr;
    };
    if (exists && seen::Until(asked)) ::PostMessageA(question, WM_COMMAND, IDYES, 0);
    seen::Until([dialog] { return !::IsWindow(dialog); });
}

std::string TemplatePath(const std::string& name) {
    const std::string exe = Environment("QUILLON_EXE");
    return exe.substr(0, exe.rfind('\\')) + "\\Templates\\" + name;
}

void RemoveTemplate(const std::string& name) {
    ::SetFileAttributesA(TemplatePath(name).c_str(), FILE_ATTRIBUTE_NORMAL);
    ::DeleteFileA(TemplatePath(name).c_str());
    ::RemoveDirectoryA(TemplatePath("").c_str());
}

int EnvironmentNumber(const char* name, int otherwise) {
    const std::string text = Environment(name);
    return text.empty() ? otherwise : std::atoi(text.c_str());
}

void QuillonTest::SetUp() {
    DeleteKeyTree("Software\\VB and VBA Program Settings\\Quillon");
    DeleteKeyTree("Software\\Corvale\\Quillon");
    HKEY key = nullptr;
    ::RegCreateKeyA(HKEY_CURRENT_USER, "Software\\VB and VBA Program Settings\\Quillon\\File Count", &key);
    ::RegSetValueExA(key, "Count", 0, REG_SZ, reinterpret_cast<const BYTE*>("0"), 2);
    ::RegCloseKey(key);
    std::string folder = scratch("");
    folder.back() = '\0';
    SHFILEOPSTRUCTA operation{};
    operation.wFunc = FO_DELETE;
    operation.pFrom = folder.append(1, '\0').c_str();
    operation.fFlags = FOF_NOCONFIRMATION | FOF_SILENT | FOF_NOERRORUI;
    ::SHFileOperationA(&operation);
    ::CreateDirectoryA(folder.c_str(), nullptr);
}

std::string QuillonTest::scratch(const std::string& name) {
    return Environment("QUILLON_SCRATCH") + "\\e2e\\" + name;
}

void QuillonTest::writeFile(const std::string& path, const std::string& bytes) {
    const HANDLE file = ::CreateFileA(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    DWORD written = 0;
    ::WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
    ::CloseHandle(file);
    ASSERT_EQ(written, bytes.size()) << path;
}

std::string QuillonTest::readFile(const std::string& path) {
    const HANDLE file =
        ::CreateFileA(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                      nullptr, OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE) return "(no file)";
    std::string bytes(::GetFileSize(file, nullptr), '\0');
    DWORD read = 0;
    ::ReadFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &read, nullptr);
    ::CloseHandle(file);
    bytes.resize(read);
    return bytes;
}
