#include "ftp/password_field.h"

#include "ftp/core/password.h"
#include "win/window.h"

namespace ftp {
namespace {

constexpr char kHint[] = "ENTER PASSWORD HERE";

}  // namespace

void PasswordField::showHint() {
    win::ShowText(edit_, kHint);
}

void PasswordField::clear() {
    win::ShowText(edit_, "");
}

std::string PasswordField::typed() const {
    return showsHint() ? std::string() : win::WindowText(edit_);
}

bool PasswordField::showsHint() const {
    // A password of another length is not copied about.
    if (::GetWindowTextLengthW(edit_) != static_cast<int>(sizeof kHint) - 1) return false;
    std::string text = win::WindowText(edit_);
    const bool hint = text == kHint;
    Wipe(text);
    return hint;
}

void PasswordField::onNotification(WORD notification) const {
    if (notification == EN_UPDATE) {
        ::SendMessageW(edit_, EM_SETPASSWORDCHAR, showsHint() ? 0 : '*', 0);
        ::InvalidateRect(edit_, nullptr, TRUE);
    } else if (notification == EN_SETFOCUS && showsHint()) {
        // After the click that brought the focus has put the caret.
        ::PostMessageW(edit_, EM_SETSEL, 0, -1);
    }
}

}  // namespace ftp
