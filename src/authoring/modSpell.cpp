#include "authoring/modSpell.h"

#include "authoring/spell_service.h"
#include "document/frmChild.h"
#include "win/clipboard.h"
#include "win/error.h"
#include "win/message_box.h"
#include "win/message_loop.h"

namespace modSpell {
namespace {

// Nothing of the program may change the page while its text is away.
class Asleep {
 public:
    explicit Asleep(HWND window) : window_(window), wasEnabled_(::IsWindowEnabled(window)) {
        ::EnableWindow(window_, FALSE);
    }
    ~Asleep() { ::EnableWindow(window_, wasEnabled_); }
    Asleep(const Asleep&) = delete;
    Asleep& operator=(const Asleep&) = delete;

 private:
    HWND window_;
    BOOL wasEnabled_;
};

struct Sent {
    DocumentId page;
    std::string before;  // the whole page
    document::Selection selection;
    std::string text;  // what is to be corrected
};

struct NoService : win::Failure {
    NoService() : Failure("There is no spelling service.") {}
};

std::optional<std::string> Correct(MainWindow& main, const std::string& text) {
    const Asleep asleep(main.mainHwnd());
    std::unique_ptr<authoring::SpellService> service;
    {
        const win::WaitCursor wait;
        service = authoring::StartSpellService();
    }
    if (!service) throw NoService();
    // The window that the word processor brings up is allowed to come to the front.
    ::AllowSetForegroundWindow(ASFW_ANY);
    return service->correct(main.mainHwnd(), text);
}

void ReplaceSelection(frmChild& page, const Sent& sent, const std::string& corrected) {
    if (corrected.find('\0') != std::string::npos) throw win::Failure("The text holds a NUL.");
    page.txtPad().select(sent.selection.start, sent.selection.end);
    page.txtPad().replaceSelection(corrected);
}

void ReplacePage(MainWindow& main, frmChild& page, const Sent& sent, const std::string& corrected) {
    if (corrected != sent.before) {
        page.setPage(corrected);
        page.txtPad().setChanged(true);
    }
    page.selectAll();
    ::SendMessageA(page.txtPad().hwnd(), WM_VSCROLL, SB_TOP, 0);
    main.showLine(1);
}

void PutBack(MainWindow& main, const Sent& sent, const std::string& corrected) {
    frmChild* page = main.find(sent.page);
    if (!page || page->txtPad().text() != sent.before) throw win::Failure("The page is another by now.");
    if (corrected.empty()) throw win::Failure("The text did not come back.");
    win::SetClipboardText(page->hwnd(), sent.before);
    if (sent.selection.length() > 0) {
        ReplaceSelection(*page, sent, corrected);
    } else {
        ReplacePage(main, *page, sent, corrected);
    }
    page->focusPage();
}

}  // namespace

void SpellCheck(MainWindow& main) {
    frmChild* page = main.activeDocument();
    if (!page) return;
    const document::RichEdit& pad = page->txtPad();
    Sent sent{page->id(), pad.text(), pad.selection(), pad.selectedText()};
    if (sent.before.empty()) {
        page->focusPage();
        return;
    }
    if (sent.selection.length() == 0) sent.text = sent.before;
    const auto corrected = Correct(main, sent.text);
    if (!corrected) return;
    PutBack(main, sent, *corrected);
    win::ShowMessage(main.mainHwnd(), "Spell Check Completed.", "Quillon Note:");
}

void OnSpelling(MainWindow& main, int) {
    try {
        SpellCheck(main);
    } catch (const NoService&) {
        win::ShowMessage(main.mainHwnd(), "Could not Load Microsoft Word!", "Quillon");
    } catch (const std::exception&) {
        win::ShowMessage(main.mainHwnd(),
                         "Spell check  failed.\r\nIf problem persists, please contact Quillon Support.",
                         "Quillon");
    }
}

}  // namespace modSpell
