#include "authoring/frmReplace.h"

#include <exception>

#include "authoring/core/find_replace.h"
#include "document/frmChild.h"
#include "forms/frmReplace.h"
#include "win/clipboard.h"
#include "win/error.h"
#include "win/message_loop.h"

namespace {

constexpr char kName[] = "frmReplace";
constexpr int kDown = 3700;  // twips; below the Find dialog

}  // namespace

frmReplace::frmReplace(MainWindow& owner)
    : PageDialog(kName, owner, kDown), mReplaceOriginalKid(owner.activeDocument()->hwnd()) {}

void frmReplace::show(MainWindow& main) {
    if (const Dialog* open = find(main.mainHwnd(), kName)) {
        ::SetActiveWindow(open->hwnd());
        ::SetFocus(::GetDlgItem(open->hwnd(), txtReplace));
    } else if (main.activeDocument()) {
        (new frmReplace(main))->showModeless(main.mainHwnd());
    }
}

bool frmReplace::onCommand(WORD id, WORD notification) {
    // While all is being replaced only Cancel is heard.
    if (busy_) return id != cmdCancel;
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
    Texts texts{itemText(txtReplace), itemText(txtReplaceWith)};
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
    const frmChild* target = page();
    if (!texts || !target) return;
    document::RichEdit& pad = target->txtPad();
    std::string text = pad.text();
    const std::size_t at = authoring::FindExact(text, texts->find);
    if (at == authoring::kNotFound) {
        tellNoMatch();
        return;
    }
    main().showResult("Last Replace changed 1 occurrence.");
    const auto start = static_cast<long>(at);
    pad.select(start, start + static_cast<long>(texts->find.size()));
    pad.replaceSelection(texts->with);
    pad.scrollToCaret();
    focusPage(*target);
    text.replace(at, texts->find.size(), texts->with);
    enableButtons(authoring::FindExact(text, texts->find, at + 1) != authoring::kNotFound);
}

void frmReplace::clickReplaceAll() {
    bringPageToTop();
    const std::optional<Texts> texts = typed(kNote);
    if (!texts) return;
    bool matched = true;
    bool failed = false;
    busy_ = true;
    try {
        const win::WaitCursor wait;
        const Outcome outcome = replaced(*texts);
        matched = outcome.count > 0;
        if (matched && page()) takeOver(outcome);
    } catch (const std::exception&) {
        failed = true;
    }
    busy_ = false;
    if (!hwnd()) return;
    if (failed) note("Too much to handle at this time!");
    if (!failed && !matched) tellNoMatch();
}

frmReplace::Outcome frmReplace::replaced(const Texts& texts) {
    Outcome outcome;
    std::string text;
    // What the user types while messages run must not be lost with the old text: then it is done again.
    for (const frmChild* target = page(); target && target->txtPad().text() != text; target = page()) {
        text = target->txtPad().text();
        const std::optional<int> count = authoring::CountMatches(text, texts.find);
        if (!count) throw win::Failure("more than can be counted");
        if (*count == 0) return {};
        outcome = {authoring::ReplaceText(text, texts.find, texts.with, win::RunPending), *count};
    }
    return outcome;
}

void frmReplace::takeOver(const Outcome& outcome) {
    frmChild& target = *page();
    win::SetClipboardText(hwnd(), outcome.text);
    target.replacePage(outcome.text);
    main().showResult("Last Replace changed  " + std::to_string(outcome.count) + " occurrences.");
    close();
}

namespace authoring {

void OnReplace(MainWindow& main, int) {
    frmReplace::show(main);
}

}  // namespace authoring
