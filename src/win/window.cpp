#include "win/window.h"

#include <algorithm>
#include <exception>
#include <iterator>
#include <optional>

#include "win/error.h"
#include "win/message_box.h"
#include "win/unicode.h"

namespace win {

std::string WindowText(HWND window) {
    std::wstring text(static_cast<std::size_t>(::GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(
        static_cast<std::size_t>(::GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
    return ToUtf8(text);
}

void ShowText(HWND window, std::string_view text) {
    ::SetWindowTextW(window, ToWide(text).c_str());
}

namespace {

bool IsComboBox(HWND list) {
    wchar_t name[16] = L"";
    ::GetClassNameW(list, name, static_cast<int>(std::size(name)));
    return ::lstrcmpiW(name, WC_COMBOBOXW) == 0;
}

}  // namespace

std::string ListRow(HWND list, LRESULT row) {
    const bool combo = IsComboBox(list);
    const auto index = static_cast<WPARAM>(row);
    const LRESULT length = ::SendMessageW(list, combo ? CB_GETLBTEXTLEN : LB_GETTEXTLEN, index, 0);
    if (row < 0 || length < 0) return {};
    std::wstring text(static_cast<std::size_t>(length) + 1, L'\0');
    const LRESULT copied =
        ::SendMessageW(list, combo ? CB_GETLBTEXT : LB_GETTEXT, index, reinterpret_cast<LPARAM>(text.data()));
    text.resize(static_cast<std::size_t>(std::max<LRESULT>(0, copied)));
    return ToUtf8(text);
}

void AddListRow(HWND list, std::string_view text) {
    ::SendMessageW(list, IsComboBox(list) ? CB_ADDSTRING : LB_ADDSTRING, 0,
                   reinterpret_cast<LPARAM>(ToWide(text).c_str()));
}

struct Window::Creation {
    explicit Creation(Window* made) : window(made) {}

    Window* window;
    bool isBound = false;
    std::optional<std::string> failure;
};

std::string Window::text() const {
    return WindowText(hwnd_);
}

void Window::setText(const std::string& text) {
    ShowText(hwnd_, text);
}

void Window::registerOnce(WNDCLASSEXW& cls) {
    cls.cbSize = sizeof cls;
    cls.lpfnWndProc = procedure;
    cls.hInstance = ::GetModuleHandleW(nullptr);
    if (!cls.hCursor) cls.hCursor = ::LoadCursorW(nullptr, IDC_ARROW);
    WNDCLASSEXW known{};
    known.cbSize = sizeof known;
    if (!::GetClassInfoExW(cls.hInstance, cls.lpszClassName, &known)) Check(::RegisterClassExW(&cls));
}

void Window::create(WNDCLASSEXW cls, const std::string& text, DWORD style, DWORD exStyle, Place place,
                    HWND parent) {
    registerOnce(cls);
    Creation creation(this);
    finish(creation,
           ::CreateWindowExW(exStyle, cls.lpszClassName, ToWide(text).c_str(), style, place.left, place.top,
                             place.width, place.height, parent, nullptr, cls.hInstance, &creation));
}

void Window::createMdiChild(WNDCLASSEXW cls, const std::string& text, DWORD style, HWND mdiClient) {
    registerOnce(cls);
    Creation creation(this);
    finish(creation, ::CreateMDIWindowW(cls.lpszClassName, ToWide(text).c_str(), style, CW_USEDEFAULT,
                                        CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, mdiClient, cls.hInstance,
                                        reinterpret_cast<LPARAM>(&creation)));
}

LRESULT Window::defaultHandling(UINT message, WPARAM wParam, LPARAM lParam) {
    return ::DefWindowProcW(hwnd_, message, wParam, lParam);
}

Window* Window::bind(HWND hwnd, UINT message, LPARAM lParam) {
    if (message != WM_NCCREATE) return reinterpret_cast<Window*>(::GetWindowLongPtrW(hwnd, GWLP_USERDATA));
    const void* param = reinterpret_cast<const CREATESTRUCTW*>(lParam)->lpCreateParams;
    // The MDI client wraps the pointer given to it into a structure of its own.
    if (::GetWindowLongPtrW(hwnd, GWL_EXSTYLE) & WS_EX_MDICHILD) {
        param = reinterpret_cast<const void*>(static_cast<const MDICREATESTRUCTW*>(param)->lParam);
    }
    auto* creation = static_cast<Creation*>(const_cast<void*>(param));
    Window* self = creation->window;
    creation->isBound = true;
    self->creation_ = creation;
    self->hwnd_ = hwnd;
    ::SetWindowLongPtrW(hwnd, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(self));
    return self;
}

void Window::finish(const Creation& creation, HWND made) {
    if (made) {
        creation.window->creation_ = nullptr;
        return;
    }
    const DWORD error = ::GetLastError();
    // A window that was bound has deleted its object already.
    if (!creation.isBound) delete creation.window;
    if (creation.failure) throw Failure(*creation.failure);
    throw Error(error);
}

// Deals with what the handler of a message has thrown.
LRESULT Window::fail(UINT message, const char* what) {
    const bool isMaking = creation_ && (message == WM_NCCREATE || message == WM_CREATE);
    if (!isMaking) {
        ShowMessage(hwnd_, what, "Quillon", MB_ICONEXCLAMATION);
        return 0;
    }
    creation_->failure = what;
    return message == WM_CREATE ? -1 : FALSE;
}

LRESULT CALLBACK Window::procedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    Window* self = bind(hwnd, message, lParam);
    return self ? self->dispatch(message, wParam, lParam) : ::DefWindowProcW(hwnd, message, wParam, lParam);
}

LRESULT Window::dispatch(UINT message, WPARAM wParam, LPARAM lParam) {
    ++depth_;
    LRESULT result = 0;
    try {
        result = onMessage(message, wParam, lParam);
    } catch (const std::exception& error) {
        result = fail(message, error.what());
    }
    if (message == WM_NCDESTROY) {
        ::SetWindowLongPtrW(hwnd_, GWLP_USERDATA, 0);
        hwnd_ = nullptr;
        dead_ = true;
    }
    leave();
    return result;
}

void Window::leave() {
    if (--depth_ == 0 && dead_) delete this;
}

Window* Window::of(HWND window) {
    // The procedure of the class: another program may have replaced that of the window.
    if (reinterpret_cast<WNDPROC>(::GetClassLongPtrW(window, GCLP_WNDPROC)) != procedure) return nullptr;
    return reinterpret_cast<Window*>(::GetWindowLongPtrW(window, GWLP_USERDATA));
}

bool Window::preTranslate(MSG& message) {
    ++depth_;
    const bool done = onPreTranslate(message);
    leave();
    return done;
}

}  // namespace win
