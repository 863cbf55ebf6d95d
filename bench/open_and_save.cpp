// Opening and saving a page, beside what the bare control and the file system need.
#include <algorithm>
#include <cstring>
#include <string_view>

#include "bench.h"
#include "document/frmChild.h"
#include "files/modOpen.h"
#include "files/open_file.h"
#include "win/error.h"
#include "win/unicode.h"
#include "win/unique.h"

namespace bench {
namespace {

DWORD CALLBACK Feed(DWORD_PTR cookie, LPBYTE buffer, LONG size, LONG* done) {
    auto& rest = *reinterpret_cast<std::u16string_view*>(cookie);
    std::size_t count = std::min(rest.size(), static_cast<std::size_t>(size) / sizeof(char16_t));
    if (count < rest.size() && rest[count - 1] == u'\r') --count;
    std::memcpy(buffer, rest.data(), count * sizeof(char16_t));
    rest.remove_prefix(count);
    *done = static_cast<LONG>(count * sizeof(char16_t));
    return 0;
}

void OpenAndClose(MainWindow& main, const std::string& path) {
    ::SendMessageA(files::OpenFile(main, path)->hwnd(), WM_CLOSE, 0, 0);
}

void Save(MainWindow& main, const std::string& path) {
    if (!modOpen::SaveDocument(main, main.activeDocument()->id(), path))
        throw win::Failure("The save failed.");
}

}  // namespace

void BareControl(HWND parent, std::u16string_view page, const std::function<void(HWND)>& use) {
    // The same control as a page's, made and set up in the same way.
    struct Bare : document::RichEdit {
        using Control::hwnd;
    } bare;
    bare.create(parent, 0, {"Courier New", 10});
    const HWND control = bare.hwnd();
    ::MoveWindow(control, 0, 40, 800, 500, FALSE);
    std::u16string_view rest = page;
    EDITSTREAM stream{reinterpret_cast<DWORD_PTR>(&rest), 0, Feed};
    ::SendMessageA(control, EM_STREAMIN, SF_TEXT | SF_UNICODE, reinterpret_cast<LPARAM>(&stream));
    if (use) use(control);
    ::DestroyWindow(control);
}

void OpenAndSave(MainWindow& main) {
    const std::string one = Scratch("one.htm");
    const std::string four = Scratch("four.htm");
    const std::string page = Page(1000000);
    const std::u16string text = win::Utf16FromUtf8(page);
    WriteFile(one, page);
    WriteFile(four, Page(4000000));
    OpenAndClose(main, one);
    Compare(
        "opening 1 MB, beside the bare control streaming it", 1.15, 5, [&] { OpenAndClose(main, one); },
        [&] { BareControl(main.mainHwnd(), text); });

    frmChild& large = *files::OpenFile(main, four);
    const double largeSave = Median(7, [&] { Save(main, four); });
    ::SendMessageA(large.hwnd(), WM_CLOSE, 0, 0);
    frmChild& small = *files::OpenFile(main, one);
    Compare(
        "saving 1 MB, beside reading the control and writing a file", 2.0, 15, [&] { Save(main, one); },
        [&] {
            const win::UniqueFile file(::CreateFileW(win::ToWide(Scratch("plain.htm")).c_str(), GENERIC_WRITE,
                                                     0, nullptr, CREATE_ALWAYS, 0, nullptr));
            const std::u16string read = small.txtPad().text();
            DWORD written = 0;
            ::WriteFile(file.get(), read.data(), static_cast<DWORD>(read.size()), &written, nullptr);
            ::FlushFileBuffers(file.get());
        });
    Print("saving 4 MB, beside saving 1 MB", largeSave, Median(7, [&] { Save(main, one); }), 4.5);
    ::SendMessageA(small.hwnd(), WM_CLOSE, 0, 0);
}

}  // namespace bench
