// Keeping the user from the program's windows while nothing in them may change.
#pragma once

#include <vector>

#include "win/windows.h"

namespace win {

// Until the scope ends, disables this thread's visible top-level windows except the one given. Then enables
// those again, and no others, and gives the focus back. A dialog or a message box that is shown meanwhile can
// be used. Leave out its owner, which it disables and enables itself: if the owner were still disabled when
// the box closes, another program would come to the front.
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
