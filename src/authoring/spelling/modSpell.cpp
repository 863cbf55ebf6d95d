#include "authoring/spelling/modSpell.h"

#include <exception>
#include <utility>

#include "authoring/spelling/core/spell_words.h"
#include "authoring/spelling/spell_service.h"
#include "document/core/codec.h"
#include "document/frmChild.h"
#include "document/system_code_pages.h"
#include "win/clipboard.h"
#include "win/disabled.h"
#include "win/error.h"
#include "win/message_box.h"
#include "win/message_loop.h"
#include "win/unicode.h"

namespace modSpell {
namespace {

struct Sent {
    DocumentId page;
    std::u16string before;  // the whole page
    document::Selection selection;
    std::u16string text;  // what is to be corrected
};

struct NoService : win::Failure {
    NoService() : Failure("There is no spelling service.") {}
};

std::unique_ptr<authoring::SpellService> StartService(const std::string& language) {
    // Starting a program handles messages.
    const win::Disabled ours;
    const win::WaitCursor wait;
    auto service = authoring::StartWordBasic();
    return service ? std::move(service) : authoring::StartSystemSpelling(language);
}

std::optional<std::u16string> Correct(MainWindow& main, const Sent& sent) {
    const auto service = StartService(win::Utf8FromUtf16(authoring::PageLanguage(sent.before)));
    if (!service) throw NoService();
    // The window that the word processor brings up is allowed to come to the front.
    ::AllowSetForegroundWindow(ASFW_ANY);
    return service->correct(main.mainHwnd(), sent.text);
}

void KeepOnClipboard(HWND owner, const std::u16string& text) {
    try {
        win::SetClipboardText(owner, text);
    } catch (const std::exception&) {
        // Another program has the clipboard open.
    }
}

void ReplaceSelection(frmChild& page, const Sent& sent, const std::u16string& corrected) {
    if (corrected == sent.text) return;
    page.txtPad().select(sent.selection.start, sent.selection.end);
    page.insert(corrected);
}

void ReplacePage(MainWindow& main, frmChild& page, const Sent& sent, const std::u16string& corrected) {
    if (corrected != sent.before) {
        page.replacePage(document::WithReferences(page.encoding(), corrected, document::SystemCodePages()));
    }
    page.selectAll();
    ::SendMessageW(page.txtPad().hwnd(), WM_VSCROLL, SB_TOP, 0);
    main.showLine(1);
}

void PutBack(MainWindow& main, const Sent& sent, const std::u16string& corrected) {
    frmChild* page = main.find(sent.page);
    if (!page || page->txtPad().text() != sent.before) throw win::Failure("The page is another by now.");
    if (corrected.empty()) throw win::Failure("The text did not come back.");
    // If that fails there is still Undo.
    KeepOnClipboard(page->hwnd(), sent.before);
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
    if (pad.isReadOnly()) throw win::Failure("The page cannot be changed.");
    if (sent.before.empty()) {
        page->focusPage();
        return;
    }
    if (sent.selection.length() == 0) sent.text = sent.before;
    const auto corrected = Correct(main, sent);
    if (!corrected) return;
    try {
        PutBack(main, sent, *corrected);
    } catch (const std::exception&) {
        if (!corrected->empty()) KeepOnClipboard(main.mainHwnd(), *corrected);
        throw;
    }
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
