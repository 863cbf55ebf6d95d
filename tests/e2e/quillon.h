// The shipped program, started and used from outside.
#pragma once

#include <string>
#include <vector>

#include "support/files_test.h"
#include "support/windows_seen.h"

// One running Quillon.exe, which is killed with the object.
class Quillon {
 public:
    // Waits until the main window shows a page, unless `wait` is false. `file` is put on the command line
    // unchanged.
    explicit Quillon(const std::string& file = "", bool wait = true);
    ~Quillon();
    Quillon(const Quillon&) = delete;
    Quillon& operator=(const Quillon&) = delete;

    DWORD process() const { return id_; }
    HWND window() const { return window_; }
    bool isRunning() const;
    bool waitForEnd();
    void kill();

    // The page in front: its document window and its edit control.
    HWND page() const;
    HWND pad() const { return seen::ChildOfClass(page(), "RICHEDIT"); }
    std::string pageText() const { return seen::TextOf(pad()); }
    std::string pageCaption() const { return seen::TextOf(page()); }
    bool shows(const std::string& label) const;
    std::vector<HWND> pages() const;

    // Chooses a menu item or a toolbar button, without waiting until the command is done.
    void choose(int command) const;
    // Brings the program to the front and sends keys to whatever has the focus there.
    void typeText(const std::string& text) const;
    void pressKey(WORD virtualKey, bool control = false) const;

    // A form, a message box or a dialog of the system's.
    HWND waitForDialog(const std::string& title) const;
    // Waits for such a dialog, presses the button, waits until it is closed and returns what it said.
    std::string answer(const std::string& title, WORD button) const;
    // `exists`: the dialog will ask whether to overwrite the file.
    void chooseFile(const std::string& title, const std::string& path, bool exists = false) const;

 private:
    void bringToFront() const;
    HWND anyOfClass(const std::string& cls, HWND but = nullptr) const;

    HANDLE handle_ = nullptr;
    DWORD id_ = 0;
    HWND window_ = nullptr;
};

// Deletes the recovery copies that killed programs have left.
void ForgetCopies();

// A number from an environment variable.
int EnvironmentNumber(const char* name, int otherwise);

// Each test starts without settings, except that the welcome has been given.
class QuillonTest : public FilesTest {
 protected:
    void SetUp() override;
};
