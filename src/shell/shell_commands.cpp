#include "shell/shell_commands.h"

#include "document/core/page_outline.h"
#include "document/frmChild.h"
#include "settings/CRegSettings.h"
#include "shell/menu_table.h"
#include "win/error.h"
#include "win/shell_open.h"
#include "win/unicode.h"

namespace shell {
namespace {

constexpr char kOnlineHelp[] = "http://www.example.com/quillon/help.html";

}  // namespace

void OnFileNew(MainWindow& main, int) {
    const std::string type = CRegSettings().GetRegSetting("Files", "default_Open");
    frmChild::open(main, "Untitled" + std::to_string(main.nextUntitled()) + type,
                   document::NewPage(document::kPageOutline));
}

void OnFileClose(MainWindow& main, int) {
    if (const frmChild* page = main.activeDocument()) ::SendMessageW(page->hwnd(), WM_CLOSE, 0, 0);
}

void OnFileExit(MainWindow& main, int) {
    ::SendMessageW(main.mainHwnd(), WM_CLOSE, 0, 0);
}

void OnHelpOnline(MainWindow&, int) {
    win::OpenAddress(kOnlineHelp);
}

void OnToolList(MainWindow& main, int) {
    const win::UniqueMenu list(win::Check(::CreatePopupMenu()));
    for (const win::ToolButton& button : kToolbar) {
        const UINT state = main.isEnabled(button.command) ? MF_ENABLED : MF_GRAYED;
        ::AppendMenuW(list.get(), static_cast<UINT>(MF_STRING) | state, button.command,
                      win::ToWide(button.tip).c_str());
    }
    RECT area{};
    ::GetClientRect(main.mainHwnd(), &area);
    POINT corner{area.left, area.top};
    ::ClientToScreen(main.mainHwnd(), &corner);
    ::TrackPopupMenu(list.get(), 0, corner.x, corner.y, 0, main.mainHwnd(), nullptr);
}

}  // namespace shell
