#include "win/message_loop.h"

#include "win/dialog.h"
#include "win/window.h"

namespace win {
namespace {

bool IsInput(UINT message) {
    return (message >= WM_KEYFIRST && message <= WM_KEYLAST) ||
           (message >= WM_MOUSEFIRST && message <= WM_MOUSELAST);
}

// The top-level window sees keys and the mouse first, for its accelerators and the keys of dialogs.
bool PreTranslate(MSG& message) {
    const HWND top = IsInput(message.message) ? ::GetAncestor(message.hwnd, GA_ROOT) : nullptr;
    if (!top) return false;
    if (Dialog::isDialog(top)) return ::IsDialogMessageW(top, &message) != FALSE;
    Window* window = Window::of(top);
    return window && window->preTranslate(message);
}

void Handle(MSG& message) {
    if (PreTranslate(message)) return;
    ::TranslateMessage(&message);
    ::DispatchMessageW(&message);
}

}  // namespace

int RunMessageLoop() {
    MSG message{};
    while (::GetMessageW(&message, nullptr, 0, 0) > 0) Handle(message);
    return static_cast<int>(message.wParam);
}

bool RunPending() {
    MSG message{};
    while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (message.message == WM_QUIT) {
            ::PostQuitMessage(static_cast<int>(message.wParam));
            return false;
        }
        Handle(message);
    }
    return true;
}

}  // namespace win
