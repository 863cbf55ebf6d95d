// The about box.
#pragma once

#include "main_window.h"
#include "win/dialog.h"

class frmAbout : public win::Dialog {
 public:
    frmAbout() : Dialog("frmAbout") {}

 private:
    bool onInit() override;
    bool onCommand(WORD id, WORD notification) override;
    INT_PTR onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
};

namespace help {

void OnHelpAbout(MainWindow& main, int);

}  // namespace help
