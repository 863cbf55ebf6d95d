// The field for a password that is not stored.
#pragma once

#include <string>

#include "win/windows.h"

namespace ftp {

// Says in plain text what is wanted until something is typed into it, which is then masked.
class PasswordField {
 public:
    void attach(HWND edit) { edit_ = edit; }

    void showHint();
    void clear();
    // What was typed; empty as long as that is nothing. The caller wipes it.
    std::string typed() const;

    // To be called with every notification of the edit control.
    void onNotification(WORD notification) const;

 private:
    bool showsHint() const;

    HWND edit_ = nullptr;
};

}  // namespace ftp
