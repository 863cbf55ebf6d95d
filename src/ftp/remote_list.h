// The list box of a remote directory, a line per entry; a directory's ends in "/".
#pragma once

#include <string>

#include "win/control.h"

namespace ftp {

// What is dropped on it goes to its parent.
class RemoteList : public win::Control {
 public:
    void attach(HWND listBox);

    void clear();
    void add(const std::string& line);
    // The selected line, empty when there is none.
    std::string selected() const;
    // Selects the line and scrolls to it; nothing happens when it is not there.
    void select(const std::string& line);

    // Where a menu for a line opens. `at` is a point of the screen, whose line becomes the selected one, or
    // -1 twice for the keyboard's menu key. False where there is no line.
    bool findMenuPoint(POINT& at);

 private:
    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    std::string line(WPARAM index) const;
    void widen(const std::string& line);

    int width_ = 0;  // of the widest line, pixels
};

}  // namespace ftp
