#include "win/window.h"

#include <exception>

#include "win/error.h"
#include "win/message_box.h"

namespace win {

std::string WindowText(HWND window) {
    std::string text(static_cast<std::size_t>(::GetWindowTextLengthA(window)) + 1, '\0');
    text.resize(
        static_cast<std::size_t>(::GetWindowTextA(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

std::string Window::text() const {
    return WindowText(hwnd_);
}

void Window::setText(const std::string& text) {
    ::SetWindowTextA(hwnd_, text.c_str());
}

void Window::registerOnce(WNDCLASSEXA& cls) {
    cls.cbSize = sizeof cls;
    cls.lpfnWndProc = procedure;
    cls.hInstance = ::GetModuleHandleA(nullptr);
    if (!cls.hCursor) cls.hCursor = ::LoadCursorA(nullptr, IDC_ARROW);
    WNDCLASSEXA known{};
    known.cbSize = sizeof known;
    if (!::GetClassInfoExA(cls.hInstance, cls.lpszClassName, &known)) Check(::RegisterClassExA(&cls));
}

void Window::create(WNDCLASSEXA cls, const std::string& text, DWORD style, DWORD exStyle, Place place,
                    HWND parent) {
    registerOnce(cls);
    Check(::CreateWindowExA(exStyle, cls.lpszClassName, text.c_str(), style, place.left, place.top,
                            place.width, place.height, parent, nullptr, cls.hInstance, this));
}

void Window::createMdiChild(WNDCLASSEXA cls, const std::string& text, DWORD style, HWND mdiClient) {
    registerOnce(cls);
    Check(::CreateMDIWindowA(cls.lpszClassName, text.c_str(), style, CW_USEDEFAULT, CW_USEDEFAULT,
                             CW_USEDEFAULT, CW_USEDEFAULT, mdiClient, cls.hInstance,
                             reinterpret_cast<LPARAM>(this)));
}

LRESULT Window::defaultHandling(UINT message, WPARAM wParam, LPARAM lParam) {
    return ::DefWindowProcA(hwnd_, message, wParam, lParam);
}

Window* Window::bind(HWND hwnd, UINT message, LPARAM lParam) {
    if (message != WM_NCCREATE) return reinterpret_cast<Window*>(::GetWindowLongPtrA(hwnd, GWLP_USERDATA));
    const void* param = reinterpret_cast<const CREATESTRUCTA*>(lParam)->lpCreateParams;
    // The MDI client wraps the pointer given to it into a structure of its own.
    if (::GetWindowLongPtrA(hwnd, GWL_EXSTYLE) & WS_EX_MDICHILD) {
        param = reinterpret_cast<const void*>(static_cast<const MDICREATESTRUCTA*>(param)->lParam);
    }
    auto* self = static_cast<Window*>(const_cast<void*>(param));
    self->hwnd_ = hwnd;
    ::SetWindowLongPtrA(hwnd, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(self));
    return self;
}

LRESULT CALLBACK Window::procedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    Window* self = bind(hwnd, message, lParam);
    return self ? self->dispatch(message, wParam, lParam) : ::DefWindowProcA(hwnd, message, wParam, lParam);
}

LRESULT Window::dispatch(UINT message, WPARAM wParam, LPARAM lParam) {
    ++depth_;
    LRESULT result = 0;
    try {
        result = onMessage(message, wParam, lParam);
    } catch (const std::exception& error) {
        ShowMessage(hwnd_, error.what(), "Quillon", MB_ICONEXCLAMATION);
    }
    if (message == WM_NCDESTROY) {
        ::SetWindowLongPtrA(hwnd_, GWLP_USERDATA, 0);
        hwnd_ = nullptr;
        dead_ = true;
    }
    if (--depth_ == 0 && dead_) delete this;
    return result;
}

}  // namespace win
