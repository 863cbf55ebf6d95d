#include "support/windows_seen.h"

namespace seen {
namespace {

BOOL CALLBACK Collect(HWND window, LPARAM list) {
    reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
    return TRUE;
}

bool BelongsTo(HWND window, DWORD process) {
    DWORD owner = 0;
    ::GetWindowThreadProcessId(window, &owner);
    return owner == process;
}

}  // namespace

std::string TextOf(HWND window) {
    std::string text(static_cast<std::size_t>(::SendMessageA(window, WM_GETTEXTLENGTH, 0, 0)) + 1, '\0');
    const LRESULT length =
        ::SendMessageA(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
    text.resize(static_cast<std::size_t>(length));
    return text;
}

std::string ClassOf(HWND window) {
    char name[256];
    return {name, static_cast<std::size_t>(::GetClassNameA(window, name, sizeof name))};
}

std::vector<HWND> TopLevel(DWORD process) {
    std::vector<HWND> all;
    ::EnumWindows(Collect, reinterpret_cast<LPARAM>(&all));
    std::erase_if(
        all, [process](HWND window) { return !::IsWindowVisible(window) || !BelongsTo(window, process); });
    return all;
}

std::vector<HWND> Below(HWND parent) {
    std::vector<HWND> all;
    ::EnumChildWindows(parent, Collect, reinterpret_cast<LPARAM>(&all));
    return all;
}

HWND Titled(DWORD process, const std::string& title) {
    for (const HWND window : TopLevel(process)) {
        if (TextOf(window) == title) return window;
    }
    return nullptr;
}

HWND Dialog(DWORD process, const std::string& title) {
    for (const HWND window : TopLevel(process)) {
        if (ClassOf(window) == "#32770" && TextOf(window) == title) return window;
    }
    return nullptr;
}

HWND Child(HWND parent, const std::string& text, const std::string& cls) {
    for (const HWND window : Below(parent)) {
        if (::IsWindowVisible(window) && TextOf(window) == text && (cls.empty() || ClassOf(window) == cls)) {
            return window;
        }
    }
    return nullptr;
}

HWND ChildOfClass(HWND parent, const std::string& cls) {
    for (const HWND window : Below(parent)) {
        if (::IsWindowVisible(window) && ::lstrcmpiA(ClassOf(window).c_str(), cls.c_str()) == 0)
            return window;
    }
    return nullptr;
}

std::string LabelsOf(HWND dialog) {
    std::string labels;
    for (const HWND window : Below(dialog)) {
        if (ClassOf(window) != "Static" || !::IsWindowVisible(window)) continue;
        const std::string text = TextOf(window);
        if (text.empty()) continue;
        labels.append(labels.empty() ? "" : "\n").append(text);
    }
    return labels;
}

bool Until(const std::function<bool()>& condition, DWORD milliseconds) {
    const DWORD start = ::GetTickCount();
    while (!condition()) {
        if (::GetTickCount() - start > milliseconds) return false;
        ::Sleep(5);
    }
    return true;
}

void ChooseFile(HWND dialog, const std::string& path) {
    HWND name = ::GetDlgItem(dialog, 0x47c);        // cmb13
    if (!name) name = ::GetDlgItem(dialog, 0x480);  // edt1
    ::SendMessageA(name, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(path.c_str()));
    ::PostMessageA(dialog, WM_COMMAND, IDOK, 0);
}

}  // namespace seen
