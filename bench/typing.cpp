// Keys in pages that are hard to work with, beside what a person does not notice yet.
#include <algorithm>

#include "bench.h"
#include "document/frmChild.h"
#include "files/modOpen.h"
#include "files/open_file.h"
#include "win/error.h"
#include "win/message_loop.h"
#include "win/unicode.h"

namespace bench {
namespace {

// Until its letter is on the screen and all that it has brought about is done.
void Key(HWND control) {
    ::SendMessageW(control, WM_CHAR, 'x', 0);
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

// Words and blanks without a line end, as a program leaves them that makes pages small.
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

// The copy is written half a minute after the first key at the latest.
void TypeWhileCopied(MainWindow& main) {
    frmChild& page = Open(main, Page(1000000));
    double longest = 0;
    const DWORD start = ::GetTickCount();
    while (::GetTickCount() - start < 32000) {
        longest = std::max(longest, Median(1, [&] { Key(page); }));
        ::Sleep(20);
    }
    Print("the longest key in 1 MB while its recovery copy is made, beside 50 ms", longest, 50, 1);
    Close(page);
}

void TypeIntoOneLine(MainWindow& main) {
    frmChild* page = nullptr;
    const std::string line = OneLine(200000);
    Print("opening 200 KB in one line, beside 2 s", Median(1, [&] { page = &Open(main, line); }), 2000, 1);
    page->txtPad().select(100000, 100000);
    Print("a key there, beside 0.3 s", Median(9, [&] { Key(*page); }), 300, 1);
    Close(*page);
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
