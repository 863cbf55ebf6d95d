#include "authoring/find/frmReplace.h"

#include "authoring/find/core/find_replace.h"
#include "document/frmChild.h"
#include "document/system_code_pages.h"
#include "forms/frmReplace.h"
#include "win/clipboard.h"
#include "win/disabled.h"
#include "win/error.h"
#include "win/message_loop.h"
#include "win/unicode.h"

namespace {

constexpr char kName[] = "frmReplace";
constexpr int kDown = 3700;  // twips; below the Find dialog

}  // namespace

frmReplace::frmReplace(MainWindow& owner)
    : PageDialog(kName, owner, kDown), mReplaceOriginalKid(owner.activeDocument()->hwnd()) {}

void frmReplace::show(MainWindow& main) {
    if (const Dialog* open = bringForward(main.mainHwnd(), kName)) {
        ::SetFocus(::GetDlgItem(open->hwnd(), txtReplace));
    } else if (main.activeDocument()) {
        (new frmReplace(main))->showModeless(main.mainHwnd());
    }
}

bool frmReplace::onCommand(WORD id, WORD notification) {
    // During Replace All only Cancel works.
    if (busy_) {
        cancelled_ = cancelled_ || id == cmdCancel;
        return true;
    }
    if (notification == EN_CHANGE && (id == txtReplace || id == txtReplaceWith)) {
        enableButtons(true);
    } else if (notification == BN_CLICKED && id == cmdReplace) {
        clickReplace();
    } else if (notification == BN_CLICKED && id == cmdReplaceAll) {
        clickReplaceAll();
    } else {
        return false;
    }
    return true;
}

void frmReplace::enableButtons(bool enabled) const {
    enableItem(cmdReplace, enabled);
    enableItem(cmdReplaceAll, enabled);
}

void frmReplace::tellNoMatch() const {
    note("No match found");
    if (hwnd()) focusItem(txtReplace);
}

std::optional<frmReplace::Texts> frmReplace::typed(const char* titleWithoutNewText) const {
    Texts texts{win::Utf16FromUtf8(itemText(txtReplace)), win::Utf16FromUtf8(itemText(txtReplaceWith))};
    if (texts.find.empty()) {
        note("Enter text to be replaced.");
    } else if (texts.with.empty()) {
        ask("Enter text to replace with...", titleWithoutNewText);
    } else {
        return texts;
    }
    return std::nullopt;
}

void frmReplace::clickReplace() {
    bringPageToTop();
    const std::optional<Texts> texts = typed("Quillon");
    frmChild* target = page();
    if (!texts || !target) return;
    document::RichEdit& pad = target->txtPad();
    const std::size_t at = authoring::FindFrom(pad.text(), texts->find, 0);
    if (at == authoring::kNotFound) {
        tellNoMatch();
        return;
    }
    main().showResult("Last Replace changed 1 occurrence.");
    const auto start = static_cast<long>(at);
    pad.select(start, start + static_cast<long>(texts->find.size()));
    target->insert(texts->with);
    pad.scrollToCaret();
    target->focusPage();
    enableButtons(authoring::FindFrom(pad.text(), texts->find, at + 1) != authoring::kNotFound);
}

void frmReplace::clickReplaceAll() {
    bringPageToTop();
    const std::optional<Texts> texts = typed(kNote);
    frmChild* target = page();
    if (!texts || !target) return;
    bool matched = true;
    bool failed = false;
    busy_ = true;
    try {
        const win::WaitCursor wait;
        matched = replaceAll(*target, *texts);
    } catch (...) {
        failed = true;
    }
    busy_ = false;
    if (!hwnd()) return;
    if (cancelled_) {
        close();
        return;
    }
    if (failed) note("Too much to handle at this time!");
    if (!failed && !matched) tellNoMatch();
}

bool frmReplace::replaceAll(frmChild& target, const Texts& texts) {
    const std::u16string text = target.txtPad().text();
    const std::optional<int> count = authoring::CountMatches(text, texts.find);
    if (!count) throw win::Failure("more than can be counted");
    if (*count == 0) return false;
    const std::u16string with =
        document::WithReferences(target.encoding(), texts.with, document::SystemCodePages());
    takeOver(replaced(text, texts.find, with), *count);
    return true;
}

// Messages are handled meanwhile, so that Cancel works. The page is disabled, and stays as it was read.
std::u16string frmReplace::replaced(std::u16string_view text, std::u16string_view find,
                                    std::u16string_view with) const {
    ::SetFocus(hwnd());
    const win::Disabled others(hwnd());
    // Looking for messages takes much longer than replacing a word.
    constexpr DWORD kBetweenLooks = 10;  // milliseconds
    DWORD lastLook = ::GetTickCount() - kBetweenLooks;
    return authoring::ReplaceText<char16_t>(text, find, with, [this, &lastLook] {
        if (::GetTickCount() - lastLook < kBetweenLooks) return;
        win::RunPending();
        lastLook = ::GetTickCount();
        if (cancelled_) throw win::Failure("cancelled");
    });
}

void frmReplace::takeOver(const std::u16string& text, int count) {
    frmChild* target = page();
    if (!target) return;
    win::SetClipboardText(hwnd(), text);
    target->replacePage(text);
    main().showResult("Last Replace changed  " + std::to_string(count) + " occurrences.");
    close();
}

namespace authoring {

void OnReplace(MainWindow& main, int) {
    frmReplace::show(main);
}

}  // namespace authoring
