// Keys in pages that are hard on the control, beside times that a person does not notice.
#include "bench.h"
#include "document/frmChild.h"
#include "files/modOpen.h"
#include "files/open_file.h"
#include "files/recovery.h"
#include "win/error.h"
#include "win/message_loop.h"
#include "win/unicode.h"

namespace bench {
namespace {

// Presses a key and returns when its letter is on the screen and all messages have been handled. Lines are
// kept as short as people make them, because the control takes longer the longer a line is.
void Key(HWND control) {
    constexpr unsigned kLine = 50;
    static unsigned keys = 0;
    const bool endsLine = ++keys % kLine == 0;
    ::SendMessageW(control, endsLine ? WM_KEYDOWN : WM_CHAR, endsLine ? VK_RETURN : 'x', 0);
    ::UpdateWindow(control);
    win::RunPending();
}

void Key(const frmChild& page) {
    Key(page.txtPad().hwnd());
}

frmChild& Open(MainWindow& main, const std::string& bytes) {
    const std::string path = Scratch("typing.htm");
    WriteFile(path, bytes);
    frmChild& page = *files::OpenFile(main, path);
    win::RunPending();
    return page;
}

void Close(frmChild& page) {
    page.txtPad().setChanged(false);
    ::SendMessageW(page.hwnd(), WM_CLOSE, 0, 0);
}

// Words and blanks without a line end, as programs that compress pages write them.
std::string OneLine(std::size_t size) {
    std::string line;
    while (line.size() < size) line += "<p>Bread, butter and some more words.</p> ";
    return line;
}

void TypeIntoLarge(MainWindow& main) {
    constexpr long kMiddle = 1500000;
    const std::string text = Page(2 * kMiddle);
    frmChild& page = Open(main, text);
    page.txtPad().select(kMiddle, kMiddle);
    Key(page);
    const double ours = Median(200, [&] { Key(page); });
    Close(page);
    Print("a key in a page of 3 MB, beside 10 ms", ours, 10, 1);
    BareControl(main.mainHwnd(), win::Utf16FromUtf8(text), [&](HWND control) {
        ::SendMessageW(control, EM_SETSEL, kMiddle, kMiddle);
        ::SetFocus(control);
        Key(control);
        Print("the same, beside the bare control", ours, Median(200, [&] { Key(control); }), 1.5);
    });
}

// Types a key just when the copy begins to be written.
void TypeWhileCopied(MainWindow& main) {
    frmChild& page = Open(main, Page(1000000));
    Key(page);
    files::Recovery recovery(Scratch(""));
    DWORD now = 0;
    const auto change = [&] {
        while (recovery.isAnyDue()) recovery.writeDue(main, now);
        recovery.noteChange(page.id(), now);
        now += 10000;
    };
    const auto type = [&] {
        recovery.writeDue(main, now);
        Key(page);
    };
    Compare(
        "a key in 1 MB while its recovery copy is made, beside reading the page", 2, 9, type,
        [&] { page.txtPad().text(); }, change);
    recovery.remove(page.id());
    Close(page);
}

void TypeIntoOneLine(MainWindow& main) {
    frmChild* page = nullptr;
    const std::string line = OneLine(200000);
    Print("opening 200 KB in one line, beside 2 s", Median(1, [&] { page = &Open(main, line); }), 2000, 1);
    page->txtPad().select(100000, 100000);
    const double ours = Median(9, [&] { Key(*page); });
    Close(*page);
    Print("a key there, beside 0.3 s", ours, 300, 1);
    BareControl(main.mainHwnd(), win::Utf16FromUtf8(line), [&](HWND control) {
        ::SendMessageW(control, EM_SETTARGETDEVICE, 0, 0);
        ::SendMessageW(control, EM_SETSEL, 100000, 100000);
        ::SetFocus(control);
        Key(control);
        Print("the same, beside the bare control with word wrap", ours, Median(9, [&] { Key(control); }),
              1.5);
    });
    Print("opening, saving and closing 1 MB in one line, beside 10 s",
          Median(1,
                 [&] {
                     page = &Open(main, OneLine(1000000));
                     Key(*page);
                     if (!modOpen::SaveDocument(main, page->id(), page->Tag()))
                         throw win::Failure("The save failed.");
                     Close(*page);
                 }),
          10000, 1);
}

}  // namespace

void Typing(MainWindow& main) {
    TypeIntoLarge(main);
    TypeWhileCopied(main);
    TypeIntoOneLine(main);
}

}  // namespace bench
