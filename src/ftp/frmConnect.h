// The small window that is there while a session is being opened. Closing it ends the attempt.
#pragma once

#include "win/dialog.h"

class frmConnect : public win::Dialog {
 public:
    // Shows the window over `owner` and returns its handle, which may be gone after any message.
    static HWND open(HWND owner);

 private:
    frmConnect() : Dialog("frmConnect") {}

    bool onCommand(WORD id, WORD notification) override;
};
