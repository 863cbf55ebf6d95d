// The features help window: a description of every feature and of every toolbar button.
#pragma once

#include <string>

#include "main_window.h"
#include "win/control.h"
#include "win/dialog.h"
#include "win/tool_bar.h"
#include "win/unique.h"

class frmHelp : public win::Dialog {
 public:
    // Shows the one help window.
    static void show(MainWindow& main);

 private:
    // The body text: reached by Tab and scrolled by the keys, but Esc and Enter stay the window's.
    class Words : public win::Control {
     public:
        using Control::attach;
        void show(const std::string& text) const;

     private:
        LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
        bool fits() const;
    };

    frmHelp();

    bool onInit() override;
    bool onCommand(WORD id, WORD notification) override;
    INT_PTR onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void useFonts();
    void show(const std::string& heading, const std::string& words);
    LRESULT paintWords(HDC dc) const;

    std::string heading_;
    std::string text_;
    win::ToolBar Picture1_;
    Words lblWords_;
    win::UniqueFont headingFont_;
    win::UniqueFont textFont_;
};

namespace help {

void OnHelpContents(MainWindow& main, int);

}  // namespace help
