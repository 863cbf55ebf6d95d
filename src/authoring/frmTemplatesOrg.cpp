#include "authoring/frmTemplatesOrg.h"

#include "authoring/mTemplateLoad.h"
#include "authoring/template_store.h"
#include "files/modPubFuncs.h"
#include "forms/frmTemplatesOrg.h"
#include "win/late_shell.h"
#include "win/message_box.h"

using authoring::TemplateList;

namespace {

enum class Deletion { done, calledOff, failed };

// Moves a file into the recycle bin. The system may ask the user over `owner` first.
Deletion DeleteToBin(HWND owner, const std::string& path) {
    // The list of paths ends with an empty one.
    const std::string list = path + '\0';
    SHFILEOPSTRUCTA operation{};
    operation.hwnd = owner;
    operation.wFunc = FO_DELETE;
    operation.pFrom = list.c_str();
    operation.fFlags = FOF_ALLOWUNDO;
    const int result = win::kFileOperation(&operation);
    if (operation.fAnyOperationsAborted || result == ERROR_CANCELLED) return Deletion::calledOff;
    return result == 0 ? Deletion::done : Deletion::failed;
}

}  // namespace

bool frmTemplatesOrg::onInit() {
    const TemplateList list = authoring::ReadTemplates();
    for (std::size_t i = 0; i < authoring::OfferedTemplates(list); ++i) {
        ::SendMessageA(item(cboTemplates), CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(list[i].id.c_str()));
    }
    // A list without a box for its text could not read so before anything is picked.
    listText_.attach(::GetWindow(item(cboTemplates), GW_CHILD));
    ::SendMessageA(listText_.hwnd(), EM_SETREADONLY, TRUE, 0);
    setItemText(cboTemplates, "Template List");
    setItemText(txtRename, "Enter Name for Template");
    addTips();
    return true;
}

void frmTemplatesOrg::addTips() {
    tips_.create(hwnd());
    tips_.add(item(optChange), "Re Names the name in Templates menu, NOT the file.");
    tips_.add(item(optChange + 1), "Deletes the entry in the Templates menu, NOT the file.");
    tips_.add(item(txtRename), "New name will appear in Template List Menu.");
}

bool frmTemplatesOrg::onCommand(WORD id, WORD notification) {
    switch (id) {
        case optChange:
        case optChange + 1:
            if (notification == BN_CLICKED) choose(id == optChange ? Mode::rename : Mode::remove);
            return true;
        case cboTemplates:
            if (notification == CBN_SELCHANGE && mode_ == Mode::rename) askName();
            return true;
        case cmdEnter:
            enter();
            return true;
        default:
            return false;
    }
}

LRESULT frmTemplatesOrg::ListText::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != WM_LBUTTONDOWN && message != WM_LBUTTONDBLCLK)
        return Control::onMessage(message, wParam, lParam);
    ::SetFocus(hwnd());
    const HWND list = ::GetParent(hwnd());
    ::SendMessageA(list, CB_SHOWDROPDOWN, ::SendMessageA(list, CB_GETDROPPEDSTATE, 0, 0) == 0, 0);
    return 0;
}

int frmTemplatesOrg::picked() const {
    return static_cast<int>(::SendMessageA(item(cboTemplates), CB_GETCURSEL, 0, 0));
}

void frmTemplatesOrg::choose(Mode mode) {
    // An option button that gets the focus by a key is clicked once more, and must be able to keep it.
    if (mode == mode_ && ::IsWindowEnabled(item(txtRename))) return;
    mode_ = mode;
    if (mode == Mode::remove) enableItem(txtRename, false);
    if (mode == Mode::rename && picked() >= 0) askName();
}

void frmTemplatesOrg::askName() const {
    enableItem(txtRename, true);
    focusItem(txtRename);
}

void frmTemplatesOrg::enter() {
    if (mode_ == Mode::none) return;
    const int slot = picked();
    if (slot < 0) {
        note("Please choose a template from the list.");
        focusItem(cboTemplates);
    } else if (mode_ == Mode::rename) {
        rename(slot);
    } else {
        remove(slot);
    }
}

void frmTemplatesOrg::rename(int slot) {
    TemplateList list = authoring::ReadTemplates();
    std::string& id = list[static_cast<std::size_t>(slot)].id;
    id = itemText(txtRename);
    if (id.empty()) {
        note("Please enter a name for the template.");
        focusItem(txtRename);
        return;
    }
    if (!authoring::WriteTemplates(list, authoring::Moved::up)) {
        note("The new name could not be stored.");
        return;
    }
    mTemplateLoad::RebuildTemplateMenu(main_);
    close();
}

void frmTemplatesOrg::remove(int slot) {
    const std::string name = authoring::ReadTemplates()[static_cast<std::size_t>(slot)].name;
    const std::string path = authoring::TemplatePath(name);
    // The shell would take a folder or wildcards in the name at their word.
    if (name.empty() || !authoring::FileNameProblem(name).empty() || !modPubFuncs::FileExists(path)) {
        note("The file of that template is no longer there.\r\nIts entry goes when the menu is next built.");
        return;
    }
    Deletion deletion{};
    {
        const authoring::WritableFile file(path);
        deletion = DeleteToBin(hwnd(), path);
    }
    if (deletion == Deletion::done) {
        mTemplateLoad::RebuildTemplateMenu(main_);
        close();
    } else if (deletion == Deletion::failed) {
        note("The template could not be deleted.");
    }
}

void frmTemplatesOrg::note(const std::string& text) const {
    win::ShowMessage(hwnd(), text, "Quillon Note:");
}
