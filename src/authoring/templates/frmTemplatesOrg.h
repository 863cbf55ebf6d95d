// "Organize Templates": gives a template another ID, or deletes it with its file.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "main_window.h"
#include "win/control.h"
#include "win/dialog.h"
#include "win/tool_tips.h"

class frmTemplatesOrg : public win::Dialog {
 public:
    explicit frmTemplatesOrg(MainWindow& main) : Dialog("frmTemplatesOrg"), main_(main) {}

 private:
    enum class Mode { none, rename, remove };

    // The text of the list, which cannot be typed into: a click on it drops the list down.
    class ListText : public win::Control {
     public:
        using Control::attach;

     private:
        LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    };

    bool onInit() override;
    bool onCommand(WORD id, WORD notification) override;
    void addTips();
    int selected() const;
    void choose(Mode mode);
    void askName() const;
    void enter();
    void rename(std::size_t slot);
    void remove(std::size_t slot);
    bool deleteFile(const std::string& path) const;
    void note(const std::string& text) const;

    MainWindow& main_;
    Mode mode_ = Mode::none;
    std::vector<std::size_t> slots_;  // of the rows of the list
    int row_ = -1;                    // the one picked; -1 for none
    ListText listText_;
    win::ToolTips tips_;
};
