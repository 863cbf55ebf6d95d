// The Replace dialog.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "authoring/find/page_dialog.h"

class frmReplace : public authoring::PageDialog {
 public:
    // Shows the one Replace dialog: the open one, or a new one for the active page.
    static void show(MainWindow& main);

 private:
    explicit frmReplace(MainWindow& owner);

    bool onCommand(WORD id, WORD notification) override;
    HWND originalKid() const override { return mReplaceOriginalKid; }

    struct Texts {
        std::u16string find;
        std::u16string with;
    };
    // What was typed. Nothing, and the user has been told, when one of them is empty.
    std::optional<Texts> typed(const char* titleWithoutNewText) const;
    void clickReplace();
    void clickReplaceAll();
    // False when there is no match. Throws when there are more than can be counted.
    bool replaceAll(frmChild& target, const Texts& texts);
    std::u16string replaced(std::u16string_view text, std::u16string_view find,
                            std::u16string_view with) const;
    // Does nothing when the page or this dialog has been closed.
    void takeOver(const std::u16string& text, int count);
    void note(const char* text) const { ask(text, kNote); }
    void tellNoMatch() const;
    void enableButtons(bool enabled) const;

    static constexpr char kNote[] = "Oreval Note:";

    HWND mReplaceOriginalKid;
    bool busy_ = false;
    bool cancelled_ = false;
};

namespace authoring {

void OnReplace(MainWindow& main, int);

}  // namespace authoring
