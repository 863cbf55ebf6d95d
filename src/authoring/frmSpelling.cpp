#include "authoring/frmSpelling.h"

#include "forms/frmSpelling.h"

bool frmSpelling::correct(HWND owner, authoring::SpellingPass& pass) {
    if (!pass.next()) return true;
    frmSpelling form(pass);
    return form.showModal(owner) == IDOK;
}

bool frmSpelling::onInit() {
    showWord();
    return false;
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
    setItemText(lblWord, pass_.word());
    setItemText(lblContext, pass_.context());
    ::SendMessageA(item(lstSuggestions), LB_RESETCONTENT, 0, 0);
    const std::vector<std::string> suggestions = pass_.suggestions();
    for (const std::string& suggestion : suggestions) {
        ::SendMessageA(item(lstSuggestions), LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(suggestion.c_str()));
    }
    ::SendMessageA(item(lstSuggestions), LB_SETCURSEL, 0, 0);
    setItemText(txtChange, suggestions.empty() ? pass_.word() : suggestions.front());
    focusItem(txtChange);
}

void frmSpelling::takeSuggestion() const {
    const HWND list = item(lstSuggestions);
    const LRESULT chosen = ::SendMessageA(list, LB_GETCURSEL, 0, 0);
    if (chosen == LB_ERR) return;
    const LRESULT length = ::SendMessageA(list, LB_GETTEXTLEN, static_cast<WPARAM>(chosen), 0);
    std::string text(static_cast<std::size_t>(length) + 1, '\0');
    ::SendMessageA(list, LB_GETTEXT, static_cast<WPARAM>(chosen), reinterpret_cast<LPARAM>(text.data()));
    setItemText(txtChange, text.c_str());
}

void frmSpelling::change() {
    pass_.change(itemText(txtChange));
    // There is nothing left to cancel: what has been changed stays.
    setItemText(cmdCancel, "Close");
    goOn();
}

void frmSpelling::goOn() {
    if (pass_.next()) {
        showWord();
    } else {
        close(IDOK);
    }
}
