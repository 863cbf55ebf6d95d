// The message loop, and the pump that long work runs between its steps.
#pragma once

#include "win/windows.h"

namespace win {

// Runs until WM_QUIT and returns its exit code.
int RunMessageLoop();

// Handles the messages that are waiting. Anything can happen meanwhile: any window, also the caller's, may be
// destroyed. A WM_QUIT stays in the queue for the outer loop, and the result is false.
bool RunPending();

// The hourglass, until the scope ends.
class WaitCursor {
 public:
    WaitCursor() : old_(::SetCursor(::LoadCursorW(nullptr, IDC_WAIT))) {}
    ~WaitCursor() { ::SetCursor(old_); }
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;

 private:
    HCURSOR old_;
};

}  // namespace win
