#include "shell/frmNotePad.h"

#include <algorithm>
#include <exception>

#include "authoring/image_drop.h"
#include "authoring/page_dialog.h"
#include "document/edit_commands.h"
#include "document/frmChild.h"
#include "files/modOpen.h"
#include "options/option_commands.h"
#include "shell/commands.h"
#include "shell/menu_table.h"
#include "shell/shell_commands.h"
#include "win/error.h"
#include "win/message_box.h"
#include "win/message_loop.h"
#include "win/modWndPos.h"
#include "win/units.h"

namespace {

constexpr int kWidth = 12000;  // twips
constexpr int kHeight = 8700;

std::string SystemTemporaryFolder() {
    char path[256];
    const DWORD length = ::GetTempPathA(sizeof path, path);
    return length == 0 || length >= sizeof path ? "C:\\" : std::string(path, length);
}

win::UniqueAccelerators MakeAccelerators() {
    std::vector<ACCEL> keys = win::Accelerators(shell::kMenu);
    const std::vector<ACCEL> extra = win::Accelerators(shell::kExtraKeys);
    keys.insert(keys.end(), extra.begin(), extra.end());
    return win::UniqueAccelerators(::CreateAcceleratorTableA(keys.data(), static_cast<int>(keys.size())));
}

}  // namespace

frmNotePad::frmNotePad()
    : menu_(shell::kMenu), accelerators_(MakeAccelerators()), temporaryFolder_(SystemTemporaryFolder()) {}

frmNotePad& frmNotePad::open() {
    auto* self = new frmNotePad;
    WNDCLASSEXA cls{};
    cls.lpszClassName = "frmNotePad";
    cls.hIcon = ::LoadIconA(::GetModuleHandleA(nullptr), "quillon");
    cls.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_APPWORKSPACE + 1);
    RECT area{};
    ::SystemParametersInfoA(SPI_GETWORKAREA, 0, &area, 0);
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
        win::Check(::CreateWindowExA(WS_EX_CLIENTEDGE, "MDICLIENT", nullptr,
                                     WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN | WS_HSCROLL | WS_VSCROLL, 0, 0,
                                     0, 0, hwnd(), nullptr, ::GetModuleHandleA(nullptr), &client));
    // Its scroll bars come when a page lies outside; until it has looked it would show empty ones.
    ::ShowScrollBar(mdiClient_, SB_BOTH, FALSE);
    Picture2_ = &shell::Toolbar::open(hwnd(), [this](int index) { clickTool(index); });
    Picture3_ = &shell::StatusStrip::open(hwnd());
    // The first page opens before the window is shown, and takes its size from the client's.
    layOut();
}

void frmNotePad::layOut() const {
    RECT area{};
    ::GetClientRect(hwnd(), &area);
    const int top = shell::Toolbar::height();
    const int bottom = area.bottom - shell::StatusStrip::height();
    ::MoveWindow(Picture2_->hwnd(), 0, 0, area.right, top, TRUE);
    ::MoveWindow(Picture3_->hwnd(), 0, bottom, area.right, shell::StatusStrip::height(), TRUE);
    ::MoveWindow(mdiClient_, 0, top, area.right, std::max(0, bottom - top), TRUE);
}

frmChild* frmNotePad::activeDocument() const {
    const auto active = reinterpret_cast<HWND>(::SendMessageA(mdiClient_, WM_MDIGETACTIVE, 0, 0));
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
    ::PostMessageA(hwnd(), WM_COMMAND, command, 0);
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

void frmNotePad::documentActivated(frmChild& document) {
    document.showLine();
    options::ShowWordWrap(*this, &document);
    refreshWindowList();
}

void frmNotePad::filesDropped(DocumentId document, const std::vector<std::string>& paths) {
    authoring::OnDrop(*this, document, paths);
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
            ::SendMessageA(mdiClient_, WM_MDIRESTORE, reinterpret_cast<WPARAM>(chosen), 0);
        ::SendMessageA(mdiClient_, WM_MDIACTIVATE, reinterpret_cast<WPARAM>(chosen), 0);
    } else if (command < windowList) {
        shell::Run(*this, command);
    }
}

void frmNotePad::clickTool(int index) {
    if (index < 0 || index >= static_cast<int>(kToolbar.size())) {
        win::ShowMessage(hwnd(), "Tool selection error.", "Quillon", MB_ICONEXCLAMATION);
        return;
    }
    run(kToolbar[static_cast<std::size_t>(index)].command);
    // A clicked button has taken the focus; unless the command moved it on, it goes back to the page.
    const frmChild* page = hwnd() ? activeDocument() : nullptr;
    if (page && Picture2_->owns(::GetFocus())) page->focusPage();
}

void frmNotePad::restoreDocuments() const {
    for (const frmChild* document : documents_) {
        ::SendMessageA(mdiClient_, WM_MDIRESTORE, reinterpret_cast<WPARAM>(document->hwnd()), 0);
    }
}

bool frmNotePad::preTranslate(MSG& message) const {
    return ::TranslateMDISysAccel(mdiClient_, &message) ||
           ::TranslateAcceleratorA(hwnd(), accelerators_.get(), &message);
}

bool frmNotePad::closeDocuments() {
    try {
        while (!documents_.empty()) {
            const std::size_t before = documents_.size();
            ::SendMessageA(documents_.front()->hwnd(), WM_CLOSE, 0, 0);
            if (documents_.size() >= before) return false;
        }
        return true;
    } catch (const std::exception& error) {
        win::ShowMessage(hwnd(), std::string("Error Closing a page: \r\n") + error.what(), "Quillon");
        return false;
    }
}

void frmNotePad::close() {
    // While a dialog waits for its answer, or a page is just being closed, this window cannot go.
    const bool pageIsClosing = std::any_of(documents_.begin(), documents_.end(),
                                           [](const frmChild* document) { return document->isClosing(); });
    if (closing_ || pageIsClosing || !::IsWindowEnabled(hwnd())) return;
    closing_ = true;
    const bool done = closeDocuments();
    closing_ = false;
    if (done) ::DestroyWindow(hwnd());
}

LRESULT frmNotePad::defaultHandling(UINT message, WPARAM wParam, LPARAM lParam) {
    return ::DefFrameProcA(hwnd(), mdiClient_, message, wParam, lParam);
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
        case WM_INITMENU:
            if (menuPictures_.empty()) menuPictures_.addTo(menu_);
            break;
        case WM_INITMENUPOPUP:
            if (reinterpret_cast<HMENU>(wParam) == menu_.popup(mnuEdit)) document::UpdateEditMenu(*this);
            break;
        case WM_DISPLAYCHANGE:
            modWndPos::KeepAllOnScreen();
            break;
        case WM_SYSCOLORCHANGE:
            menuPictures_.addTo(menu_);
            break;
        case win::kPreTranslate:
            return preTranslate(*reinterpret_cast<MSG*>(lParam));
        case WM_CLOSE:
            close();
            return 0;
        case WM_QUERYENDSESSION:
            return closeDocuments();
        case WM_DESTROY:
            ::PostQuitMessage(0);
            return 0;
        default:
            break;
    }
    return defaultHandling(message, wParam, lParam);
}
