#include "authoring/templates/frmTemplatesOrg.h"

#include <shellapi.h>

#include "authoring/templates/mTemplateLoad.h"
#include "authoring/templates/template_store.h"
#include "files/modPubFuncs.h"
#include "forms/frmTemplatesOrg.h"
#include "win/message_box.h"
#include "win/unicode.h"
#include "win/window.h"

using authoring::TemplateList;

namespace {

enum class Deletion { done, calledOff, failed };

// Moves a file into the recycle bin. The system may ask the user over `owner` first.
Deletion DeleteToBin(HWND owner, const std::string& path) {
    // The list of paths ends with an empty one.
    const std::wstring list = win::ToWide(path) + L'\0';
    SHFILEOPSTRUCTW operation{};
    operation.hwnd = owner;
    operation.wFunc = FO_DELETE;
    operation.pFrom = list.c_str();
    operation.fFlags = FOF_ALLOWUNDO;
    const int result = ::SHFileOperationW(&operation);
    if (operation.fAnyOperationsAborted || result == ERROR_CANCELLED) return Deletion::calledOff;
    return result == 0 ? Deletion::done : Deletion::failed;
}

}  // namespace

bool frmTemplatesOrg::onInit() {
    const TemplateList list = authoring::ReadTemplates();
    slots_ = authoring::OfferedSlots(list);
    for (const std::size_t slot : slots_) win::AddListRow(item(cboTemplates), list[slot].id);
    // A list without a box for its text could not read so before anything is picked.
    listText_.attach(::GetWindow(item(cboTemplates), GW_CHILD));
    ::SendMessageW(listText_.hwnd(), EM_SETREADONLY, TRUE, 0);
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
            if (notification == CBN_SELCHANGE || notification == CBN_SELENDOK) row_ = selected();
            if (notification == CBN_SELCHANGE && row_ >= 0 && mode_ == Mode::rename) askName();
            // While it drops down the list goes to the first row that reads like its text, which need not be
            // the row that was picked.
            if (notification == CBN_DROPDOWN && row_ >= 0)
                ::PostMessageW(item(cboTemplates), CB_SETCURSEL, static_cast<WPARAM>(row_), 0);
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
    ::SendMessageW(list, CB_SHOWDROPDOWN, ::SendMessageW(list, CB_GETDROPPEDSTATE, 0, 0) == 0, 0);
    return 0;
}

int frmTemplatesOrg::selected() const {
    return static_cast<int>(::SendMessageW(item(cboTemplates), CB_GETCURSEL, 0, 0));
}

void frmTemplatesOrg::choose(Mode mode) {
    // An option button that gets the focus by a key is clicked once more, and must be able to keep it.
    if (mode == mode_ && ::IsWindowEnabled(item(txtRename))) return;
    mode_ = mode;
    if (mode == Mode::remove) enableItem(txtRename, false);
    if (mode == Mode::rename && row_ >= 0) askName();
}

void frmTemplatesOrg::askName() const {
    enableItem(txtRename, true);
    focusItem(txtRename);
}

void frmTemplatesOrg::enter() {
    if (mode_ == Mode::none) return;
    // Assistive programs may pick a row without a notification from the list.
    if (row_ < 0) row_ = selected();
    if (row_ < 0) {
        note("Please choose a template from the list.");
        focusItem(cboTemplates);
        return;
    }
    const std::size_t slot = slots_[static_cast<std::size_t>(row_)];
    if (mode_ == Mode::rename) {
        rename(slot);
    } else {
        remove(slot);
    }
}

void frmTemplatesOrg::rename(std::size_t slot) {
    TemplateList list = authoring::ReadTemplates();
    list[slot].id = itemText(txtRename);
    if (list[slot].id.empty()) {
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

void frmTemplatesOrg::remove(std::size_t slot) {
    TemplateList list = authoring::ReadTemplates();
    const std::string name = list[slot].name;
    const std::string path = authoring::TemplatePath(name);
    // The shell would act on a folder or wildcards in the name.
    const bool hasFile = authoring::FileNameProblem(name).empty() && modPubFuncs::FileExists(path);
    if (hasFile && !deleteFile(path)) return;
    list[slot] = {};
    if (!authoring::WriteTemplates(list, authoring::Moved::up)) {
        note("The list of templates could not be stored.");
        return;
    }
    mTemplateLoad::RebuildTemplateMenu(main_);
    close();
}

// False when it is still there; the user has been told.
bool frmTemplatesOrg::deleteFile(const std::string& path) const {
    const authoring::WritableFile file(path);
    const Deletion deletion = DeleteToBin(hwnd(), path);
    if (deletion == Deletion::failed) note("The template could not be deleted.");
    return deletion == Deletion::done;
}

void frmTemplatesOrg::note(const std::string& text) const {
    win::ShowMessage(hwnd(), text, "Quillon Note:");
}
