// The main window in the test's own process, with an empty settings store. Texts are UTF-8.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "document/frmChild.h"
#include "main_window.h"
#include "support/files_test.h"
#include "support/windows_seen.h"
#include "win/unicode.h"
#include "win/unique.h"

// The controls of a class in a form, in their order.
std::vector<HWND> ControlsOfClass(HWND form, const std::string& cls);

// The buttons of a form's toolbar, as the mouse and a screen reader find them: they are not windows.
class ToolButtons {
 public:
    explicit ToolButtons(HWND form) : bar_(seen::ChildOfClass(form, "ToolbarWindow32")) {}
    HWND bar() const { return bar_; }
    // In their order, each after a "|"; all of them or only the enabled ones.
    std::string names(bool enabledOnly = false) const;
    RECT place(int index) const;  // in the toolbar
    void click(int index) const;

 private:
    std::vector<TBBUTTON> buttons() const;
    HWND bar_;
};

// Sends a control's notification to its form.
void Notify(HWND control, WORD code);

// A user who answers dialogs while the test's own thread is busy showing them.
class User {
 public:
    struct Act {
        std::string title;
        std::function<void(HWND dialog)> act;
    };

    static Act press(const std::string& title, WORD button);
    // Types into the dialog that asks for a text.
    static Act enter(const std::string& title, const std::string& text, WORD button = IDOK);
    static Act chooseFile(const std::string& title, const std::string& path);

    // Returns what the dialogs say that `busy` opens. Each is waited for by its title, in this order; the
    // test fails when one does not come.
    static std::vector<std::string> hears(const std::function<void()>& busy, const std::vector<Act>& acts);
};

// Tests with an empty HKEY_CURRENT_USER.
class AppTest : public FilesTest {
 protected:
    void SetUp() override;
    void TearDown() override;

    MainWindow& main() { return *main_; }
    // Closes the main window and discards what has not been saved.
    void closeMain();
    // Opens a page whose file has these bytes, and types at its start.
    frmChild& openPage(const std::string& name, const std::string& bytes, const std::string& typed = "");
    // Opens a file so that others can use it only as `share` allows.
    static win::UniqueFile hold(const std::string& path, DWORD share);
    // A new page with this text instead of the outline, unchanged.
    frmChild& newPage(const std::string& text);
    frmChild& active() { return *main().activeDocument(); }
    void activate(const frmChild& page);
    std::string pageText() { return win::Utf8FromUtf16(active().txtPad().text()); }
    // Runs a command through the main window's own WM_COMMAND.
    void run(Command command) { ::SendMessageA(main().mainHwnd(), WM_COMMAND, command, 0); }
    // A key as the page's control gets it.
    void pressKey(WPARAM key) { ::SendMessageA(active().txtPad().hwnd(), WM_KEYDOWN, key, 0); }
    void type(const std::string& text);
    // "start-end" of what is selected in the active page.
    std::string selected();
    bool pageHasFocus() { return ::GetFocus() == active().txtPad().hwnd(); }
    std::string clipboard();
    void setClipboard(const std::string& text);
    // Returns what the last of the dialogs says.
    static std::string heard(const std::function<void()>& busy, const std::vector<User::Act>& acts);
    // Returns what the message box says that the act or the command opens, and presses its OK.
    static std::string said(const std::function<void()>& act, const std::string& title = "Quillon");
    std::string said(Command command, const std::string& title = "Quillon");
    static HWND window(const std::string& title) { return seen::Titled(::GetCurrentProcessId(), title); }
    HWND label(const std::string& text) { return seen::Child(main().mainHwnd(), text, "Static"); }

 private:
    MainWindow* main_ = nullptr;
};
