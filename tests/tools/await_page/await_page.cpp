// await_page [SECONDS]: ends when a page stands in the editor's window and all of it is painted, with 1
// when that has not come about in time. scripts/screenshot waits with it.
#include <algorithm>
#include <cstdlib>

#include "support/windows_seen.h"

namespace {

bool IsPainted(HWND window) {
    return !::IsWindowVisible(window) || !::GetUpdateRect(window, nullptr, FALSE);
}

}  // namespace

int main(int argc, char** argv) {
    const auto stands = [] {
        const HWND editor = ::FindWindowA("frmNotePad", nullptr);
        const std::vector<HWND> controls = seen::Below(editor);
        return ::IsWindowVisible(editor) && IsPainted(editor) && seen::ChildOfClass(editor, "RICHEDIT") &&
               std::all_of(controls.begin(), controls.end(), IsPainted);
    };
    return seen::Until(stands, argc > 1 ? std::strtoul(argv[1], nullptr, 10) * 1000 : 30000) ? 0 : 1;
}
