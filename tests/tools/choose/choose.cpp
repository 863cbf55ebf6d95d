// choose MENU ITEM...: chooses an item of the running editor's menu by its captions ("Options" "Templates"
// "Add  Current Page"). "" is the first item that the program shows only at times: the latest FTP site
// ("Upload" ""), "Organize Templates" ("Options" "Templates" ""). choose BUTTON: clicks the button with this
// text in any of its windows, or of its toolbar. Ends with 1 when there is no such thing within ten seconds.
// scripts/screenshots works with it.
#include "shell/menu_table.h"
#include "support/windows_seen.h"

namespace {

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

bool Click(HWND editor, DWORD process, const char* text) {
    for (const HWND window : seen::TopLevel(process)) {
        const HWND button = ::IsWindowEnabled(window) ? seen::Child(window, text) : nullptr;
        if (button && ::IsWindowEnabled(button)) return ::PostMessageA(button, BM_CLICK, 0, 0);
    }
    // A button of the toolbar is no window.
    for (std::size_t i = 0; i < kToolbar.size(); ++i) {
        if (std::string(kToolbar[i].tip) == text)
            return ::PostMessageA(editor, WM_COMMAND, tbrPicture1 + i, 0);
    }
    return false;
}

}  // namespace

int main(int argc, char** argv) {
    const bool done =
        argc > 1 && seen::Until([&] {
            const HWND editor = ::FindWindowA("frmNotePad", nullptr);
            DWORD process = 0;
            ::GetWindowThreadProcessId(editor, &process);
            if (!::IsWindowVisible(editor)) return false;
            if (argc == 2) return Click(editor, process, argv[1]);
            const int command = Find(argc - 1, argv + 1);
            return command && ::PostMessageA(editor, WM_COMMAND, static_cast<WPARAM>(command), 0);
        });
    return done ? 0 : 1;
}
