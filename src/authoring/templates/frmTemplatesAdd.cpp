#include "authoring/templates/frmTemplatesAdd.h"

#include "authoring/templates/mTemplateLoad.h"
#include "authoring/templates/template_store.h"
#include "document/frmChild.h"
#include "files/atomic_file.h"
#include "files/modPubFuncs.h"
#include "files/page_bytes.h"
#include "forms/frmTemplatesAdd.h"
#include "win/message_box.h"
#include "win/message_loop.h"
#include "win/wide_path.h"

using authoring::TemplateList;

namespace {

std::string Problem(const TemplateList& list, const std::string& name, const std::string& id) {
    std::string problem = authoring::NewTemplateProblem(list, name, id);
    if (!problem.empty()) return problem;
    // A name that differs only in case would overwrite the file of the listed template.
    const auto* same = authoring::TemplateOfSameFile(list, name, modPubFuncs::SamePath);
    return same ? authoring::NewTemplateProblem(list, same->name, id) : problem;
}

}  // namespace

bool frmTemplatesAdd::onCommand(WORD id, WORD) {
    if (id != cmdEnter) return false;
    enter();
    return true;
}

void frmTemplatesAdd::refuse(const std::string& text, int field) const {
    win::ShowMessage(hwnd(), text, "Quillon Note:");
    focusItem(field);
}

// Writes the file first: when that fails, the list is still right.
void frmTemplatesAdd::enter() {
    const std::string name = itemText(txtFilename);
    const std::string id = itemText(txtID);
    const TemplateList list = authoring::ReadTemplates();
    if (const std::string problem = Problem(list, name, id); !problem.empty()) {
        // If the problem stays with an ID that cannot be in use, the name is at fault.
        refuse(problem, Problem(list, name, "\n") == problem ? txtFilename : txtID);
        return;
    }
    if (!writeFile(name)) {
        win::ShowMessage(hwnd(), "Could not write to the specified file at this time.", "Quillon",
                         MB_ICONEXCLAMATION);
        focusItem(txtFilename);
        return;
    }
    if (!authoring::WriteTemplates(authoring::WithTemplate(list, {name, id}), authoring::Moved::down)) {
        authoring::WriteTemplates(list, authoring::Moved::up);
        refuse("The list of templates could not be stored.\r\nThe template's file is in the folder\r\n" +
                   authoring::TemplateFolder(),
               cmdCancel);
        return;
    }
    mTemplateLoad::ShowTemplateMenu(main_);
    close();
}

bool frmTemplatesAdd::writeFile(const std::string& name) {
    const win::WaitCursor wait;
    const frmChild* page = main_.activeDocument();
    if (!page || page->txtPad().isReadOnly()) return false;
    ::CreateDirectoryW(win::WidePath(authoring::TemplateFolder()).c_str(), nullptr);
    const std::string path = authoring::TemplatePath(name);
    // A template that has dropped off the list may still have its file there.
    const authoring::WritableFile old(path);
    if (!files::ReplaceFileContents(path, files::FileOf(*page).bytes)) return false;
    authoring::SetFileReadOnly(path, true);
    return true;
}
