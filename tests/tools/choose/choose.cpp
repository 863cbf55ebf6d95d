// choose MENU ITEM...: chooses an item of the running editor's menu by its captions ("Options" "Templates"
// "Add  Current Page"). "" is the first item of those that are shown only at times: the latest FTP site
// ("Upload" ""), "Organize Templates" ("Options" "Templates" ""). choose BUTTON: clicks the button with this
// text in any of its windows, or of its toolbar. The exit code is 1 when there is none within ten seconds.
// choose: waits, for up to a minute, until the editor shows a page and its window is painted.
// For scripts/screenshot and scripts/screenshots.
#include <algorithm>

#include "shell/menu_table.h"
#include "support/windows_seen.h"

namespace {

// The captions come from the program's own table: not every system lets another process read a menu.
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

bool Click(HWND editor, DWORD process, const char* text) {
    for (const HWND window : seen::TopLevel(process)) {
        const HWND button = ::IsWindowEnabled(window) ? seen::Child(window, text) : nullptr;
        if (button && ::IsWindowEnabled(button)) return ::PostMessageA(button, BM_CLICK, 0, 0);
    }
    // The buttons of the toolbar are not windows.
    for (std::size_t i = 0; i < kToolbar.size(); ++i) {
        if (std::string(kToolbar[i].tip) == text)
            return ::PostMessageA(editor, WM_COMMAND, tbrPicture1 + i, 0);
    }
    return false;
}

bool IsPainted(HWND window) {
    return !::IsWindowVisible(window) || !::GetUpdateRect(window, nullptr, FALSE);
}

bool ShowsPage(HWND editor) {
    const std::vector<HWND> controls = seen::Below(editor);
    return ::IsWindowVisible(editor) && IsPainted(editor) && seen::ChildOfClass(editor, "RICHEDIT") &&
           std::all_of(controls.begin(), controls.end(), IsPainted);
}

}  // namespace

int main(int argc, char** argv) {
    const auto isDone = [&] {
        const HWND editor = ::FindWindowA("frmNotePad", nullptr);
        if (argc == 1) return ShowsPage(editor);
        DWORD process = 0;
        ::GetWindowThreadProcessId(editor, &process);
        if (!::IsWindowVisible(editor)) return false;
        if (argc == 2) return Click(editor, process, argv[1]);
        const int command = Find(argc - 1, argv + 1);
        return command && ::PostMessageA(editor, WM_COMMAND, static_cast<WPARAM>(command), 0);
    };
    return seen::Until(isDone, argc == 1 ? 60000 : 10000) ? 0 : 1;
}
