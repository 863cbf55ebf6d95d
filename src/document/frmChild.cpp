#include "document/frmChild.h"

#include <algorithm>
#include <exception>
#include <utility>

#include "document/core/font_size.h"
#include "document/page_keys.h"
#include "settings/CRegSettings.h"
#include "win/clipboard.h"
#include "win/drop_target.h"
#include "win/message_box.h"
#include "win/message_loop.h"

namespace {

constexpr int kPadId = 1;
constexpr char kDefaultFace[] = "Courier New";

// Posted to a document: something was dropped onto its page.
constexpr UINT kDropsWaiting = WM_APP;
// Posted to a page's control: from now on it takes drops, for which a page in a hurry to be seen cannot wait.
constexpr UINT kAcceptDrops = WM_APP + 1;

document::Font StoredFont() {
    const CRegSettings settings;
    const float points = document::ParseFontSize(settings.GetRegSetting("font preferences", "font_Size"));
    return {settings.GetRegSetting("font preferences", "font_Face", kDefaultFace),
            points > 0 ? points : frmChild::kDefaultPoints};
}

std::string UpperCase(std::string text) {
    ::CharUpperBuffA(text.data(), static_cast<DWORD>(text.size()));
    return text;
}

}  // namespace

// The page's control, with the keys that the page treats in its own way.
class frmChild::Pad : public document::RichEdit {
 public:
    explicit Pad(frmChild& page) : page_(page) {}

 private:
    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override {
        switch (message) {
            case WM_KEYDOWN:
                if (!document::HandleKey(page_, page_.main_, wParam)) break;
                dropTypedCharacter();
                return 0;
            case WM_CHAR:
                if (wParam == '\t') return 0;
                break;
            case WM_PASTE:
                page_.kidPaste();
                return 0;
            case WM_RBUTTONUP: {
                POINT at{};
                ::GetCursorPos(&at);
                document::ShowEditMenu(page_, page_.main_, at);
                return 0;
            }
            case WM_CONTEXTMENU:
                document::ShowEditMenu(
                    page_, page_.main_,
                    {static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))});
                return 0;
            case kAcceptDrops:
                win::AcceptDrops(hwnd());
                return 0;
            case win::kDropped:
                page_.drops_.push_back(*reinterpret_cast<const std::vector<std::string>*>(lParam));
                ::PostMessageA(page_.hwnd(), kDropsWaiting, 0, 0);
                return 0;
            case WM_DESTROY:
                win::RefuseDrops(hwnd());
                break;
            default:
                break;
        }
        return RichEdit::onMessage(message, wParam, lParam);
    }

    // The character of a key that we have dealt with is already in the queue.
    void dropTypedCharacter() const {
        MSG typed{};
        ::PeekMessageA(&typed, hwnd(), WM_CHAR, WM_CHAR, PM_REMOVE);
    }

    frmChild& page_;
};

frmChild& frmChild::open(MainWindow& main, const std::string& caption, std::string_view page) {
    WNDCLASSEXA cls{};
    cls.lpszClassName = "frmChild";
    cls.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1);
    cls.hIcon = ::LoadIconA(::GetModuleHandleA(nullptr), "quillon");
    // A page opened over a maximised one is maximised as well.
    BOOL maximised = FALSE;
    ::SendMessageA(main.mdiClient(), WM_MDIGETACTIVE, 0, reinterpret_cast<LPARAM>(&maximised));
    auto* self = new frmChild(main);
    self->createMdiChild(cls, caption, WS_VISIBLE | (maximised ? WS_MAXIMIZE : 0U), main.mdiClient());
    try {
        self->txtPad_->load(page);
    } catch (...) {
        ::SendMessageA(main.mdiClient(), WM_MDIDESTROY, reinterpret_cast<WPARAM>(self->hwnd()), 0);
        throw;
    }
    self->focusPage();
    self->showLine();
    return *self;
}

std::unique_ptr<document::RichEdit> frmChild::makePad(const document::Font& font) {
    auto pad = std::make_unique<Pad>(*this);
    pad->create(hwnd(), kPadId, font);
    ::PostMessageA(pad->hwnd(), kAcceptDrops, 0, 0);
    return pad;
}

void frmChild::setCaption(const std::string& caption) {
    setText(caption);
    main_.documentRenamed(*this);
}

void frmChild::setPage(std::string_view page) {
    auto fresh = makePad(txtPad_->font());
    try {
        // In its final size before it has text, so that the lines are laid out once.
        RECT place{};
        ::GetWindowRect(txtPad_->hwnd(), &place);
        ::MoveWindow(fresh->hwnd(), 0, 0, place.right - place.left, place.bottom - place.top, FALSE);
        if (txtPad_->wordWrap()) fresh->setWordWrap(true);
        fresh->load(page);
    } catch (...) {
        ::DestroyWindow(fresh->hwnd());
        throw;
    }
    const bool focused = ::GetFocus() == txtPad_->hwnd();
    txtPad_.swap(fresh);
    ::DestroyWindow(fresh->hwnd());
    if (focused) focusPage();
}

void frmChild::replacePage(std::string_view page) {
    const long caret = std::min(txtPad_->selection().start, static_cast<long>(page.size()));
    const long line = txtPad_->firstVisibleLine();
    setPage(page);
    txtPad_->setChanged(true);
    txtPad_->select(caret, caret);
    txtPad_->scrollLines(line - txtPad_->firstVisibleLine());
    showLine();
}

void frmChild::keepText() const {
    // Of an empty page nothing would be left to paste: the clipboard keeps what it has.
    if (const std::string edited = txtPad_->text(); !edited.empty()) win::SetClipboardText(hwnd(), edited);
}

void frmChild::toReset(std::string_view saved) {
    keepText();
    setPage(saved);
    showLine();
}

void frmChild::layOut() const {
    RECT area{};
    ::GetClientRect(hwnd(), &area);
    ::MoveWindow(txtPad_->hwnd(), 0, 0, area.right, area.bottom, TRUE);
}

void frmChild::showLine() const {
    main_.showLine(txtPad_->lineOf(txtPad_->selection().start) + 1);
}

void frmChild::kidCut() {
    kidCopy();
    kidDelete();
}

void frmChild::kidCopy() {
    // With nothing selected the clipboard keeps what it has.
    if (const std::string text = txtPad_->selectedText(); !text.empty()) win::SetClipboardText(hwnd(), text);
    focusPage();
}

void frmChild::kidPaste() {
    // Only the characters, whatever formatting the clipboard holds beside them.
    if (win::ClipboardHasText()) txtPad_->replaceSelection(win::ClipboardText(hwnd()));
    focusPage();
}

void frmChild::kidDelete() {
    if (txtPad_->selection().length() > 0) txtPad_->replaceSelection("");
    focusPage();
}

void frmChild::kidUndo() {
    ::SendMessageA(txtPad_->hwnd(), WM_UNDO, 0, 0);
}

void frmChild::selectAll() {
    txtPad_->select(0, txtPad_->textLength());
}

void frmChild::handOverDrops() {
    // Messages about the files may outlast the page.
    MainWindow& main = main_;
    const DocumentId id = id_;
    for (const auto& paths : std::exchange(drops_, {})) main.filesDropped(id, paths);
}

void frmChild::closingCheck() {
    try {
        if (!txtPad_->isChanged()) return;
        const int answer = win::ShowMessage(
            hwnd(),
            UpperCase(Caption()) + " has changed since last saved...(or has not yet been saved.)\r\n\r\n" +
                "                     Would you like to save that file now?\r\n\r\n",
            "Quillon", MB_YESNO | MB_ICONQUESTION);
        if (answer != IDYES) return;
        ::SetWindowPos(hwnd(), nullptr, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        win::RunPending();
        ::Sleep(1000);
        main_.saveAs(*this);
        // It closes all the same: what the disk did not take, or nobody named a file for, can be pasted.
        if (txtPad_->isChanged()) keepText();
    } catch (const std::exception& error) {
        win::ShowMessage(hwnd(), std::string("ShutDown Error: ") + error.what(), "Quillon");
    }
}

void frmChild::close() {
    // A second close while the user is being asked, or while another box waits, is a slip of the hand.
    if (closing_ || !::IsWindowEnabled(main_.mainHwnd())) return;
    closing_ = true;
    closingCheck();
    ::SendMessageA(main_.mdiClient(), WM_MDIDESTROY, reinterpret_cast<WPARAM>(hwnd()), 0);
}

LRESULT frmChild::defaultHandling(UINT message, WPARAM wParam, LPARAM lParam) {
    return ::DefMDIChildProcA(hwnd(), message, wParam, lParam);
}

LRESULT frmChild::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_CREATE:
            tabText_ = CRegSettings().GetRegSetting("Tabs", "Length", kDefaultTab);
            txtPad_ = makePad(StoredFont());
            id_ = main_.documentCreated(*this);
            return 0;
        case WM_SIZE:
            if (txtPad_ && wParam != SIZE_MINIMIZED) layOut();
            break;
        case WM_SETFOCUS:
            if (txtPad_) focusPage();
            return 0;
        case WM_NOTIFY:
            if (reinterpret_cast<const NMHDR*>(lParam)->code == EN_SELCHANGE &&
                main_.activeDocument() == this) {
                showLine();
            }
            return 0;
        case kDropsWaiting:
            handOverDrops();
            return 0;
        case WM_MDIACTIVATE:
            if (reinterpret_cast<HWND>(lParam) == hwnd()) main_.documentActivated(*this);
            break;
        case WM_CLOSE:
            close();
            return 0;
        case WM_DESTROY:
            main_.documentClosed(*this);
            break;
        default:
            break;
    }
    return defaultHandling(message, wParam, lParam);
}
