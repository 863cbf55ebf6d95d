// The instance of the program that is already running, and handing a file to it.
#pragma once

#include <string>

#include "win/unique.h"

namespace modPrevious {

// Tells later starts that an instance is running: a mutex that the first one owns until it ends.
class InstanceMark {
 public:
    InstanceMark();
    ~InstanceMark();
    InstanceMark(const InstanceMark&) = delete;
    InstanceMark& operator=(const InstanceMark&) = delete;

    // Asks anew: the instance that was first may have ended.
    bool isFirst();

 private:
    win::UniqueHandle mutex_;
    bool first_ = false;
};

// The first child of `start` (the desktop when null) whose title and class match the patterns, in which *
// stands for any run, ? for one character and # for one digit; null when there is none.
HWND FindWindowLike(const std::string& titlePattern, const std::string& classPattern, HWND start = nullptr);

// Brings a window, of any process, to the foreground, restored if it is minimised. False when the system
// does not allow it.
bool ActivateWindow(HWND window);

// Brings the running instance to the front and has it open the file, as if its user had typed the path into
// its open dialog; says so when that cannot be done. `path` is empty for no file. False when that instance
// has ended meanwhile, so that this one is the first.
bool HandOver(InstanceMark& mark, const std::string& path);

}  // namespace modPrevious
