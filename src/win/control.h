// A control of the system's whose messages we see first.
#pragma once

#include "win/windows.h"

namespace win {

// Owned by the object of the window that holds the control. The control may be destroyed before it or with
// it.
class Control {
 public:
    Control() = default;
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;
    virtual ~Control();

    HWND hwnd() const { return hwnd_; }  // null before attach() and once the control is destroyed

 protected:
    // Takes over the messages of a control that does not use its GWLP_USERDATA.
    void attach(HWND control);
    virtual LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam);  // passes it on
    LRESULT send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return ::SendMessageW(hwnd_, message, wParam, lParam);
    }

 private:
    static LRESULT CALLBACK procedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);
    void detach();

    HWND hwnd_ = nullptr;
    WNDPROC original_ = nullptr;
};

}  // namespace win
