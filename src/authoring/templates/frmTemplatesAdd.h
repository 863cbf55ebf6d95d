// "Add a Template": keeps the active page as a template.
#pragma once

#include <string>

#include "authoring/templates/core/template_list.h"
#include "main_window.h"
#include "win/dialog.h"

class frmTemplatesAdd : public win::Dialog {
 public:
    explicit frmTemplatesAdd(MainWindow& main) : Dialog("frmTemplatesAdd"), main_(main) {}

 private:
    bool onCommand(WORD id, WORD notification) override;
    void enter();
    bool writeFile(const std::string& name);
    void refuse(const std::string& text, int field) const;

    MainWindow& main_;
};
