// The about box.
#pragma once

#include <string>

#include "main_window.h"
#include "win/dialog.h"

class frmAbout : public win::Dialog {
 public:
    frmAbout() : Dialog("frmAbout") {}

 private:
    bool onInit() override;
    bool onCommand(WORD id, WORD notification) override;
    INT_PTR onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    // As wide as its text, so that only the text can be clicked.
    void fitLink(HWND link) const;
    static void drawLink(const DRAWITEMSTRUCT& link);
    bool isLink(HWND window) const;
};

namespace help {

void OnHelpAbout(MainWindow& main, int);

}  // namespace help
