#include "win/message_box.h"

#include "win/disabled.h"
#include "win/unicode.h"

namespace win {
namespace {

// A window that a modal dialog disables cannot own the box: it would still be disabled when the box closes,
// and another program would come to the front.
HWND OwnerOfBox(HWND owner) {
    const HWND top = owner ? ::GetAncestor(owner, GA_ROOT) : nullptr;
    const HWND popup = top && !::IsWindowEnabled(top) ? ::GetLastActivePopup(top) : nullptr;
    return popup && ::IsWindowEnabled(popup) ? popup : top;
}

}  // namespace

int ShowMessage(HWND owner, std::string_view text, std::string_view title, UINT style) {
    const HWND top = OwnerOfBox(owner);
    const Disabled others(top);
    return ::MessageBoxW(top, ToWide(text).c_str(), ToWide(title).c_str(), style);
}

}  // namespace win
