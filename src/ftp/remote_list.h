// The list box of a remote directory, a line per entry; a directory's ends in "/".
#pragma once

#include <string>
#include <vector>

#include "ftp/core/remote_names.h"
#include "win/control.h"

namespace ftp {

// Drops are passed on to its parent.
class RemoteList : public win::Control {
 public:
    void attach(HWND listBox);

    // In place of what it shows.
    void show(std::vector<RemoteFile> files);
    const RemoteFile* selected() const;  // null when there is none
    // Selects the entry with this name, of the server's bytes, and scrolls to it; nothing happens when there
    // is none.
    void select(const std::string& name);

    // Where a menu for a line opens. `at` is a point of the screen, whose line becomes the selected one, or
    // -1 twice for the keyboard's menu key. False where there is no line.
    bool findMenuPoint(POINT& at);

 private:
    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void fitWidth() const;

    std::vector<RemoteFile> files_;  // one a line
};

}  // namespace ftp
