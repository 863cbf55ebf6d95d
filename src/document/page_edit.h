// The edit control of a page: what keys, typed characters, the mouse and dropped files do in it.
#pragma once

#include <string>

#include "document/rich_edit.h"
#include "main_window.h"

namespace document {

class PageEdit : public RichEdit {
 public:
    PageEdit(frmChild& page, MainWindow& main) : page_(page), main_(main) {}

    // Creates the control, which takes drops. Throws win::Error.
    void create(const Font& font);

 private:
    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    // True says that the control is not to see the key.
    bool handleKey(WPARAM key);
    bool handleControlKey(WPARAM key);
    bool removeTab();
    void dropTypedCharacter() const;
    void type(char16_t unit);
    void dropSelectionAt(LPARAM point);
    void showMenu(POINT at) const;

    frmChild& page_;
    MainWindow& main_;
    std::u16string pending_;  // the first half of a character
};

}  // namespace document
