#include "authoring/spelling/frmSpelling.h"

#include "forms/frmSpelling.h"
#include "win/message_box.h"
#include "win/unicode.h"
#include "win/window.h"

namespace {

// Posted by the dialog to itself: it can be seen by now.
constexpr UINT kShown = WM_APP;

}  // namespace

bool frmSpelling::correct(HWND owner, authoring::SpellingPass& pass) {
    if (!pass.next()) return true;
    frmSpelling form(pass);
    return form.showModal(owner) == IDOK;
}

bool frmSpelling::onInit() {
    showWord();
    ::PostMessageW(hwnd(), kShown, 0, 0);
    return false;
}

INT_PTR frmSpelling::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != kShown) return Dialog::onMessage(message, wParam, lParam);
    tellFailure();
    return TRUE;
}

bool frmSpelling::onCommand(WORD id, WORD notification) {
    switch (id) {
        case lstSuggestions:
            if (notification == LBN_SELCHANGE) takeSuggestion();
            if (notification == LBN_DBLCLK) change();
            return true;
        case cmdChange:
            change();
            return true;
        case cmdIgnore:
            goOn();
            return true;
        case cmdIgnoreAll:
            pass_.ignoreAll();
            goOn();
            return true;
        case cmdAdd:
            pass_.add();
            goOn();
            return true;
        default:
            return false;
    }
}

void frmSpelling::showWord() {
    setItemText(lblWord, win::Utf8FromUtf16(pass_.word()));
    setItemText(lblContext, win::Utf8FromUtf16(pass_.context()));
    ::SendMessageW(item(lstSuggestions), LB_RESETCONTENT, 0, 0);
    const std::vector<std::u16string> suggestions = pass_.suggestions();
    for (const std::u16string& suggestion : suggestions) {
        win::AddListRow(item(lstSuggestions), win::Utf8FromUtf16(suggestion));
    }
    ::SendMessageW(item(lstSuggestions), LB_SETCURSEL, 0, 0);
    setItemText(txtChange, win::Utf8FromUtf16(suggestions.empty() ? pass_.word() : suggestions.front()));
    focusItem(txtChange);
}

void frmSpelling::takeSuggestion() const {
    const HWND list = item(lstSuggestions);
    const LRESULT chosen = ::SendMessageW(list, LB_GETCURSEL, 0, 0);
    if (chosen != LB_ERR) setItemText(txtChange, win::ListRow(list, chosen));
}

void frmSpelling::change() {
    pass_.change(win::Utf16FromUtf8(itemText(txtChange)));
    // There is nothing left to cancel: what has been changed stays.
    setItemText(cmdCancel, "Close");
    goOn();
}

void frmSpelling::goOn() {
    const bool isMore = pass_.next();
    if (isMore) showWord();
    tellFailure();
    if (!isMore) close(IDOK);
}

void frmSpelling::tellFailure() {
    if (told_ || !pass_.hasFailed()) return;
    told_ = true;
    win::ShowMessage(hwnd(),
                     "The system's spell checker reports an error.\r\n"
                     "It may ask about words that are right, and suggest nothing.",
                     "Quillon", MB_ICONEXCLAMATION);
}
