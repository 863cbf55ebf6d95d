// The base of every form that is a dialog template of the resources.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "win/windows.h"

namespace win {

class Dialog {
 public:
    Dialog(const Dialog&) = delete;
    Dialog& operator=(const Dialog&) = delete;
    virtual ~Dialog() = default;

    HWND hwnd() const { return hwnd_; }  // null before the window is created and once it is destroyed

    // The modeless dialog of this template that was shown last for `owner`; null when it is not open.
    static Dialog* find(HWND owner, const char* templateName);
    // The same, brought to the front and restored if it is minimised.
    static Dialog* bringForward(HWND owner, const char* templateName);

    // Whether this window is a dialog of ours.
    static bool isDialog(HWND window);

    // Runs the dialog over `owner` and returns what close() was given; no other window of the program can be
    // used meanwhile. The object belongs to the caller.
    INT_PTR showModal(HWND owner);
    // Creates and shows the dialog. The object, made with new, deletes itself after the window.
    void showModeless(HWND owner);
    // The same, not shown yet.
    void createModeless(HWND owner);
    void close(INT_PTR result = 0);

 protected:
    // `templateName` is the name of the dialog template, which is the form's.
    explicit Dialog(const char* templateName) : templateName_(templateName) {}

    // Before the dialog is shown. True lets the system put the focus on the first control. If it throws, the
    // dialog is not shown, and the call that creates it throws a win::Failure.
    virtual bool onInit() { return true; }
    // WM_COMMAND of a control or a menu item; true says that it has been dealt with. IDCANCEL, which Esc and
    // the close box send, closes the dialog unless it is dealt with here.
    virtual bool onCommand(WORD id, WORD notification);
    // All other messages, with the results of a DLGPROC.
    virtual INT_PTR onMessage(UINT message, WPARAM wParam, LPARAM lParam);
    // Just before the window is destroyed, whoever closes it.
    virtual void onClosing() {}

    HWND item(int id) const { return ::GetDlgItem(hwnd_, id); }
    std::string itemText(int id) const;
    void setItemText(int id, std::string_view text) const;
    void enableItem(int id, bool enabled) const { ::EnableWindow(item(id), enabled); }
    bool isChecked(int id) const { return ::IsDlgButtonChecked(hwnd_, id) == BST_CHECKED; }
    // Shows the program's icon in the caption, in place of the system's.
    void showProgramIcon() const;
    // As Tab would: the default button follows, and the text of an edit box is selected.
    void focusItem(int id) const;

 private:
    static INT_PTR CALLBACK procedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);
    INT_PTR dispatch(UINT message, WPARAM wParam, LPARAM lParam);
    INT_PTR handle(UINT message, WPARAM wParam, LPARAM lParam);
    void fail(UINT message, const char* what);

    const char* templateName_;
    HWND hwnd_ = nullptr;
    bool modal_ = false;
    std::optional<std::string> failure_;  // of onInit()
    int depth_ = 0;                       // handlers of this object on the stack
};

}  // namespace win
