// The dialog that adds an FTP site.
#pragma once

#include "main_window.h"
#include "win/dialog.h"

class frmCrypt : public win::Dialog {
 public:
    // Shows the dialog, or brings the one that is open to the front.
    static void open(MainWindow& main);

 private:
    explicit frmCrypt(MainWindow& main) : Dialog("frmCrypt"), main_(main) {}

    bool onInit() override;
    bool onCommand(WORD id, WORD notification) override;
    INT_PTR onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void onClosing() override;

    void cmdSetVal_Click();
    bool checkFields(bool savePassword, bool hasPassword);
    void SaveSiteEntry(bool savePassword, const std::string& password);
    void checkUrl();
    void remind(const char* text) const;

    MainWindow& main_;
};
