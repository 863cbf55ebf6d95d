// A document window: one page in its edit control.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "document/rich_edit.h"
#include "main_window.h"
#include "win/window.h"

class frmChild : public win::Window {
 public:
    // Where nothing is stored.
    static constexpr char kDefaultTab[] = "    ";
    static constexpr float kDefaultPoints = 10;

    // Creates the window, shown and active, with this caption and page, unchanged and with no path. Throws
    // when the window cannot be made.
    static frmChild& open(MainWindow& main, const std::string& caption, std::string_view page);

    DocumentId id() const { return id_; }
    document::RichEdit& txtPad() const { return *txtPad_; }

    // The full path of the file behind the page; empty for a page that has none.
    const std::string& Tag() const { return tag_; }
    void setTag(const std::string& path) { tag_ = path; }
    std::string Caption() const { return text(); }
    void setCaption(const std::string& caption);

    // Replaces the whole page, which then counts as unchanged. The control is made anew, because refilling
    // a full one is slower by orders of magnitude; font, wrap and size carry over, what can be undone does
    // not.
    void setPage(std::string_view page);
    // The same as an edit: the page counts as changed, the caret and the lines in view stay where they are.
    void replacePage(std::string_view page);
    // Takes the saved text in place of the edited one, which goes to the clipboard.
    void toReset(std::string_view saved);

    void kidCut();
    void kidCopy();
    void kidPaste();
    void kidDelete();
    void kidUndo();
    void selectAll();
    // What one press of the Tab key inserts from now on.
    void setTab(const std::string& tabText) { tabText_ = tabText; }
    const std::string& tabText() const { return tabText_; }

    void focusPage() const { ::SetFocus(txtPad_->hwnd()); }
    // Shows the caret's line in the main window.
    void showLine() const;
    // The user is being asked about saving; the window goes as soon as that is done.
    bool isClosing() const { return closing_; }

 private:
    class Pad;

    explicit frmChild(MainWindow& main) : main_(main) {}
    ~frmChild() override = default;

    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    LRESULT defaultHandling(UINT message, WPARAM wParam, LPARAM lParam) override;
    std::unique_ptr<document::RichEdit> makePad(const document::Font& font);
    void layOut() const;
    void close();
    void closingCheck();
    void keepText() const;  // on the clipboard
    void handOverDrops();

    MainWindow& main_;
    DocumentId id_ = 0;
    std::string tag_;
    std::string tabText_;
    std::unique_ptr<document::RichEdit> txtPad_;
    std::vector<std::vector<std::string>> drops_;  // not handed over yet
    bool closing_ = false;
};
