#include "document/page_edit.h"

#include <utility>

#include "document/frmChild.h"
#include "win/drop_target.h"
#include "win/unicode.h"

namespace document {
namespace {

constexpr int kId = 1;

bool IsDown(int key) {
    return ::GetKeyState(key) < 0;
}

// Keys by which the control formats paragraphs, which plain text has no use for.
bool IsFormattingKey(WPARAM key) {
    return key == 'E' || key == 'J' || key == 'L' || key == 'R' || key == '1' || key == '2' || key == '5';
}

}  // namespace

void PageEdit::create(const Font& font) {
    RichEdit::create(page_.hwnd(), kId, font);
    win::AcceptDrops(hwnd());
}

bool PageEdit::handleKey(WPARAM key) {
    const bool alt = IsDown(VK_MENU);
    if (IsDown(VK_CONTROL) && !alt) return handleControlKey(key);
    switch (key) {
        case VK_TAB:
            page_.insert(win::Utf16FromUtf8(page_.tabText()));
            return true;
        case VK_BACK:
            return !alt && removeTab();
        case VK_RETURN:
            // The control would make a line break of its own kind, which is none in a file.
            if (!IsDown(VK_SHIFT)) return false;
            page_.insert(u"\r\n");
            return true;
        case VK_INSERT:
            if (!IsDown(VK_SHIFT)) return false;
            page_.kidPaste();
            return true;
        default:
            return false;
    }
}

bool PageEdit::handleControlKey(WPARAM key) {
    switch (key) {
        case 'V':
            page_.kidPaste();
            return true;
        case 'A':
            page_.selectAll();
            return true;
        case 'Z':
            page_.kidUndo();
            return true;
        // Posted, because these windows can outlive the page whose key this is.
        case 'D':
            main_.postCommand(tbrColor);
            return true;
        case 'T':
            main_.postCommand(tbrList);
            return true;
        default:
            return IsFormattingKey(key);
    }
}

// Removes the run of blanks that a Tab key has put in front of the caret; false when there is none.
bool PageEdit::removeTab() {
    const Selection caret = selection();
    const auto length = static_cast<long>(page_.tabText().size());
    if (caret.length() > 0 || caret.start < length) return false;
    select(caret.start - length, caret.start);
    if (selectedText() == win::Utf16FromUtf8(page_.tabText())) {
        replaceSelection(u"");
        return true;
    }
    select(caret.start, caret.start);
    return false;
}

// The character of a key that was dealt with here is already in the queue.
void PageEdit::dropTypedCharacter() const {
    MSG typed{};
    ::PeekMessageW(&typed, hwnd(), WM_CHAR, WM_CHAR, PM_REMOVE);
}

// The control would take a character through the code page. One beyond U+FFFF comes as two messages.
void PageEdit::type(char16_t unit) {
    const std::u16string typed = std::exchange(pending_, {}) + unit;
    if (win::IsHighSurrogate(unit)) {
        pending_ = unit;
    } else {
        page_.insert(typed);
    }
}

// A press on selected words would begin to drag them, and nothing here takes them.
void PageEdit::dropSelectionAt(LPARAM point) {
    const Selection selected = selection();
    if (selected.length() == 0) return;
    const POINT at = win::PointOf(point);
    POINTL position{at.x, at.y};
    const long pressed = static_cast<long>(send(EM_CHARFROMPOS, 0, reinterpret_cast<LPARAM>(&position)));
    if (pressed >= selected.start && pressed < selected.end && !IsDown(VK_SHIFT)) select(pressed, pressed);
}

// The Edit menu, at a point of the screen, or below the caret when both coordinates are -1.
void PageEdit::showMenu(POINT at) const {
    // Its commands are about the page in front.
    page_.activate();
    if (at.x == -1 && at.y == -1) {
        send(EM_POSFROMCHAR, reinterpret_cast<WPARAM>(&at), selection().start);
        ::ClientToScreen(hwnd(), &at);
    }
    ::TrackPopupMenu(main_.menu().popup(mnuEdit), TPM_RIGHTBUTTON, at.x, at.y, 0, main_.mainHwnd(), nullptr);
}

LRESULT PageEdit::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_KEYDOWN:
            if (!handleKey(wParam)) break;
            dropTypedCharacter();
            return 0;
        case WM_CHAR:
        case WM_IME_CHAR:
            if (wParam == '\t') return 0;
            if (wParam < 0x80) break;
            type(static_cast<char16_t>(wParam));
            return 0;
        case EM_REPLACESEL:
            page_.insert(win::AsUtf16(reinterpret_cast<const wchar_t*>(lParam)));
            return 0;
        case WM_PASTE:
            page_.kidPaste();
            return 0;
        case WM_LBUTTONDOWN:
            dropSelectionAt(lParam);
            break;
        case WM_RBUTTONUP: {
            POINT at{};
            ::GetCursorPos(&at);
            showMenu(at);
            return 0;
        }
        case WM_CONTEXTMENU:
            showMenu(win::PointOf(lParam));
            return 0;
        case win::kDropped:
            if (win::DroppedFiles()) page_.takeDrop(*win::DroppedFiles());
            return 0;
        case WM_DESTROY:
            win::RefuseDrops(hwnd());
            break;
        default:
            break;
    }
    return RichEdit::onMessage(message, wParam, lParam);
}

}  // namespace document
