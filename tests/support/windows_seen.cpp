#include "support/windows_seen.h"

#include "support/wide.h"

#include <algorithm>

#include <psapi.h>
#include <winternl.h>

namespace seen {
namespace {

BOOL CALLBACK Collect(HWND window, LPARAM list) {
    reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
    return TRUE;
}

HWND FirstOf(const std::vector<HWND>& windows, const std::function<bool(HWND)>& wanted) {
    const auto found = std::find_if(windows.begin(), windows.end(), wanted);
    return found == windows.end() ? nullptr : *found;
}

std::vector<HWND> WindowsOf(DWORD process) {
    std::vector<HWND> windows;
    ::EnumWindows(Collect, reinterpret_cast<LPARAM>(&windows));
    std::erase_if(windows, [process](HWND window) {
        DWORD owner = 0;
        ::GetWindowThreadProcessId(window, &owner);
        return owner != process;
    });
    return windows;
}

// Wine's GetGuiResources returns 0. The handle table that every process has is the same in Wine and Windows:
// 65,536 entries with the object, the owner's id, a number, and a type that is 0 in a free entry.
int GdiObjects(HANDLE process, DWORD id) {
    struct Entry {
        ULONG_PTR object;
        WORD owner[2];
        WORD unique;
        BYTE type, flags;
        ULONG_PTR user;
    };
    PROCESS_BASIC_INFORMATION basic{};
    ::NtQueryInformationProcess(process, ProcessBasicInformation, &basic, sizeof basic, nullptr);
    constexpr std::size_t kTable = sizeof(void*) == 4 ? 0x94 : 0xF8;
    const char* table = nullptr;
    ::ReadProcessMemory(process, reinterpret_cast<const char*>(basic.PebBaseAddress) + kTable, &table,
                        sizeof table, nullptr);
    std::vector<Entry> entries(65536);
    ::ReadProcessMemory(process, table, entries.data(), entries.size() * sizeof(Entry), nullptr);
    return static_cast<int>(std::count_if(entries.begin(), entries.end(), [id](const Entry& entry) {
        return entry.type != 0 && (entry.owner[0] == 0 || entry.owner[0] == static_cast<WORD>(id));
    }));
}

}  // namespace

Holdings HeldBy(DWORD process) {
    Holdings held;
    for (const HWND window : WindowsOf(process)) held.windows += 1 + static_cast<int>(Below(window).size());
    const HANDLE handle = ::OpenProcess(PROCESS_ALL_ACCESS, FALSE, process);
    held.gdi = GdiObjects(handle, process);
    PROCESS_MEMORY_COUNTERS memory{};
    ::GetProcessMemoryInfo(handle, &memory, sizeof memory);
    held.kilobytes = memory.PagefileUsage / 1024;
    ::CloseHandle(handle);
    return held;
}

std::string TextOf(HWND window) {
    std::wstring text(static_cast<std::size_t>(::SendMessageW(window, WM_GETTEXTLENGTH, 0, 0)) + 1, L'\0');
    const LRESULT length =
        ::SendMessageW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
    text.resize(static_cast<std::size_t>(length));
    return Narrow(text);
}

void PutText(HWND window, const std::string& text) {
    ::SendMessageW(window, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(Wide(text).c_str()));
}

std::string ClassOf(HWND window) {
    char name[256];
    return {name, static_cast<std::size_t>(::GetClassNameA(window, name, sizeof name))};
}

RECT PlaceOf(HWND window) {
    RECT place{};
    ::GetWindowRect(window, &place);
    return place;
}

COLORREF ColorAt(HWND window, int x, int y) {
    const HDC dc = ::GetDC(window);
    const COLORREF color = ::GetPixel(dc, x, y);
    ::ReleaseDC(window, dc);
    return color;
}

std::vector<HWND> TopLevel(DWORD process) {
    std::vector<HWND> windows = WindowsOf(process);
    std::erase_if(windows, [](HWND window) { return !::IsWindowVisible(window); });
    return windows;
}

std::vector<HWND> Below(HWND parent) {
    std::vector<HWND> all;
    ::EnumChildWindows(parent, Collect, reinterpret_cast<LPARAM>(&all));
    return all;
}

HWND Titled(DWORD process, const std::string& title) {
    return FirstOf(TopLevel(process), [&](HWND window) { return TextOf(window) == title; });
}

HWND Dialog(DWORD process, const std::string& title) {
    return FirstOf(TopLevel(process),
                   [&](HWND window) { return ClassOf(window) == "#32770" && TextOf(window) == title; });
}

HWND Child(HWND parent, const std::string& text, const std::string& cls) {
    return FirstOf(Below(parent), [&](HWND window) {
        return ::IsWindowVisible(window) && TextOf(window) == text && (cls.empty() || ClassOf(window) == cls);
    });
}

HWND ChildOfClass(HWND parent, const std::string& cls) {
    return FirstOf(Below(parent), [&](HWND window) {
        return ::IsWindowVisible(window) && ::lstrcmpiA(ClassOf(window).c_str(), cls.c_str()) == 0;
    });
}

std::string LabelsOf(HWND dialog) {
    std::string labels;
    for (const HWND window : Below(dialog)) {
        if (ClassOf(window) != "Static" || !::IsWindowVisible(window) || TextOf(window).empty()) continue;
        labels.append(labels.empty() ? "" : "\n").append(TextOf(window));
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

void FillIn(HWND dialog, const std::string& first, const std::string& second, const std::string& button) {
    const HWND edit = ChildOfClass(dialog, "Edit");
    PutText(edit, first);
    PutText(::GetNextDlgTabItem(dialog, edit, FALSE), second);
    ::PostMessageA(Child(dialog, button, "Button"), BM_CLICK, 0, 0);
}

HWND FileNameBox(HWND dialog) {
    const HWND combo = ::GetDlgItem(dialog, 0x47c);      // cmb13
    return combo ? combo : ::GetDlgItem(dialog, 0x480);  // edt1
}

void ChooseFile(HWND dialog, const std::string& path) {
    PutText(FileNameBox(dialog), path);
    ::PostMessageA(dialog, WM_COMMAND, IDOK, 0);
}

}  // namespace seen
