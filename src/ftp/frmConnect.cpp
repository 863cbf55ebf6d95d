#include "ftp/frmConnect.h"

HWND frmConnect::open(HWND owner) {
    auto* form = new frmConnect;
    form->showModeless(owner);
    // Connecting lets no message through, so the window is painted now or never.
    ::UpdateWindow(form->hwnd());
    return form->hwnd();
}
