// A document window: one page in its edit control.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "document/page.h"
#include "document/rich_edit.h"
#include "main_window.h"
#include "win/window.h"

class frmChild : public win::Window {
 public:
    // Where nothing is stored.
    static constexpr char kDefaultTab[] = "    ";
    static constexpr float kDefaultPoints = 10;

    // Opens a window with this caption and page: shown, active, unchanged and without a path. The page is
    // read-only where the control does not hold exactly its text. Throws when the window cannot be created,
    // and document::PageTooLarge when there is not enough memory.
    static frmChild& open(MainWindow& main, const std::string& caption, const document::Page& page);

    DocumentId id() const { return id_; }
    document::RichEdit& txtPad() const { return *txtPad_; }

    // The full path of the file behind the page; empty for a page that has none.
    const std::string& Tag() const { return tag_; }
    void setTag(const std::string& path) { tag_ = path; }
    std::string Caption() const { return text(); }
    void setCaption(const std::string& caption);

    // What the page is read and saved in.
    const document::Encoding& encoding() const { return encoding_; }

    bool isChanged() const { return txtPad_->isChanged(); }
    // The file now holds the page, in this encoding.
    void setSaved(const document::Encoding& encoding);

    // Replaces the selection as one step that can be undone; the caret ends behind the text. What the page's
    // encoding cannot hold is inserted as numeric character references.
    void insert(std::u16string_view text);
    // Replaces the whole page as one step that can be undone, after which the earlier steps can be undone
    // too. The page counts as changed; the caret and the lines in view stay where they are. The text goes
    // into a new control, because refilling a full one is slower by orders of magnitude; the old control is
    // kept as the step.
    void replacePage(std::u16string_view text);
    // The same with the page as it was saved, which then counts as unchanged. The edited text goes to the
    // clipboard.
    void toReset(const document::Page& saved);

    void kidCut();
    void kidCopy();
    void kidPaste();
    void kidDelete();
    void kidUndo();
    void selectAll();
    // What one press of the Tab key inserts from now on.
    void setTab(const std::string& tabText) { tabText_ = tabText; }
    const std::string& tabText() const { return tabText_; }

    // Reads files that were dropped onto the page while their owner waits; the rest is done after that.
    void takeDrop(const std::vector<std::string>& paths);

    // Brings the page to the front; only the left mouse button does that by itself.
    void activate() const;
    void focusPage() const { ::SetFocus(txtPad_->hwnd()); }
    // Shows the caret's line in the main window.
    void showLine() const;
    // The user is being asked about saving, and the window closes after that.
    bool isClosing() const { return closing_; }
    // The page is being closed unsaved although the user wanted it saved.
    bool keepsCopy() const { return keepsCopy_; }

 private:
    // A page as it was before it was replaced whole.
    struct Step {
        std::unique_ptr<document::RichEdit> pad;
        document::Encoding encoding;
    };

    explicit frmChild(MainWindow& main) : main_(main) {}
    ~frmChild() override = default;

    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    LRESULT defaultHandling(UINT message, WPARAM wParam, LPARAM lParam) override;
    std::unique_ptr<document::RichEdit> makePad(const document::Font& font);
    void loadInto(document::RichEdit& pad, std::u16string_view text);
    void replaceControl(const document::Page& page);
    void keepStep(Step step);
    void takeStepBack();
    // Shows a control of this page's in place of the one that is given back, hidden.
    std::unique_ptr<document::RichEdit> swapControl(std::unique_ptr<document::RichEdit> next);
    void layOut() const;
    void close();
    void closingCheck();
    void tellClosed();
    void keepText() const;  // on the clipboard
    void finishDrops();

    MainWindow& main_;
    DocumentId id_ = 0;
    document::Encoding encoding_;
    std::string tag_;
    std::string tabText_;
    std::unique_ptr<document::RichEdit> txtPad_;
    std::vector<Step> steps_;                   // the oldest first
    std::vector<std::function<void()>> drops_;  // what is left to do for each
    bool closing_ = false;
    bool keepsCopy_ = false;
};
