#include "shell/commands.h"

#include <algorithm>

#include "authoring/colours/frmColors.h"
#include "authoring/find/frmFind.h"
#include "authoring/find/frmReplace.h"
#include "authoring/preview/modPreview.h"
#include "authoring/spelling/modSpell.h"
#include "authoring/tags/tag_menus.h"
#include "authoring/templates/mTemplateLoad.h"
#include "document/edit_commands.h"
#include "files/basMRU.h"
#include "files/modOpen.h"
#include "files/page_reset.h"
#include "ftp/core/site_list.h"
#include "ftp/upload_commands.h"
#include "help/frmAbout.h"
#include "help/frmHelp.h"
#include "options/option_commands.h"
#include "print/modPrint.h"
#include "shell/menu_table.h"
#include "shell/shell_commands.h"

namespace shell {
namespace {

using authoring::OnTags;
using authoring::TagMenu;

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

constexpr auto kHandlers = std::to_array<Handler>({
    One(mnuFileNew, OnFileNew),
    One(mnuFileOpen, modOpen::OnFileOpen),
    One(mnuFileClose, OnFileClose),
    One(mnuFileSave, modOpen::OnFileSave),
    One(mnuFileSaveAs, modOpen::OnFileSaveAs),
    One(mnuFilePrint, modPrint::OnFilePrint),
    Array(mnuFileMRU, 8, basMRU::OnFileMRU),
    One(mnuFileExit, OnFileExit),
    One(mnuEditCut, document::OnEditCut),
    One(mnuEditCopy, document::OnEditCopy),
    One(mnuEditPaste, document::OnEditPaste),
    One(mnuEditAll, document::OnEditAll),
    One(mnuEditClear, document::OnEditClear),
    One(mnuEditUndo, document::OnEditUndo),
    Array(mnuWind, 3, document::OnWindowState),
    Array(mnuTagsBasicList, 4, OnTags<TagMenu::Basic>),
    Array(mnuTagsBodyInc, 5, OnTags<TagMenu::BodyInc>),
    Array(mnuTagsModList, 6, OnTags<TagMenu::Mod>),
    Array(mnuTagsFontList, 5, authoring::OnTagsFont),
    One(mnuTagsImg, OnTags<TagMenu::Img>),
    One(mnuTagsHref, OnTags<TagMenu::Href>),
    Array(mnuTagsRuleList, 6, OnTags<TagMenu::Rule>),
    Array(mnuTagsAlignList, 4, OnTags<TagMenu::Align>),
    Array(mnutagsTableList, 2, OnTags<TagMenu::Table>),
    Array(mnuTagsFSetList, 4, OnTags<TagMenu::FSet>),
    Array(mnuTagsFrameList, 4, OnTags<TagMenu::Frame>),
    Array(mnuTagsFormList, 7, OnTags<TagMenu::Form>),
    Array(mnuTagsInputList, 8, OnTags<TagMenu::Input>),
    Array(mnuTagsLsList, 3, OnTags<TagMenu::Ls>),
    Array(mnuTagsOlList, 5, OnTags<TagMenu::Ol>),
    One(mnutagsDLs, OnTags<TagMenu::DLs>),
    Array(mnuTagsSpecialChar, 7, OnTags<TagMenu::Special>),
    One(mnuTagsDate, authoring::OnTagsDate),
    Array(mnuScriptTags, 6, authoring::OnScriptTags),
    Array(mnuScriptDrops, 4, authoring::OnScriptDrops),
    One(mnuUploadFile, ftp::OnUploadFile),
    Array(mnuUploadSites, ftp::kMaxMenuItems, ftp::OnUploadSites),
    One(mnuUploadSite, ftp::OnUploadSite),
    Array(mnuOptDefOpenList, 4, options::OnDefaultOpen),
    Array(mnuOptDefSaveList, 4, options::OnDefaultSave),
    One(mnuOptsTempAdd, mTemplateLoad::OnTemplateAdd),
    One(mnuOptsTempOrg, mTemplateLoad::OnTemplateOrganize),
    Array(mnuOptsTempList, 9, mTemplateLoad::OnTemplateOpen),
    Array(mnuOptTabsList, 6, options::OnTabLength),
    One(mnuOptWW, options::OnWordWrap),
    One(mnuOptFont, options::OnFonts),
    One(mnuHelpCont, help::OnHelpContents),
    One(mnuHelpAbout, help::OnHelpAbout),
    One(mnuHelpOnline, OnHelpOnline),
    One(tbrFind, authoring::OnFind),
    One(tbrReplace, authoring::OnReplace),
    One(tbrReset, files::OnReset),
    One(tbrPreview, modPreview::OnPreview),
    One(tbrSpelling, modSpell::OnSpelling),
    One(tbrColor, authoring::OnColor),
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
static_assert(std::ranges::all_of(kToolbar,
                                  [](const win::ToolButton& button) { return Find(button.command); }),
              "every toolbar button is in the table of handlers");

}  // namespace

void Run(MainWindow& main, Command command) {
    const Handler* handler = Find(command);
    if (handler) handler->run(main, command - handler->first);
}

}  // namespace shell
