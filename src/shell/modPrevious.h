// The instance of the program that is already running, and handing a file to it.
#pragma once

#include <string>

#include "win/unique.h"

namespace modPrevious {

// Holds the mark that says to later starts that this instance runs.
class InstanceMark {
 public:
    InstanceMark();
    bool isFirst() const { return first_; }

 private:
    win::UniqueHandle mutex_;
    bool first_;
};

// The first child of `start` (the desktop when null) whose title and class match the patterns, in which *
// stands for any run, ? for one character and # for one digit; null when there is none.
HWND FindWindowLike(const std::string& titlePattern, const std::string& classPattern, HWND start = nullptr);

// Brings a window, of any process, to the foreground, restored if it is minimised. False when the system
// does not allow it.
bool ActivateWindow(HWND window);

// Brings the running instance to the front and has it open the file, as if its user had typed the path into
// its open dialog. `commandLine` is empty for no file.
void HandOver(const std::string& commandLine);

}  // namespace modPrevious
