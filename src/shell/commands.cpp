#include "shell/commands.h"

#include <algorithm>

#include "document/edit_commands.h"
#include "files/basMRU.h"
#include "files/modOpen.h"
#include "ftp/core/site_list.h"
#include "ftp/upload_commands.h"
#include "shell/menu_table.h"
#include "shell/shell_commands.h"

namespace shell {
namespace {

struct Handler {
    Command first;  // an item array is one row: its handler is given the index
    int last;
    void (*run)(MainWindow&, int index);
};

constexpr Handler One(Command command, void (*run)(MainWindow&, int)) {
    return {command, command, run};
}
constexpr Handler Array(Command first, int count, void (*run)(MainWindow&, int)) {
    return {first, first + count - 1, run};
}
// Shown disabled until its feature is there.
constexpr Handler NotYet(Command first, int count = 1) {
    return {first, first + count - 1, nullptr};
}

constexpr auto kHandlers = std::to_array<Handler>({
    One(mnuFileNew, OnFileNew),
    One(mnuFileOpen, modOpen::OnFileOpen),
    One(mnuFileClose, OnFileClose),
    One(mnuFileSave, modOpen::OnFileSave),
    One(mnuFileSaveAs, modOpen::OnFileSaveAs),
    NotYet(mnuFilePrint),
    Array(mnuFileMRU, 8, basMRU::OnFileMRU),
    One(mnuFileExit, OnFileExit),
    One(mnuEditCut, document::OnEditCut),
    One(mnuEditCopy, document::OnEditCopy),
    One(mnuEditPaste, document::OnEditPaste),
    One(mnuEditAll, document::OnEditAll),
    One(mnuEditClear, document::OnEditClear),
    One(mnuEditUndo, document::OnEditUndo),
    Array(mnuWind, 3, document::OnWindowState),
    NotYet(mnuTagsBasicList, 4),
    NotYet(mnuTagsBodyInc, 5),
    NotYet(mnuTagsModList, 6),
    NotYet(mnuTagsFontList, 5),
    NotYet(mnuTagsImg),
    NotYet(mnuTagsHref),
    NotYet(mnuTagsRuleList, 6),
    NotYet(mnuTagsAlignList, 4),
    NotYet(mnutagsTableList, 2),
    NotYet(mnuTagsFSetList, 4),
    NotYet(mnuTagsFrameList, 4),
    NotYet(mnuTagsFormList, 7),
    NotYet(mnuTagsInputList, 8),
    NotYet(mnuTagsLsList, 3),
    NotYet(mnuTagsOlList, 5),
    NotYet(mnutagsDLs),
    NotYet(mnuTagsSpecialChar, 7),
    NotYet(mnuTagsDate),
    NotYet(mnuScriptTags, 6),
    NotYet(mnuScriptDrops, 4),
    One(mnuUploadFile, ftp::OnUploadFile),
    Array(mnuUploadSites, ftp::kMaxMenuItems, ftp::OnUploadSites),
    One(mnuUploadSite, ftp::OnUploadSite),
    NotYet(mnuOptDefOpenList, 4),
    NotYet(mnuOptDefSaveList, 4),
    NotYet(mnuOptsTempAdd),
    NotYet(mnuOptsTempOrg),
    NotYet(mnuOptsTempList, 9),
    NotYet(mnuOptTabsList, 6),
    NotYet(mnuOptWW),
    NotYet(mnuOptFont),
    NotYet(mnuHelpCont),
    NotYet(mnuHelpAbout),
    One(mnuHelpOnline, OnHelpOnline),
    NotYet(tbrFind),
    NotYet(tbrReplace),
    NotYet(tbrReset),
    NotYet(tbrPreview),
    NotYet(tbrSpelling),
    NotYet(tbrColor),
    One(tbrList, OnToolList),
});

constexpr const Handler* Find(Command command) {
    for (const Handler& handler : kHandlers) {
        if (command >= handler.first && command <= handler.last) return &handler;
    }
    return nullptr;
}

constexpr bool IsCommand(const MenuRow& row) {
    return row.kind == MenuKind::item || row.kind == MenuKind::hidden;
}

static_assert(std::ranges::all_of(kMenu, [](const MenuRow& row) { return !IsCommand(row) || Find(row.id); }),
              "every menu item is in the table of handlers");
static_assert(std::ranges::all_of(kToolbar, [](const ToolButton& button) { return Find(button.command); }),
              "every toolbar button is in the table of handlers");

}  // namespace

void Run(MainWindow& main, Command command) {
    const Handler* handler = Find(command);
    if (handler && handler->run) handler->run(main, command - handler->first);
}

bool IsAvailable(Command command) {
    const Handler* handler = Find(command);
    return handler && handler->run;
}

}  // namespace shell
