// "Spelling": asks about one misspelt word after the other.
#pragma once

#include <string>

#include "authoring/spelling/core/spelling_pass.h"
#include "win/dialog.h"

class frmSpelling : public win::Dialog {
 public:
    // Goes through the pass over `owner`; without a misspelt word nothing is shown. False when the user
    // stopped before the end: what was changed until then stays changed in the pass.
    static bool correct(HWND owner, authoring::SpellingPass& pass);

 private:
    explicit frmSpelling(authoring::SpellingPass& pass) : Dialog("frmSpelling"), pass_(pass) {}

    bool onInit() override;
    bool onCommand(WORD id, WORD notification) override;
    INT_PTR onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void showWord();
    void takeSuggestion() const;
    void change();
    void goOn();
    void tellFailure();

    authoring::SpellingPass& pass_;
    bool told_ = false;  // that the dictionary has failed
};
