// The Replace dialog.
#pragma once

#include <optional>
#include <string>

#include "authoring/page_dialog.h"

class frmReplace : public authoring::PageDialog {
 public:
    // Shows the one Replace dialog: the open one, or a new one for the active page.
    static void show(MainWindow& main);

 private:
    explicit frmReplace(MainWindow& owner);

    bool onCommand(WORD id, WORD notification) override;
    HWND originalKid() const override { return mReplaceOriginalKid; }

    struct Texts {
        std::string find;
        std::string with;
    };
    struct Outcome {
        std::string text;
        int count = 0;  // overlapping occurrences included
    };

    // What was typed. Nothing, and the user has been told, when one of them is empty.
    std::optional<Texts> typed(const char* titleWithoutNewText) const;
    void clickReplace();
    void clickReplaceAll();
    // The page's text with all occurrences replaced; a count of 0 when there is none or the page has gone.
    // Throws when there are more than can be counted.
    Outcome replaced(const Texts& texts);
    void takeOver(const Outcome& outcome);
    void note(const char* text) const { ask(text, kNote); }
    void tellNoMatch() const;
    void enableButtons(bool enabled) const;

    static constexpr char kNote[] = "Oreval Note:";

    HWND mReplaceOriginalKid;
    bool busy_ = false;
};

namespace authoring {

void OnReplace(MainWindow& main, int);

}  // namespace authoring
