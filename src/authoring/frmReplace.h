// The Replace dialog.
#pragma once

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

    struct Outcome {
        std::string text;
        int count = 0;  // overlapping occurrences included
    };

    void clickReplace();
    void clickReplaceAll();
    // The page's text with all occurrences replaced; a count of 0 when there is none or the page has gone.
    // Throws when there are more than can be counted.
    Outcome replaced(const std::string& find, const std::string& with);
    void takeOver(const Outcome& outcome);
    void note(const char* text) const { ask(text, "Oreval Note:"); }
    void tellNoMatch() const;
    void enableButtons(bool enabled) const;

    HWND mReplaceOriginalKid;
    bool busy_ = false;
};

namespace authoring {

void OnReplace(MainWindow& main, int);

}  // namespace authoring
