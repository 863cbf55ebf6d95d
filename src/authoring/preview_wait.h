// What follows the start of a preview: the browser is given time to read, then the copy is removed.
#pragma once

#include <string>
#include <utility>

#include "win/window.h"

namespace authoring {

// The file that a browser is shown. A copy is removed with its last owner.
class ShownFile {
 public:
    ShownFile(std::string path, bool isCopy) : path_(std::move(path)), isCopy_(isCopy) {}
    ShownFile(ShownFile&& other) noexcept
        : path_(other.path_), isCopy_(std::exchange(other.isCopy_, false)) {}
    ShownFile& operator=(ShownFile&&) = delete;
    ~ShownFile() { remove(); }

    const std::string& path() const { return path_; }
    std::string folder() const { return path_.substr(0, path_.rfind('\\') + 1); }  // with its backslash
    // False while another program keeps the copy from being removed.
    bool remove();

 private:
    std::string path_;
    bool isCopy_;
};

// Waits without holding up the program: a hidden window with a timer, owned by the main window, so that it
// goes, and the copy with it, when the program is closed.
class PreviewWait : public win::Window {
 public:
    // Until it is told that no browser was found.
    static void forBrowser(HWND owner, ShownFile file);
    // Until the browser has surely read the file.
    static void forLoading(HWND owner, ShownFile file);
    // Ends the wait for this file, if there is one, and removes the copy.
    static void end(const std::string& path);

 private:
    PreviewWait(ShownFile file, bool found) : file_(std::move(file)), found_(found) {}
    static void begin(HWND owner, PreviewWait* wait, UINT milliseconds);
    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void elapsed();

    ShownFile file_;
    bool found_;
};

void TellNotOpened(HWND owner);

}  // namespace authoring
