// Finding, replacing and resetting, beside what the bare control needs for the same.
#include "authoring/find/frmFind.h"
#include "authoring/find/frmReplace.h"
#include "bench.h"
#include "document/frmChild.h"
#include "files/open_file.h"
#include "files/page_reset.h"
#include "forms/frmFind.h"
#include "forms/frmReplace.h"
#include "win/unicode.h"

namespace bench {
namespace {

void Fill(HWND dialog, int box, const std::string& text) {
    ::SetDlgItemTextW(dialog, box, win::ToWide(text).c_str());
}

void Click(HWND dialog, int button) {
    ::SendMessageA(::GetDlgItem(dialog, button), BM_CLICK, 0, 0);
}

void CountInControl(HWND control, const std::string& wanted) {
    FINDTEXTEXA search{};
    search.lpstrText = wanted.c_str();
    do {
        search.chrg = {search.chrgText.cpMax, -1};
    } while (::SendMessageA(control, EM_FINDTEXTEX, FR_DOWN, reinterpret_cast<LPARAM>(&search)) != -1);
}

// Some 200 bytes for every match: 5,000 in 1 MB.
std::string PageOfMatches(std::size_t bytes) {
    std::string page = "<HTML>\r\n<BODY>\r\n";
    while (page.size() < bytes) {
        page += "<P>Here a <B>needle</B> lies.</P>\r\n";
        for (int line = 0; line < 3; ++line) page += "<P>Bread, butter and some more words of hay.</P>\r\n";
    }
    return page + "</BODY>\r\n</HTML>";
}

void CountMatches(MainWindow& main) {
    const frmChild& page = frmChild::open(main, "matches.htm", document::NewPage(PageOfMatches(1000000)));
    frmFind::show(main);
    const HWND dialog = win::Dialog::find(main.mainHwnd(), "frmFind")->hwnd();
    Compare(
        "finding and counting 5,000 matches in 1 MB, beside the control", 1.2, 7,
        [&] { Click(dialog, cmdFind); }, [&] { CountInControl(page.txtPad().hwnd(), "Needle"); },
        [&] {
            page.txtPad().select(0, 0);
            Fill(dialog, txtFind, "Needle");
        });
    ::SendMessageA(page.hwnd(), WM_CLOSE, 0, 0);
}

void ReplaceAll(MainWindow& main) {
    frmChild& page = frmChild::open(main, "matches.htm", document::NewPage(""));
    const std::u16string before = win::Utf16FromUtf8(PageOfMatches(500000));
    std::u16string after;
    HWND dialog = nullptr;
    Compare(
        "Replace All in 500 KB, beside a bare control streaming the result", 1.3, 5,
        [&] {
            Click(dialog, cmdReplaceAll);
            after = page.txtPad().text();
        },
        [&] { BareControl(main.mainHwnd(), after); },
        [&] {
            page.replacePage(before);
            frmReplace::show(main);
            dialog = win::Dialog::find(main.mainHwnd(), "frmReplace")->hwnd();
            Fill(dialog, txtReplace, "needle");
            Fill(dialog, txtReplaceWith, "long pin");
        });
    page.txtPad().setChanged(false);
    ::SendMessageA(page.hwnd(), WM_CLOSE, 0, 0);
}

void Reset(MainWindow& main) {
    const std::string path = Scratch("reset.htm");
    const std::string saved = PageOfMatches(500000);
    const std::u16string text = win::Utf16FromUtf8(saved);
    WriteFile(path, saved);
    frmChild& page = *files::OpenFile(main, path);
    Compare(
        "resetting 500 KB, beside a bare control streaming it", 1.5, 5, [&] { files::OnReset(main, 0); },
        [&] { BareControl(main.mainHwnd(), text); }, [&] { page.insert(u"edit"); });
    page.txtPad().setChanged(false);
    ::SendMessageA(page.hwnd(), WM_CLOSE, 0, 0);
}

}  // namespace

void FindAndReplace(MainWindow& main) {
    CountMatches(main);
    ReplaceAll(main);
    Reset(main);
}

}  // namespace bench
