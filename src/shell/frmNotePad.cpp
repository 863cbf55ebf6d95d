#include "shell/frmNotePad.h"

#include <algorithm>
#include <exception>
#include <iterator>

#include "authoring/find/page_dialog.h"
#include "authoring/images/image_drop.h"
#include "document/edit_commands.h"
#include "document/frmChild.h"
#include "files/modOpen.h"
#include "files/modPubFuncs.h"
#include "options/option_commands.h"
#include "shell/commands.h"
#include "shell/menu_table.h"
#include "shell/shell_commands.h"
#include "win/error.h"
#include "win/message_box.h"
#include "win/modWndPos.h"
#include "win/unicode.h"
#include "win/units.h"

namespace {

constexpr int kWidth = 12000;  // twips
constexpr int kHeight = 8700;

constexpr UINT_PTR kCopyTimer = 1;
constexpr UINT kCopyInterval = 1000;  // milliseconds

std::string SystemTemporaryFolder() {
    wchar_t path[256];
    const DWORD length = ::GetTempPathW(static_cast<DWORD>(std::size(path)), path);
    return length == 0 || length >= std::size(path) ? "C:\\" : win::ToUtf8({path, length});
}

win::UniqueAccelerators MakeAccelerators() {
    std::vector<ACCEL> keys = win::Accelerators(shell::kMenu);
    const std::vector<ACCEL> extra = win::Accelerators(shell::kExtraKeys);
    keys.insert(keys.end(), extra.begin(), extra.end());
    return win::UniqueAccelerators(::CreateAcceleratorTableW(keys.data(), static_cast<int>(keys.size())));
}

}  // namespace

frmNotePad::frmNotePad()
    : menu_(shell::kMenu),
      accelerators_(MakeAccelerators()),
      temporaryFolder_(SystemTemporaryFolder()),
      recovery_(temporaryFolder_) {}

frmNotePad& frmNotePad::open() {
    auto* self = new frmNotePad;
    WNDCLASSEXW cls{};
    cls.lpszClassName = L"frmNotePad";
    cls.hIcon = ::LoadIconW(::GetModuleHandleW(nullptr), L"quillon");
    cls.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_APPWORKSPACE + 1);
    RECT area{};
    ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
    const Place place{0, 0, std::min<int>(win::PixelsFromTwips(kWidth), area.right - area.left),
                      std::min<int>(win::PixelsFromTwips(kHeight), area.bottom - area.top)};
    self->create(cls, "Quillon", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, 0, place, nullptr);
    return *self;
}

void frmNotePad::createParts() {
    options::ShowStored(*this);
    ::SetMenu(hwnd(), menu_.handle());
    menu_.attach(hwnd());
    CLIENTCREATESTRUCT client{nullptr, mdiChildren};
    mdiClient_ =
        win::Check(::CreateWindowExW(WS_EX_CLIENTEDGE, L"MDICLIENT", nullptr,
                                     WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN | WS_HSCROLL | WS_VSCROLL, 0, 0,
                                     0, 0, hwnd(), nullptr, ::GetModuleHandleW(nullptr), &client));
    // It shows scroll bars once a page lies outside. At first it would show empty ones.
    ::ShowScrollBar(mdiClient_, SB_BOTH, FALSE);
    Picture2_ = &shell::Toolbar::open(hwnd());
    Picture3_ = &shell::StatusStrip::open(hwnd());
    menuPictures_.addTo(menu_);
    // The first page opens before the window is shown, and takes its size from the client's.
    layOut();
}

void frmNotePad::layOut() const {
    RECT area{};
    ::GetClientRect(hwnd(), &area);
    const int top = Picture2_->layOut();
    const int bottom = area.bottom - Picture3_->height();
    ::MoveWindow(Picture3_->hwnd(), 0, bottom, area.right, Picture3_->height(), TRUE);
    ::MoveWindow(mdiClient_, 0, top, area.right, std::max(0, bottom - top), TRUE);
}

// The system's colours, visual style, fonts or metrics have changed. Except for the style, it tells top-level
// windows only.
void frmNotePad::followSystem(UINT message, WPARAM wParam, LPARAM lParam) {
    menuPictures_.addTo(menu_);
    if (message != WM_THEMECHANGED) {
        for (const HWND strip : {Picture2_->hwnd(), Picture3_->hwnd()})
            ::SendMessageW(strip, message, wParam, lParam);
        for (const frmChild* document : documents_)
            ::SendMessageW(document->txtPad().hwnd(), message, wParam, lParam);
    }
    layOut();
}

frmChild* frmNotePad::activeDocument() const {
    const auto active = reinterpret_cast<HWND>(::SendMessageW(mdiClient_, WM_MDIGETACTIVE, 0, 0));
    const auto found = std::find_if(documents_.begin(), documents_.end(), [active](const frmChild* document) {
        return document->hwnd() == active;
    });
    return found == documents_.end() ? nullptr : *found;
}

frmChild* frmNotePad::find(DocumentId id) const {
    const auto found = std::find_if(documents_.begin(), documents_.end(),
                                    [id](const frmChild* document) { return document->id() == id; });
    return found == documents_.end() ? nullptr : *found;
}

void frmNotePad::showResult(const std::string& text) {
    Picture3_->setResults(text);
}

void frmNotePad::showLine(long line) {
    Picture3_->setLineNo("Current Line No: " + std::to_string(line));
}

void frmNotePad::enableNew(bool state) {
    menu_.setDocumentOpen(state);
    Picture2_->setDocumentOpen(state);
    if (!state) Picture3_->setLineNo("No File Open");
}

bool frmNotePad::isEnabled(Command command) const {
    for (std::size_t i = 0; i < kToolbar.size(); ++i) {
        if (kToolbar[i].command == command) return Picture2_->isEnabled(static_cast<int>(i));
    }
    return menu_.isEnabled(command);
}

void frmNotePad::postCommand(Command command) {
    ::PostMessageW(hwnd(), WM_COMMAND, command, 0);
}

void frmNotePad::saveAs(frmChild& document) {
    modOpen::SaveAs(*this, document);
}

DocumentId frmNotePad::documentCreated(frmChild& document) {
    documents_.push_back(&document);
    if (documents_.size() == 1) enableNew(true);
    refreshWindowList();
    return ++lastId_;
}

void frmNotePad::documentClosed(frmChild& document) {
    std::erase(documents_, &document);
    if (document.keepsCopy()) {
        recovery_.writeNow(document);
        recovery_.leave(document.id());
    } else {
        recovery_.remove(document.id());
    }
    if (documents_.empty()) {
        enableNew(false);
        options::ShowWordWrap(*this, nullptr);
    }
    authoring::UnloadPageDialogs(*this);
    refreshWindowList();
}

void frmNotePad::documentRenamed(frmChild&) {
    refreshWindowList();
}

void frmNotePad::documentChanged(frmChild& document) {
    if (!recovery_.isAnyDue()) ::SetTimer(hwnd(), kCopyTimer, kCopyInterval, nullptr);
    recovery_.noteChange(document.id(), ::GetTickCount());
}

void frmNotePad::documentSaved(frmChild& document) {
    recovery_.remove(document.id());
}

void frmNotePad::keepCopy(frmChild& document) {
    recovery_.writeNow(document);
}

void frmNotePad::writeDueCopies() {
    recovery_.writeDue(*this, ::GetTickCount());
    if (!recovery_.isAnyDue()) ::KillTimer(hwnd(), kCopyTimer);
}

void frmNotePad::writeAllCopies() {
    for (const frmChild* document : documents_) recovery_.writeNow(*document);
}

void frmNotePad::restorePages() {
    const frmChild* front = activeDocument();
    const DocumentId inFront = front ? front->id() : 0;
    int restored = 0;
    for (const auto& [copy, file] : recovery_.takeOver()) {
        try {
            frmChild& page = frmChild::open(*this, copy.caption, {copy.text, copy.encoding});
            // Where the file is open already, the page comes back beside it without a path.
            if (!modPubFuncs::IsFileOpen(*this, copy.path)) page.setTag(copy.path);
            page.txtPad().setChanged(true);
            page.txtPad().select(static_cast<long>(copy.caret), static_cast<long>(copy.caret));
            recovery_.adopt(page, file);
            ++restored;
        } catch (const std::exception&) {
            // Its copy stays where it is for the next start.
        }
    }
    if (restored == 0) return;
    if (const frmChild* page = find(inFront)) {
        ::SendMessageW(mdiClient_, WM_MDIACTIVATE, reinterpret_cast<WPARAM>(page->hwnd()), 0);
        page->focusPage();
    }
    showResult(std::to_string(restored) + (restored == 1 ? " unsaved page has" : " unsaved pages have") +
               " come back.");
}

void frmNotePad::documentActivated(frmChild& document) {
    document.showLine();
    options::ShowWordWrap(*this, &document);
    refreshWindowList();
}

std::function<void()> frmNotePad::filesDropped(DocumentId document, const std::vector<std::string>& paths) {
    return authoring::ReadDrop(*this, document, paths);
}

void frmNotePad::refreshWindowList() {
    std::vector<std::string> captions;
    int active = -1;
    const frmChild* current = activeDocument();
    for (const frmChild* document : documents_) {
        if (document == current) active = static_cast<int>(captions.size());
        captions.push_back(document->Caption());
    }
    menu_.setList(mnuCurrent, windowList, captions, active);
}

void frmNotePad::run(Command command) {
    if (command >= windowList && command < windowList + documents_.size()) {
        const HWND chosen = documents_[static_cast<std::size_t>(command - windowList)]->hwnd();
        if (::IsIconic(chosen))
            ::SendMessageW(mdiClient_, WM_MDIRESTORE, reinterpret_cast<WPARAM>(chosen), 0);
        ::SendMessageW(mdiClient_, WM_MDIACTIVATE, reinterpret_cast<WPARAM>(chosen), 0);
    } else if (command >= tbrPicture1 && command < tbrPicture1End) {
        clickTool(command - tbrPicture1);
    } else if (command < windowList) {
        shell::Run(*this, command);
    }
}

void frmNotePad::clickTool(int index) {
    if (index >= static_cast<int>(kToolbar.size())) {
        win::ShowMessage(hwnd(), "Tool selection error.", "Quillon", MB_ICONEXCLAMATION);
        return;
    }
    run(kToolbar[static_cast<std::size_t>(index)].command);
}

void frmNotePad::restoreDocuments() const {
    const auto active = static_cast<WPARAM>(::SendMessageW(mdiClient_, WM_MDIGETACTIVE, 0, 0));
    for (const frmChild* document : documents_) {
        ::SendMessageW(mdiClient_, WM_MDIRESTORE, reinterpret_cast<WPARAM>(document->hwnd()), 0);
    }
    // Each of them has come to the front; bring back the page that was there.
    if (active) ::SendMessageW(mdiClient_, WM_MDIACTIVATE, active, 0);
}

bool frmNotePad::onPreTranslate(MSG& message) {
    return ::TranslateMDISysAccel(mdiClient_, &message) ||
           ::TranslateAcceleratorW(hwnd(), accelerators_.get(), &message);
}

bool frmNotePad::closeDocuments() {
    try {
        while (!documents_.empty()) {
            const std::size_t before = documents_.size();
            ::SendMessageW(documents_.front()->hwnd(), WM_CLOSE, 0, 0);
            if (documents_.size() >= before) return false;
        }
        return true;
    } catch (const std::exception& error) {
        win::ShowMessage(hwnd(), std::string("Error Closing a page: \r\n") + error.what(), "Quillon");
        return false;
    }
}

void frmNotePad::close() {
    // This window cannot close while a dialog is open or a page is being closed.
    const bool pageIsClosing = std::any_of(documents_.begin(), documents_.end(),
                                           [](const frmChild* document) { return document->isClosing(); });
    if (closing_ || pageIsClosing || !::IsWindowEnabled(hwnd())) return;
    closing_ = true;
    const bool done = (!mayClose_ || mayClose_()) && closeDocuments();
    closing_ = false;
    if (done) ::DestroyWindow(hwnd());
}

LRESULT frmNotePad::defaultHandling(UINT message, WPARAM wParam, LPARAM lParam) {
    return ::DefFrameProcW(hwnd(), mdiClient_, message, wParam, lParam);
}

LRESULT frmNotePad::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_CREATE:
            createParts();
            return 0;
        case WM_SIZE:
            if (wParam == SIZE_MINIMIZED) {
                restoreDocuments();
            } else if (mdiClient_) {
                layOut();
            }
            return 0;
        case WM_COMMAND:
            if (LOWORD(wParam) >= mdiChildren) break;
            run(LOWORD(wParam));
            return 0;
        case WM_INITMENUPOPUP:
            if (reinterpret_cast<HMENU>(wParam) == menu_.popup(mnuEdit)) document::UpdateEditMenu(*this);
            break;
        case WM_DISPLAYCHANGE:
            modWndPos::KeepAllOnScreen();
            break;
        case WM_SYSCOLORCHANGE:
        case WM_THEMECHANGED:
        case WM_SETTINGCHANGE:
            if (mdiClient_) followSystem(message, wParam, lParam);
            break;
        case WM_CLOSE:
            close();
            return 0;
        case WM_TIMER:
            if (wParam == kCopyTimer) writeDueCopies();
            return 0;
        case WM_QUERYENDSESSION:
            // If the session really ends, the pages come back at the next start.
            writeAllCopies();
            return TRUE;
        case WM_ENDSESSION:
            if (wParam) writeAllCopies();
            return 0;
        case WM_DESTROY:
            ::PostQuitMessage(0);
            return 0;
        default:
            break;
    }
    return defaultHandling(message, wParam, lParam);
}
