#include "ftp/frmConnect.h"

HWND frmConnect::open(HWND owner) {
    auto* form = new frmConnect;
    form->showModeless(owner);
    ::UpdateWindow(form->hwnd());
    return form->hwnd();
}

bool frmConnect::onCommand(WORD id, WORD notification) {
    const Dialog* waiting = find(::GetWindow(hwnd(), GW_OWNER), "frmUpload");
    if (id != IDCANCEL || !waiting) return false;
    // It knows what to do with this window.
    ::SendMessageW(waiting->hwnd(), WM_COMMAND, MAKEWPARAM(id, notification), 0);
    return true;
}
