// The dialog that a site of the Upload menu opens: connect to it, or take it off the list.
#pragma once

#include <string>

#include "main_window.h"
#include "win/dialog.h"

class frmToUp : public win::Dialog {
 public:
    enum class Choice { none, connect };

    // Shows the dialog for the site with that address, and deletes the site if the user wants that.
    static Choice ask(MainWindow& main, const std::string& site);

 private:
    frmToUp(MainWindow& main, const std::string& site) : Dialog("frmToUp"), main_(main), site_(site) {}

    bool onInit() override;
    bool onCommand(WORD id, WORD notification) override;

    void cmdDelete_Click();
    // Asks for the password where one is stored. What the dialog does then is up to the answer.
    enum class Answer { right, wrong, none };
    Answer askPassword(const std::string& storedPassword) const;

    MainWindow& main_;
    std::string site_;
};
