#include "win/control.h"

#include <exception>

#include "win/message_box.h"

namespace win {

Control::~Control() {
    if (hwnd_) detach();
}

void Control::attach(HWND control) {
    hwnd_ = control;
    ::SetWindowLongPtrW(control, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    original_ = reinterpret_cast<WNDPROC>(
        ::SetWindowLongPtrW(control, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure)));
}

void Control::detach() {
    ::SetWindowLongPtrW(hwnd_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(original_));
    ::SetWindowLongPtrW(hwnd_, GWLP_USERDATA, 0);
    hwnd_ = nullptr;
}

LRESULT Control::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    return ::CallWindowProcW(original_, hwnd_, message, wParam, lParam);
}

LRESULT CALLBACK Control::procedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* self = reinterpret_cast<Control*>(::GetWindowLongPtrW(hwnd, GWLP_USERDATA));
    if (!self) return ::DefWindowProcW(hwnd, message, wParam, lParam);
    if (message == WM_NCDESTROY) {
        const WNDPROC original = self->original_;
        self->detach();
        return ::CallWindowProcW(original, hwnd, message, wParam, lParam);
    }
    try {
        return self->onMessage(message, wParam, lParam);
    } catch (const std::exception& error) {
        ShowMessage(hwnd, error.what(), "Quillon", MB_ICONEXCLAMATION);
        return 0;
    }
}

}  // namespace win
