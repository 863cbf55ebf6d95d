// The toolbar: the strip below the menu and the system's tool bar in it.
#pragma once

#include "win/tool_bar.h"
#include "win/window.h"

namespace shell {

class Toolbar : public win::Window {
 public:
    // Creates the strip as a child of `parent`, which gets the WM_COMMAND of its buttons: tbrPicture1 +
    // index.
    static Toolbar& open(HWND parent);

    // Moves it to the top of its parent, as wide as that, and returns its height in pixels: the buttons take
    // several rows where one is too long.
    int layOut();
    // The buttons that need a document are disabled until one opens.
    void setDocumentOpen(bool open) const;
    bool isEnabled(int index) const { return Picture1_.isEnabled(index); }

 private:
    Toolbar() = default;
    ~Toolbar() override = default;

    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void makeButtons();

    win::ToolBar Picture1_;
};

}  // namespace shell
