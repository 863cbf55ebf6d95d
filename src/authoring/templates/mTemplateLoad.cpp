#include "authoring/templates/mTemplateLoad.h"

#include <exception>

#include "authoring/templates/frmTemplatesAdd.h"
#include "authoring/templates/frmTemplatesOrg.h"
#include "authoring/templates/template_store.h"
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
    // Reading handles messages: the program may be closing.
    if (!main.mainHwnd()) return;
    if (!page) {
        win::ShowMessage(main.mainHwnd(), "Unable to open Template", "Quillon Note:");
        return;
    }
    frmChild::open(main, chosen.id, document::PageOf(*page));
    main.showLine(1);
}

// The folder may be spelt "Templates " with a trailing blank as well; both name the same one.
bool HasFile(const std::string& name) {
    return modPubFuncs::FileExists(authoring::TemplatePath(name));
}

}  // namespace

void ShowTemplateMenu(MainWindow& main) {
    const TemplateList list = authoring::ReadTemplates();
    const TemplateList shown = authoring::ShownTemplates(list, HasFile);
    for (std::size_t i = 0; i < shown.size(); ++i) {
        const auto item = static_cast<Command>(mnuOptsTempList + i);
        if (shown[i].id.empty()) {
            main.menu().hide(item);
        } else {
            main.menu().show(item, shown[i].id);
        }
    }
    if (authoring::OfferedSlots(list).empty()) {
        main.menu().hide(mnuOptsTempOrg);
        main.menu().hide(mnuOptsTempSep1);
    } else {
        main.menu().show(mnuOptsTempOrg, "Organize Templates");
        main.menu().show(mnuOptsTempSep1, "");
    }
}

void RebuildTemplateMenu(MainWindow& main) {
    authoring::WriteTemplates(authoring::RebuiltTemplates(authoring::ReadTemplates(), HasFile),
                              authoring::Moved::up);
    ShowTemplateMenu(main);
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
