#include "authoring/mTemplateLoad.h"

#include <exception>

#include "authoring/frmTemplatesAdd.h"
#include "authoring/frmTemplatesOrg.h"
#include "authoring/template_store.h"
#include "document/frmChild.h"
#include "files/mBinOpen.h"
#include "files/modPubFuncs.h"
#include "win/message_box.h"
#include "win/message_loop.h"

namespace mTemplateLoad {
namespace {

using authoring::Template;
using authoring::TemplateList;

void Open(MainWindow& main, const Template& chosen) {
    const win::WaitCursor wait;
    const auto page = mBinOpen::ReadFileBinary(authoring::TemplatePath(chosen.name));
    // Reading lets messages through: the program may be closing.
    if (!main.mainHwnd()) return;
    if (!page) {
        win::ShowMessage(main.mainHwnd(), "Unable to open Template", "Quillon Note:");
        return;
    }
    frmChild::open(main, chosen.id, *page);
    main.showLine(1);
}

}  // namespace

void RebuildTemplateMenu(MainWindow& main) {
    // The folder may be spelt "Templates " with a trailing blank as well; both name the same one.
    const TemplateList list = authoring::RebuiltTemplates(
        authoring::ReadTemplates(),
        [](const std::string& name) { return modPubFuncs::FileExists(authoring::TemplatePath(name)); });
    ShowOrganize(main, !list.front().name.empty());
    authoring::WriteTemplates(list, authoring::Moved::up);
    ShowTemplates(main, list);
}

void ShowTemplates(MainWindow& main, const TemplateList& list) {
    for (std::size_t i = 0; i < list.size(); ++i) {
        const auto item = static_cast<Command>(mnuOptsTempList + i);
        if (list[i].id.empty()) {
            main.menu().hide(item);
        } else {
            main.menu().show(item, list[i].id);
        }
    }
}

void ShowOrganize(MainWindow& main, bool shown) {
    if (shown) {
        main.menu().show(mnuOptsTempOrg, "Organize Templates");
        main.menu().show(mnuOptsTempSep1, "");
    } else {
        main.menu().hide(mnuOptsTempOrg);
        main.menu().hide(mnuOptsTempSep1);
    }
}

void OnTemplateAdd(MainWindow& main, int) {
    if (main.activeDocument()) frmTemplatesAdd(main).showModal(main.mainHwnd());
}

void OnTemplateOrganize(MainWindow& main, int) {
    frmTemplatesOrg(main).showModal(main.mainHwnd());
}

void OnTemplateOpen(MainWindow& main, int index) {
    try {
        Open(main, authoring::ReadTemplates()[static_cast<std::size_t>(index)]);
    } catch (const std::exception&) {
        win::ShowMessage(main.mainHwnd(), "Error with Template List", "Quillon Note:");
    }
}

}  // namespace mTemplateLoad
