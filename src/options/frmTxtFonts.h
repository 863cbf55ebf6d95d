// The dialog that chooses the font of the pages.
#pragma once

#include <string>

#include "document/rich_edit.h"
#include "main_window.h"
#include "settings/CRegSettings.h"
#include "win/dialog.h"

class frmTxtFonts : public win::Dialog {
 public:
    // Shows each choice at once in the page that is active now, if there is one.
    explicit frmTxtFonts(MainWindow& main);

 private:
    bool onInit() override;
    bool onCommand(WORD id, WORD notification) override;
    void fillFonts() const;
    void fillSizes() const;
    std::string chosen(int combo) const;
    void showChoice(WORD combo, WORD notification) const;
    void accept();
    void cancel();

    MainWindow& main_;
    CRegSettings settings_;
    DocumentId page_ = 0;  // 0 when no page is open
    document::Font before_;
    bool loading_ = true;
};
