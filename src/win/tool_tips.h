// The system's tool tips for the controls of a form.
#pragma once

#include <string>

#include "win/windows.h"

namespace win {

class ToolTips {
 public:
    // The window of the tips is owned by `form` and destroyed with it.
    void create(HWND form);
    // Shown over the control, also while it is disabled.
    void add(HWND control, const std::string& text) const;

 private:
    HWND form_ = nullptr;
    HWND tips_ = nullptr;
};

}  // namespace win
