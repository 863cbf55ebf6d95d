#include "win/dialog.h"

#include <exception>

#include "win/disabled.h"
#include "win/error.h"
#include "win/message_box.h"
#include "win/unicode.h"
#include "win/window.h"

namespace win {

INT_PTR Dialog::showModal(HWND owner) {
    modal_ = true;
    const Disabled others(owner);
    const INT_PTR result = ::DialogBoxParamW(::GetModuleHandleW(nullptr), ToWide(templateName_).c_str(),
                                             owner, procedure, reinterpret_cast<LPARAM>(this));
    if (failure_) throw Failure(*failure_);
    if (result == -1) ThrowLastError();
    return result;
}

void Dialog::createModeless(HWND owner) {
    const std::wstring name = ToWide(templateName_);
    const HWND window = Check(::CreateDialogParamW(::GetModuleHandleW(nullptr), name.c_str(), owner,
                                                   procedure, reinterpret_cast<LPARAM>(this)));
    if (const std::optional<std::string> failure = failure_) {
        ::DestroyWindow(window);
        throw Failure(*failure);
    }
    ::SetPropW(owner, name.c_str(), window);
}

void Dialog::showModeless(HWND owner) {
    createModeless(owner);
    ::ShowWindow(hwnd_, SW_SHOW);
}

Dialog* Dialog::find(HWND owner, const char* templateName) {
    const auto window = static_cast<HWND>(::GetPropW(owner, ToWide(templateName).c_str()));
    return window ? reinterpret_cast<Dialog*>(::GetWindowLongPtrW(window, DWLP_USER)) : nullptr;
}

Dialog* Dialog::bringForward(HWND owner, const char* templateName) {
    Dialog* open = find(owner, templateName);
    if (!open) return nullptr;
    if (::IsIconic(open->hwnd())) ::ShowWindow(open->hwnd(), SW_RESTORE);
    ::SetActiveWindow(open->hwnd());
    return open;
}

void Dialog::close(INT_PTR result) {
    if (modal_) {
        ::EndDialog(hwnd_, result);
    } else {
        ::DestroyWindow(hwnd_);
    }
}

std::string Dialog::itemText(int id) const {
    return WindowText(item(id));
}

void Dialog::setItemText(int id, std::string_view text) const {
    ShowText(item(id), text);
}

void Dialog::showProgramIcon() const {
    const auto icon = reinterpret_cast<LPARAM>(::LoadIconW(::GetModuleHandleW(nullptr), L"quillon"));
    ::SendMessageW(hwnd_, WM_SETICON, ICON_SMALL, icon);
}

void Dialog::focusItem(int id) const {
    ::SendMessageW(hwnd_, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(item(id)), TRUE);
}

bool Dialog::onCommand(WORD, WORD) {
    return false;
}

INT_PTR Dialog::onMessage(UINT, WPARAM, LPARAM) {
    return FALSE;
}

bool Dialog::isDialog(HWND window) {
    return reinterpret_cast<DLGPROC>(::GetWindowLongPtrW(window, DWLP_DLGPROC)) == procedure;
}

INT_PTR CALLBACK Dialog::procedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG) {
        ::SetWindowLongPtrW(hwnd, DWLP_USER, lParam);
        reinterpret_cast<Dialog*>(lParam)->hwnd_ = hwnd;
    }
    auto* self = reinterpret_cast<Dialog*>(::GetWindowLongPtrW(hwnd, DWLP_USER));
    return self ? self->dispatch(message, wParam, lParam) : FALSE;
}

INT_PTR Dialog::dispatch(UINT message, WPARAM wParam, LPARAM lParam) {
    ++depth_;
    INT_PTR result = FALSE;
    try {
        result = handle(message, wParam, lParam);
    } catch (const std::exception& error) {
        fail(message, error.what());
    }
    if (message == WM_NCDESTROY) {
        const HWND owner = ::GetWindow(hwnd_, GW_OWNER);
        if (find(owner, templateName_) == this) ::RemovePropW(owner, ToWide(templateName_).c_str());
        ::SetWindowLongPtrW(hwnd_, DWLP_USER, 0);
        hwnd_ = nullptr;
    }
    if (--depth_ == 0 && !hwnd_ && !modal_) delete this;
    return result;
}

// Deals with what the handler of a message has thrown. A dialog whose start has failed is not shown.
void Dialog::fail(UINT message, const char* what) {
    if (message != WM_INITDIALOG) {
        ShowMessage(hwnd_, what, "Quillon", MB_ICONEXCLAMATION);
        return;
    }
    failure_ = what;
    if (modal_) ::EndDialog(hwnd_, -1);
}

INT_PTR Dialog::handle(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_INITDIALOG:
            return onInit() ? TRUE : FALSE;
        case WM_COMMAND:
            if (onCommand(LOWORD(wParam), HIWORD(wParam))) return TRUE;
            if (LOWORD(wParam) != IDCANCEL) return FALSE;
            close(IDCANCEL);
            return TRUE;
        case WM_DESTROY:
            onClosing();
            return onMessage(message, wParam, lParam);
        default:
            return onMessage(message, wParam, lParam);
    }
}

}  // namespace win
