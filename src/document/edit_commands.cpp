#include "document/edit_commands.h"

#include "document/frmChild.h"
#include "win/clipboard.h"
#include "win/unicode.h"

namespace document {

void InsertAtCaret(MainWindow& main, std::string_view fragment) {
    if (frmChild* page = main.activeDocument()) page->insert(win::Utf16FromUtf8(fragment));
}

void OnEditCut(MainWindow& main, int) {
    if (frmChild* page = main.activeDocument()) page->kidCut();
}

void OnEditCopy(MainWindow& main, int) {
    if (frmChild* page = main.activeDocument()) page->kidCopy();
}

void OnEditPaste(MainWindow& main, int) {
    if (frmChild* page = main.activeDocument()) page->kidPaste();
}

void OnEditAll(MainWindow& main, int) {
    if (frmChild* page = main.activeDocument()) page->selectAll();
}

void OnEditClear(MainWindow& main, int) {
    frmChild* page = main.activeDocument();
    if (!page) return;
    page->selectAll();
    page->kidDelete();
}

void OnEditUndo(MainWindow& main, int) {
    if (frmChild* page = main.activeDocument()) page->kidUndo();
}

void OnWindowState(MainWindow& main, int index) {
    frmChild* page = main.activeDocument();
    if (!page) return;
    if (index == 1) {
        ::ShowWindow(page->hwnd(), SW_MINIMIZE);
    } else {
        ::SendMessageW(main.mdiClient(), index == 2 ? WM_MDIMAXIMIZE : WM_MDIRESTORE,
                       reinterpret_cast<WPARAM>(page->hwnd()), 0);
    }
}

void UpdateEditMenu(MainWindow& main) {
    const frmChild* page = main.activeDocument();
    if (!page) return;
    win::MenuBar& menu = main.menu();
    const bool selected = page->txtPad().selection().length() > 0;
    const bool filled = page->txtPad().textLength() > 0;
    menu.enable(mnuEditCut, selected);
    menu.enable(mnuEditCopy, selected);
    menu.enable(mnuEditPaste, win::ClipboardHasText());
    menu.enable(mnuEditAll, filled);
    menu.enable(mnuEditClear, filled);
}

}  // namespace document
