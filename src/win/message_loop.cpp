#include "win/message_loop.h"

namespace win {
namespace {

bool IsInput(UINT message) {
    return (message >= WM_KEYFIRST && message <= WM_KEYLAST) ||
           (message >= WM_MOUSEFIRST && message <= WM_MOUSELAST);
}

void Handle(MSG& message) {
    const HWND top = IsInput(message.message) ? ::GetAncestor(message.hwnd, GA_ROOT) : nullptr;
    // A window that its own key has closed cannot answer any more.
    const bool done =
        top &&
        (::SendMessageA(top, kPreTranslate, 0, reinterpret_cast<LPARAM>(&message)) != 0 || !::IsWindow(top));
    if (done) return;
    ::TranslateMessage(&message);
    ::DispatchMessageA(&message);
}

}  // namespace

int RunMessageLoop() {
    MSG message{};
    while (::GetMessageA(&message, nullptr, 0, 0) > 0) Handle(message);
    return static_cast<int>(message.wParam);
}

bool RunPending() {
    MSG message{};
    while (::PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (message.message == WM_QUIT) {
            ::PostQuitMessage(static_cast<int>(message.wParam));
            return false;
        }
        Handle(message);
    }
    return true;
}

}  // namespace win
