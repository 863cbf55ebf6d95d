#include "authoring/find/frmFind.h"

#include "authoring/find/core/find_replace.h"
#include "document/frmChild.h"
#include "forms/frmFind.h"
#include "win/letters.h"
#include "win/message_loop.h"
#include "win/unicode.h"

namespace {

constexpr char kName[] = "frmFind";
constexpr int kDown = 1300;  // twips
constexpr char kPrompt[] = "Enter search string above...";

}  // namespace

frmFind::frmFind(MainWindow& owner)
    : PageDialog(kName, owner, kDown), mFindOriginalKid(owner.activeDocument()->hwnd()) {}

void frmFind::show(MainWindow& main) {
    if (bringForward(main.mainHwnd(), kName) || !main.activeDocument()) return;
    (new frmFind(main))->showModeless(main.mainHwnd());
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
    } catch (...) {
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

std::u16string frmFind::wanted() const {
    return win::LowerCase(win::Utf16FromUtf8(itemText(txtFind)));
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
    page.focusPage();
}

void frmFind::FindAndCount() {
    setItemText(lblResult, "\r\nSearching...");
    std::size_t found = authoring::kNotFound;
    long start = 0;
    {
        const win::WaitCursor wait;
        const frmChild* target = readyPage();
        if (!target) return;
        const std::u16string text = win::LowerCase(target->txtPad().text());
        const std::u16string wanted = this->wanted();
        start = target->txtPad().selection().start;
        found = authoring::FindFrom(text, wanted, static_cast<std::size_t>(start));
        if (found != authoring::kNotFound) {
            SelectFound(*target, found + 1, wanted.size());
            nextStart_ = authoring::NextStartAfterFind(found, wanted.size());
            showCount(authoring::CountFromFirst(text, wanted, found));
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
        const std::u16string wanted = this->wanted();
        const std::size_t found =
            authoring::FindFrom(win::LowerCase(target->txtPad().text()), wanted, nextStart_);
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
