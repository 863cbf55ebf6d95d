#include "print/modPrint.h"

#include <winspool.h>

#include "document/frmChild.h"
#include "print/core/print_layout.h"
#include "win/error.h"
#include "win/late.h"
#include "win/message_box.h"
#include "win/message_loop.h"
#include "win/unique.h"
#include "win/units.h"

namespace modPrint {
namespace {

constexpr int kSmallestFont = 8;  // points; what a printer has as its default may be made for a screen
constexpr int kLargestFont = 14;
constexpr int kOwnFont = 10;

constexpr win::Late<decltype(&::GetDefaultPrinterA)> kGetDefaultPrinter{"winspool.drv", "GetDefaultPrinterA"};

win::UniqueDc DefaultPrinter() {
    DWORD size = 0;
    kGetDefaultPrinter(nullptr, &size);
    std::string name(size, '\0');
    win::Check(kGetDefaultPrinter(name.data(), &size));
    return win::UniqueDc(win::Check(::CreateDCA("WINSPOOL", name.c_str(), nullptr, nullptr)));
}

// A printer as the layout sees it: in twips, with its own default font where that can be read.
class Printer {
 public:
    Printer() : dc_(DefaultPrinter()) {
        if (!hasReadableFont()) useOwnFont();
        ::SetBkMode(dc(), TRANSPARENT);
    }

    HDC dc() const { return dc_.get(); }

    Paper paper() const {
        return {::MulDiv(::GetDeviceCaps(dc(), HORZRES), 1440, dpi(LOGPIXELSX)),
                ::MulDiv(::GetDeviceCaps(dc(), VERTRES), 1440, dpi(LOGPIXELSY)),
                ::MulDiv(metrics().tmHeight + metrics().tmExternalLeading, 1440, dpi(LOGPIXELSY))};
    }
    int width(std::string_view text) const {
        SIZE size{};
        ::GetTextExtentPoint32A(dc(), text.data(), static_cast<int>(text.size()), &size);
        return ::MulDiv(size.cx, 1440, dpi(LOGPIXELSX));
    }
    void print(const PlacedLine& line) const {
        win::Check(::TextOutA(dc(), ::MulDiv(line.left, dpi(LOGPIXELSX), 1440),
                              ::MulDiv(line.top, dpi(LOGPIXELSY), 1440), line.text.data(),
                              static_cast<int>(line.text.size())));
    }

 private:
    int dpi(int axis) const { return ::GetDeviceCaps(dc(), axis); }
    TEXTMETRICA metrics() const {
        TEXTMETRICA result{};
        ::GetTextMetricsA(dc(), &result);
        return result;
    }
    bool hasReadableFont() const {
        const TEXTMETRICA font = metrics();
        const int points = ::MulDiv(font.tmHeight, 72, dpi(LOGPIXELSY));
        return points >= kSmallestFont && points <= kLargestFont && font.tmCharSet != OEM_CHARSET &&
               font.tmCharSet != SYMBOL_CHARSET;
    }
    void useOwnFont() {
        font_.reset(::CreateFontA(-::MulDiv(kOwnFont, dpi(LOGPIXELSY), 72), 0, 0, 0, FW_NORMAL, FALSE, FALSE,
                                  FALSE, DEFAULT_CHARSET, OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS,
                                  DEFAULT_QUALITY, FIXED_PITCH | FF_MODERN, "Courier New"));
        ::SelectObject(dc(), font_.get());
    }

    win::UniqueFont font_;  // goes after the device that has it selected
    win::UniqueDc dc_;
};

// Throws for a result of the printing calls that says failure, 0 or less.
void CheckJob(int result) {
    if (result <= 0) win::ThrowLastError();
}

// A document in the printer's queue, taken out again unless it was ended.
class Job {
 public:
    Job(HDC dc, const std::string& name) : dc_(dc) {
        DOCINFOA info{};
        info.cbSize = sizeof info;
        info.lpszDocName = name.c_str();
        CheckJob(::StartDocA(dc, &info));
    }
    ~Job() {
        if (!ended_) ::AbortDoc(dc_);
    }
    Job(const Job&) = delete;
    Job& operator=(const Job&) = delete;

    void startPage() {
        if (onPage_) CheckJob(::EndPage(dc_));
        CheckJob(::StartPage(dc_));
        onPage_ = true;
    }
    void end() {
        if (onPage_) CheckJob(::EndPage(dc_));
        CheckJob(::EndDoc(dc_));
        ended_ = true;
    }

 private:
    HDC dc_;
    bool onPage_ = false;
    bool ended_ = false;
};

// A printer that prints into a file asks for its name, and the user may think better of it.
bool UserCancelled(const win::Error& error) {
    return error.code() == ERROR_CANCELLED || error.code() == ERROR_PRINT_CANCELLED;
}

}  // namespace

void PrintText(const std::string& text, const std::string& title, std::size_t tabLength) {
    if (text.empty()) return;
    const Printer printer;
    const Measure measure{[&printer](std::string_view piece) { return printer.width(piece); },
                          [](unsigned char byte) { return ::IsDBCSLeadByte(byte) != FALSE; }};
    PrintLayout layout(text, title, printer.paper(), measure, tabLength);
    Job job(printer.dc(), title.empty() ? "Quillon" : title);
    while (const auto line = layout.next()) {
        if (line->startsPage) job.startPage();
        printer.print(*line);
    }
    job.end();
}

void OnFilePrint(MainWindow& main, int) {
    const frmChild* page = main.activeDocument();
    if (!page) return;
    const std::string text = page->txtPad().text();
    const std::string title = page->Tag();
    const std::size_t tabLength = page->tabText().size();
    try {
        const win::WaitCursor hourglass;
        PrintText(text, title, tabLength);
    } catch (const win::Error& error) {
        if (!UserCancelled(error))
            win::ShowMessage(main.mainHwnd(), "Printer Error", "Quillon", MB_ICONEXCLAMATION);
    }
}

}  // namespace modPrint
