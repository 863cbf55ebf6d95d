#include "document/frmChild.h"

#include <algorithm>
#include <exception>
#include <numeric>
#include <utility>

#include "document/core/font_size.h"
#include "document/page_edit.h"
#include "document/system_code_pages.h"
#include "settings/CRegSettings.h"
#include "win/clipboard.h"
#include "win/message_box.h"
#include "win/message_loop.h"
#include "win/unicode.h"

namespace {

constexpr char kDefaultFace[] = "Courier New";

// Posted to a document: something was dropped onto its page.
constexpr UINT kDropsWaiting = WM_APP;

document::Font StoredFont() {
    const CRegSettings settings;
    const float points = document::ParseFontSize(settings.GetRegSetting("font preferences", "font_Size"));
    return {settings.GetRegSetting("font preferences", "font_Face", kDefaultFace),
            points > 0 ? points : frmChild::kDefaultPoints};
}

std::string UpperCase(const std::string& text) {
    std::wstring wide = win::ToWide(text);
    ::CharUpperBuffW(wide.data(), static_cast<DWORD>(wide.size()));
    return win::ToUtf8(wide);
}

}  // namespace

frmChild& frmChild::open(MainWindow& main, const std::string& caption, const document::Page& page) {
    WNDCLASSEXW cls{};
    cls.lpszClassName = L"frmChild";
    cls.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1);
    cls.hIcon = ::LoadIconW(::GetModuleHandleW(nullptr), L"quillon");
    // A page opened over a maximised one is maximised as well.
    BOOL maximised = FALSE;
    ::SendMessageW(main.mdiClient(), WM_MDIGETACTIVE, 0, reinterpret_cast<LPARAM>(&maximised));
    auto* self = new frmChild(main);
    self->createMdiChild(cls, caption, WS_VISIBLE | (maximised ? WS_MAXIMIZE : 0U), main.mdiClient());
    try {
        self->encoding_ = page.encoding;
        self->loadInto(*self->txtPad_, page.text);
    } catch (...) {
        ::SendMessageW(main.mdiClient(), WM_MDIDESTROY, reinterpret_cast<WPARAM>(self->hwnd()), 0);
        throw;
    }
    main.documentActivated(*self);
    self->focusPage();
    return *self;
}

std::unique_ptr<document::RichEdit> frmChild::makePad(const document::Font& font) {
    auto pad = std::make_unique<document::PageEdit>(*this, main_);
    pad->create(font);
    return pad;
}

void frmChild::loadInto(document::RichEdit& pad, std::u16string_view text) {
    // The control takes time that grows with the square of a row's length to paint one that it does not wrap.
    if (document::HasLongLine(text) && !document::HasLongWord(text)) pad.setWordWrap(true);
    if (pad.load(text)) return;
    pad.setReadOnly();
    win::ShowMessage(hwnd(),
                     Caption() +
                         " holds characters that this system's edit control cannot keep.\r\n"
                         "It can be read and printed here, but not changed or saved.",
                     "Quillon", MB_ICONEXCLAMATION);
}

void frmChild::setCaption(const std::string& caption) {
    setText(caption);
    main_.documentRenamed(*this);
}

void frmChild::setSaved(const document::Encoding& encoding) {
    encoding_ = encoding;
    txtPad_->setChanged(false);
    // What Undo can bring back is no longer what the file holds.
    for (const Step& step : steps_) step.pad->setChanged(true);
    main_.documentSaved(*this);
}

void frmChild::insert(std::u16string_view text) {
    txtPad_->replaceSelection(document::WithReferences(encoding_, text, document::SystemCodePages()));
}

std::unique_ptr<document::RichEdit> frmChild::swapControl(std::unique_ptr<document::RichEdit> next) {
    const bool focused = ::GetFocus() == txtPad_->hwnd();
    txtPad_.swap(next);
    layOut();
    ::SetWindowPos(txtPad_->hwnd(), HWND_TOP, 0, 0, 0, 0,
                   SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_SHOWWINDOW);
    if (focused) focusPage();
    ::ShowWindow(next->hwnd(), SW_HIDE);
    return next;
}

void frmChild::replaceControl(const document::Page& page) {
    auto fresh = makePad(txtPad_->font());
    try {
        // In its final size before it has text, so that the lines are laid out once.
        RECT place{};
        ::GetWindowRect(txtPad_->hwnd(), &place);
        ::MoveWindow(fresh->hwnd(), 0, 0, place.right - place.left, place.bottom - place.top, FALSE);
        if (txtPad_->wordWrap()) fresh->setWordWrap(true);
        loadInto(*fresh, page.text);
    } catch (...) {
        ::DestroyWindow(fresh->hwnd());
        throw;
    }
    const document::Encoding before = std::exchange(encoding_, page.encoding);
    keepStep({swapControl(std::move(fresh)), before});
    main_.documentActivated(*this);
}

void frmChild::keepStep(Step step) {
    // A control takes some hundred bytes of memory for each character.
    constexpr long kMostText = 4'000'000;
    steps_.push_back(std::move(step));
    const auto kept = [this] {
        return std::accumulate(steps_.begin(), steps_.end(), 0L,
                               [](long sum, const Step& s) { return sum + s.pad->textLength(); });
    };
    while (steps_.size() > 1 && kept() > kMostText) {
        ::DestroyWindow(steps_.front().pad->hwnd());
        steps_.erase(steps_.begin());
    }
}

void frmChild::takeStepBack() {
    Step step = std::move(steps_.back());
    steps_.pop_back();
    if (!(step.pad->font() == txtPad_->font())) step.pad->setFont(txtPad_->font());
    encoding_ = step.encoding;
    ::DestroyWindow(swapControl(std::move(step.pad))->hwnd());
    main_.documentActivated(*this);
    if (isChanged()) {
        main_.documentChanged(*this);
    } else {
        main_.documentSaved(*this);
    }
}

void frmChild::replacePage(std::u16string_view text) {
    const long caret = std::min(txtPad_->selection().start, static_cast<long>(text.size()));
    const long line = txtPad_->firstVisibleLine();
    replaceControl({std::u16string(text), encoding_});
    txtPad_->setChanged(true);
    txtPad_->select(caret, caret);
    txtPad_->scrollLines(line - txtPad_->firstVisibleLine());
    showLine();
    main_.documentChanged(*this);
}

void frmChild::keepText() const {
    // An empty page leaves on the clipboard what is there.
    if (const std::u16string edited = txtPad_->text(); !edited.empty()) win::SetClipboardText(hwnd(), edited);
}

void frmChild::toReset(const document::Page& saved) {
    keepText();
    replaceControl(saved);
    setSaved(saved.encoding);
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
    if (const std::u16string text = txtPad_->selectedText(); !text.empty())
        win::SetClipboardText(hwnd(), text);
    focusPage();
}

void frmChild::kidPaste() {
    // Only the characters, whatever formatting the clipboard holds beside them.
    if (win::ClipboardHasText()) insert(win::ClipboardText(hwnd()));
    focusPage();
}

void frmChild::kidDelete() {
    if (txtPad_->selection().length() > 0) txtPad_->replaceSelection(u"");
    focusPage();
}

void frmChild::kidUndo() {
    if (::SendMessageW(txtPad_->hwnd(), EM_CANUNDO, 0, 0) != 0) {
        ::SendMessageW(txtPad_->hwnd(), WM_UNDO, 0, 0);
        // The page may have been saved with what is undone now.
        txtPad_->setChanged(true);
    } else if (!steps_.empty()) {
        takeStepBack();
    }
}

void frmChild::selectAll() {
    txtPad_->select(0, txtPad_->textLength());
}

void frmChild::takeDrop(const std::vector<std::string>& paths) {
    drops_.push_back(main_.filesDropped(id_, paths));
    ::PostMessageW(hwnd(), kDropsWaiting, 0, 0);
}

void frmChild::finishDrops() {
    // The page may be closed while messages about the files are shown.
    for (const auto& finish : std::exchange(drops_, {})) finish();
}

void frmChild::activate() const {
    if (main_.activeDocument() == this) return;
    ::SendMessageW(main_.mdiClient(), WM_MDIACTIVATE, reinterpret_cast<WPARAM>(hwnd()), 0);
}

void frmChild::closingCheck() {
    if (!isChanged()) return;
    // The page that the question is about has to be in sight.
    if (::IsIconic(hwnd()))
        ::SendMessageW(main_.mdiClient(), WM_MDIRESTORE, reinterpret_cast<WPARAM>(hwnd()), 0);
    activate();
    const int answer = win::ShowMessage(
        hwnd(),
        UpperCase(Caption()) + " has changed since last saved...(or has not yet been saved.)\r\n\r\n" +
            "                     Would you like to save that file now?\r\n\r\n",
        "Quillon", MB_YESNO | MB_ICONQUESTION);
    if (answer != IDYES) return;
    ::SetWindowPos(hwnd(), nullptr, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    win::RunPending();
    ::Sleep(1000);
    keepsCopy_ = true;
    main_.saveAs(*this);
    // It closes all the same: a text that was not saved is left on the clipboard. Where that cannot be
    // opened, the recovery copy stays.
    if (isChanged()) keepText();
    keepsCopy_ = false;
}

void frmChild::close() {
    // Closing a second time, while the user is being asked or another box is open, is a slip of the hand.
    if (closing_ || !::IsWindowEnabled(main_.mainHwnd())) return;
    closing_ = true;
    try {
        closingCheck();
    } catch (const std::exception& error) {
        win::ShowMessage(hwnd(), std::string("ShutDown Error: ") + error.what(), "Quillon");
    }
    ::SendMessageW(main_.mdiClient(), WM_MDIDESTROY, reinterpret_cast<WPARAM>(hwnd()), 0);
}

void frmChild::tellClosed() {
    try {
        if (id_ != 0) main_.documentClosed(*this);
    } catch (const std::exception& error) {
        win::ShowMessage(hwnd(), std::string("ShutDown Error: \r\n") + error.what(), "Quillon");
    }
}

LRESULT frmChild::defaultHandling(UINT message, WPARAM wParam, LPARAM lParam) {
    return ::DefMDIChildProcW(hwnd(), message, wParam, lParam);
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
        case WM_COMMAND:
            if (HIWORD(wParam) == EN_CHANGE && txtPad_ && reinterpret_cast<HWND>(lParam) == txtPad_->hwnd())
                main_.documentChanged(*this);
            return 0;
        case kDropsWaiting:
            finishDrops();
            return 0;
        case WM_MDIACTIVATE:
            if (reinterpret_cast<HWND>(lParam) == hwnd()) main_.documentActivated(*this);
            break;
        case WM_CLOSE:
            close();
            return 0;
        case WM_DESTROY:
            tellClosed();
            break;
        default:
            break;
    }
    return defaultHandling(message, wParam, lParam);
}
