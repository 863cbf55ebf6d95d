// Keeping the program's windows from being used while something must not change under it.
#pragma once

#include <vector>

#include "win/windows.h"

namespace win {

// Disables this thread's top-level windows, all that can be seen and are enabled but the one given, until the
// scope ends; then exactly those are enabled again, and the focus is back. What was disabled before stays so.
// A dialog or a box that is shown meanwhile can be used; its owner, which it disables and enables itself, is
// the one to leave out: a box that goes while its owner is disabled brings another program to the front.
class Disabled {
 public:
    explicit Disabled(HWND except = nullptr);
    ~Disabled();
    Disabled(const Disabled&) = delete;
    Disabled& operator=(const Disabled&) = delete;

 private:
    HWND focus_ = ::GetFocus();
    std::vector<HWND> windows_;
};

}  // namespace win
