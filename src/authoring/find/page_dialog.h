// What the Find and Replace dialogs share: a modeless, topmost window that belongs to one page.
#pragma once

#include <string>

#include "main_window.h"
#include "win/dialog.h"

namespace authoring {

// Stands beside the main window and closes with its page: at once when the main window unloads it, or within
// 200 ms by its own timer.
class PageDialog : public win::Dialog {
 protected:
    // For the main window's active page, which must be there; `down` twips below the main window's top.
    PageDialog(const char* templateName, MainWindow& main, int down);

    bool onInit() override;
    INT_PTR onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void onClosing() override;

    // The window of the page.
    virtual HWND originalKid() const = 0;

    MainWindow& main() const { return main_; }
    // Null when the page or this dialog has been closed, which can happen wherever messages are handled.
    frmChild* page() const;
    // Makes the page the active document.
    void bringPageToTop() const;
    // A message box over the dialog.
    int ask(const std::string& text, const char* title, UINT style = MB_OK) const;
    void setDefaultButton(int id) const { ::SendMessageW(hwnd(), DM_SETDEFID, static_cast<WPARAM>(id), 0); }

 private:
    MainWindow& main_;
    DocumentId pageId_;
    int down_;
};

// Closes the Find and the Replace dialog, if they are open.
void UnloadPageDialogs(const MainWindow& main);

}  // namespace authoring
