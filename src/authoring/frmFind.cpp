#include "authoring/frmFind.h"

#include <exception>

#include "authoring/code_page.h"
#include "authoring/core/find_replace.h"
#include "document/frmChild.h"
#include "forms/frmFind.h"
#include "win/message_loop.h"

namespace {

constexpr char kName[] = "frmFind";
constexpr int kDown = 1300;  // twips
constexpr char kPrompt[] = "Enter search string above...";

}  // namespace

frmFind::frmFind(MainWindow& owner)
    : PageDialog(kName, owner, kDown), mFindOriginalKid(owner.activeDocument()->hwnd()) {}

void frmFind::show(MainWindow& main) {
    if (const Dialog* open = find(main.mainHwnd(), kName)) {
        ::SetActiveWindow(open->hwnd());
    } else if (main.activeDocument()) {
        (new frmFind(main))->showModeless(main.mainHwnd());
    }
}

bool frmFind::onInit() {
    PageDialog::onInit();
    focusItem(txtFind);
    return false;
}

INT_PTR frmFind::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_ACTIVATE && LOWORD(wParam) != WA_INACTIVE) {
        focusItem(txtFind);
        return TRUE;
    }
    return PageDialog::onMessage(message, wParam, lParam);
}

bool frmFind::onCommand(WORD id, WORD notification) {
    try {
        if (id == txtFind && notification == EN_CHANGE) {
            changeText();
        } else if (id == cmdFind && notification == BN_CLICKED) {
            clickFind();
        } else if (id == cmdFindNext && notification == BN_CLICKED) {
            clickFindNext();
        } else {
            return false;
        }
    } catch (const std::exception&) {
        // A search that fails, for want of memory, just ends: it has changed nothing.
    }
    return true;
}

void frmFind::enableButtons(bool find, bool findNext) const {
    enableItem(cmdFind, find);
    enableItem(cmdFindNext, findNext);
    setDefaultButton(findNext ? cmdFindNext : cmdFind);
}

void frmFind::changeText() const {
    setItemText(lblFindPrompt, itemText(txtFind).empty() ? kPrompt : "");
    enableButtons(true, false);
    setItemText(lblResult, "");
}

void frmFind::clickFind() {
    if (!itemText(txtFind).empty()) {
        FindAndCount();
        return;
    }
    ask("You must enter text to find...", "Oreval Note:");
    if (hwnd()) focusItem(txtFind);
}

frmChild* frmFind::readyPage() const {
    bringPageToTop();
    win::RunPending();
    return page();
}

void frmFind::SelectFound(const frmChild& page, std::size_t position, std::size_t length) const {
    const auto start = static_cast<long>(position - 1);
    page.txtPad().select(start, start + static_cast<long>(length));
    page.txtPad().scrollToCaret();
    focusPage(page);
}

void frmFind::FindAndCount() {
    setItemText(lblResult, "\r\nSearching...");
    std::size_t found = authoring::kNotFound;
    long start = 0;
    {
        const win::WaitCursor wait;
        const frmChild* target = readyPage();
        if (!target) return;
        const authoring::FoldTable fold = authoring::SystemFoldTable();
        const std::string text = target->txtPad().text();
        const std::string wanted = itemText(txtFind);
        start = target->txtPad().selection().start;
        found = authoring::FindIgnoringCase(text, wanted, static_cast<std::size_t>(start), fold);
        if (found != authoring::kNotFound) {
            SelectFound(*target, found + 1, wanted.size());
            nextStart_ = authoring::NextStartAfterFind(found, wanted.size());
            showCount(authoring::CountFromFirst(text, wanted, found, fold));
            return;
        }
    }
    if (start != 0) {
        offerTop();
    } else {
        tellNotFound();
    }
}

void frmFind::showCount(std::optional<int> count) const {
    if (!count || *count > 1) {
        enableButtons(false, true);
    } else if (*count == 1) {
        enableButtons(false, false);
    }
    setItemText(lblResult, count ? std::to_string(*count) + "\r\noccurrences" : "");
}

void frmFind::tellNotFound() const {
    setItemText(lblResult, "\r\nThe highlighted text was not found");
    focusItem(txtFind);
}

void frmFind::offerTop() {
    win::RunPending();
    const int answer =
        page() ? ask("String not found.\r\nCare to search from the top of the page?", "Fennick", MB_YESNO)
               : 0;
    const frmChild* target = page();
    if (!target) return;
    if (answer == IDYES) {
        target->txtPad().select(0, 0);
        FindAndCount();
        return;
    }
    setItemText(lblResult, "");
    setItemText(txtFind, "");
    focusItem(txtFind);
}

void frmFind::clickFindNext() {
    {
        const win::WaitCursor wait;
        const frmChild* target = readyPage();
        if (!target) return;
        const std::string wanted = itemText(txtFind);
        const std::size_t found = authoring::FindIgnoringCase(target->txtPad().text(), wanted, nextStart_,
                                                              authoring::SystemFoldTable());
        if (found != authoring::kNotFound) {
            nextStart_ = authoring::NextStartAfterFindNext(found, wanted.size());
            SelectFound(*target, found + 1, wanted.size());
            return;
        }
    }
    offerTop();
}

namespace authoring {

void OnFind(MainWindow& main, int) {
    frmFind::show(main);
}

}  // namespace authoring
