// choose MENU ITEM...: chooses an item of the running editor's menu by its captions ("Options" "Templates"
// "Add  Current Page"); the FTP site that is listed first is "Upload" "". choose BUTTON: clicks the button
// with this text in any of its windows. Ends with 1 when there is no such thing within ten seconds.
// scripts/screenshots works with it.
#include <string>

#include "shell/menu_table.h"

namespace {

std::string TextOf(HWND window) {
    char text[256] = "";
    ::GetWindowTextA(window, text, sizeof text);
    return text;
}

HWND Editor() {
    HWND window = nullptr;
    while ((window = ::FindWindowExA(nullptr, window, "frmNotePad", nullptr)) != nullptr) {
        if (::IsWindowVisible(window)) return window;
    }
    return nullptr;
}

// The captions come from the program's own table: a menu cannot be read from another process everywhere.
int Find(int count, char** captions) {
    int level = 0;
    for (const win::MenuRow& row : shell::kMenu) {
        if (row.level < level) return 0;
        if (row.kind == win::MenuKind::separator) continue;
        if (row.level > level || std::string(row.caption) != captions[level]) continue;
        if (++level == count) return row.id;
    }
    return 0;
}

struct Search {
    std::string text;
    HWND found = nullptr;
};

BOOL CALLBACK lookAtControl(HWND control, LPARAM param) {
    auto& search = *reinterpret_cast<Search*>(param);
    if (!::IsWindowVisible(control) || !::IsWindowEnabled(control) || TextOf(control) != search.text)
        return TRUE;
    search.found = control;
    return FALSE;
}

BOOL CALLBACK lookAtWindow(HWND window, LPARAM param) {
    if (!::IsWindowVisible(window) || !::IsWindowEnabled(window)) return TRUE;
    ::EnumChildWindows(window, lookAtControl, param);
    return !reinterpret_cast<Search*>(param)->found;
}

bool Click(HWND editor, const char* button) {
    Search search{button};
    ::EnumThreadWindows(::GetWindowThreadProcessId(editor, nullptr), lookAtWindow,
                        reinterpret_cast<LPARAM>(&search));
    return search.found && ::PostMessageA(search.found, BM_CLICK, 0, 0);
}

}  // namespace

int main(int argc, char** argv) {
    for (int tries = 0; tries < 200; ++tries) {
        const HWND editor = Editor();
        if (editor && argc == 2 && Click(editor, argv[1])) return 0;
        const int command = argc > 2 ? Find(argc - 1, argv + 1) : 0;
        if (editor && command && ::PostMessageA(editor, WM_COMMAND, static_cast<WPARAM>(command), 0))
            return 0;
        ::Sleep(50);
    }
    return 1;
}
