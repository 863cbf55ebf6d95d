#include "win/message_box.h"

namespace win {

int ShowMessage(HWND owner, const std::string& text, const char* title, UINT style) {
    const HWND top = owner ? ::GetAncestor(owner, GA_ROOT) : nullptr;
    return ::MessageBoxA(top, text.c_str(), title, style);
}

}  // namespace win
