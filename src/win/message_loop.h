// The message loop, and the pump that long work runs between its steps.
#pragma once

#include "win/windows.h"

namespace win {

// Sent to the top-level window of a key or mouse message before it is translated: lParam points to the MSG, a
// result other than 0 says that the window has dealt with it (accelerators, dialog keys).
inline constexpr UINT kPreTranslate = WM_APP + 0x100;

// Runs until WM_QUIT and returns its exit code.
int RunMessageLoop();

// Handles the messages that are waiting. Anything can happen meanwhile: any window, also the caller's, may
// be gone afterwards. A WM_QUIT stays in the queue for the outer loop, and the result is false.
bool RunPending();

// The hourglass, until the scope ends.
class WaitCursor {
 public:
    WaitCursor() : old_(::SetCursor(::LoadCursorA(nullptr, IDC_WAIT))) {}
    ~WaitCursor() { ::SetCursor(old_); }
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;

 private:
    HCURSOR old_;
};

}  // namespace win
