#include "document/page_keys.h"

#include "document/frmChild.h"
#include "win/unicode.h"

namespace document {
namespace {

bool IsDown(int key) {
    return ::GetKeyState(key) < 0;
}

void InsertTab(frmChild& page) {
    page.insert(win::Utf16FromUtf8(page.tabText()));
}

// Removes the run of blanks that a Tab key has put in front of the caret; false when there is none.
bool RemoveTab(const frmChild& page) {
    RichEdit& pad = page.txtPad();
    const Selection caret = pad.selection();
    const auto length = static_cast<long>(page.tabText().size());
    if (caret.length() > 0 || caret.start < length) return false;
    pad.select(caret.start - length, caret.start);
    if (pad.selectedText() == win::Utf16FromUtf8(page.tabText())) {
        pad.replaceSelection(u"");
        return true;
    }
    pad.select(caret.start, caret.start);
    return false;
}

// Keys by which the control formats paragraphs, which plain text has no use for.
bool IsFormattingKey(WPARAM key) {
    return key == 'E' || key == 'J' || key == 'L' || key == 'R' || key == '1' || key == '2' || key == '5';
}

bool HandleControlKey(frmChild& page, MainWindow& main, WPARAM key) {
    switch (key) {
        case 'V':
            page.kidPaste();
            return true;
        case 'A':
            page.selectAll();
            return true;
        case 'Z':
            page.kidUndo();
            return true;
        // Posted, because these windows can outlive the page whose key this is.
        case 'D':
            main.postCommand(tbrColor);
            return true;
        case 'T':
            main.postCommand(tbrList);
            return true;
        default:
            return IsFormattingKey(key);
    }
}

}  // namespace

bool HandleKey(frmChild& page, MainWindow& main, WPARAM key) {
    const bool control = IsDown(VK_CONTROL);
    const bool alt = IsDown(VK_MENU);
    if (control && !alt) return HandleControlKey(page, main, key);
    switch (key) {
        case VK_TAB:
            InsertTab(page);
            return true;
        case VK_BACK:
            return !alt && RemoveTab(page);
        case VK_RETURN:
            // The control would make a line break of its own kind, which is none in a file.
            if (!IsDown(VK_SHIFT)) return false;
            page.insert(u"\r\n");
            return true;
        case VK_INSERT:
            if (!IsDown(VK_SHIFT)) return false;
            page.kidPaste();
            return true;
        default:
            return false;
    }
}

void ShowEditMenu(const frmChild& page, MainWindow& main, POINT at) {
    // Its commands are about the page in front.
    page.activate();
    if (at.x == -1 && at.y == -1) {
        const HWND pad = page.txtPad().hwnd();
        ::SendMessageW(pad, EM_POSFROMCHAR, reinterpret_cast<WPARAM>(&at), page.txtPad().selection().start);
        ::ClientToScreen(pad, &at);
    }
    ::TrackPopupMenu(main.menu().popup(mnuEdit), TPM_RIGHTBUTTON, at.x, at.y, 0, main.mainHwnd(), nullptr);
}

}  // namespace document
