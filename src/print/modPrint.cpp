#include "print/modPrint.h"

#include <winspool.h>

#include <algorithm>
#include <iterator>
#include <utility>
#include <vector>

#include "document/frmChild.h"
#include "print/core/print_layout.h"
#include "win/error.h"
#include "win/message_box.h"
#include "win/message_loop.h"
#include "win/system_dll.h"
#include "win/unicode.h"
#include "win/unique.h"
#include "win/units.h"

namespace modPrint {
namespace {

constexpr int kSmallestFont = 8;  // points; what a printer has as its default may be made for a screen
constexpr int kLargestFont = 14;
constexpr int kOwnFont = 10;
constexpr WORD kNoGlyph = 0xFFFF;
// The default one holds the letters of Europe.
constexpr DWORD kCharsets[] = {DEFAULT_CHARSET, SHIFTJIS_CHARSET, GB2312_CHARSET, CHINESEBIG5_CHARSET,
                               HANGUL_CHARSET,  ARABIC_CHARSET,   THAI_CHARSET};

constexpr win::DelayLoaded<decltype(&::GetDefaultPrinterW)> kGetDefaultPrinter{"winspool.drv",
                                                                               "GetDefaultPrinterW"};

win::UniqueDc DefaultPrinter() {
    DWORD size = 0;
    kGetDefaultPrinter(nullptr, &size);
    std::wstring name(size, L'\0');
    win::Check(kGetDefaultPrinter(name.data(), &size));
    return win::UniqueDc(win::Check(::CreateDCW(L"WINSPOOL", name.c_str(), nullptr, nullptr)));
}

// Each character beyond ASCII once. Those beyond U+FFFF are left out, whose glyphs cannot be asked for.
std::u16string SpecialCharacters(std::u16string_view text) {
    std::u16string characters;
    std::copy_if(text.begin(), text.end(), std::back_inserter(characters),
                 [](char16_t c) { return c >= 0x80 && !win::IsSurrogate(c); });
    std::sort(characters.begin(), characters.end());
    characters.erase(std::unique(characters.begin(), characters.end()), characters.end());
    return characters;
}

// A printer as the layout sees it: in twips, with its own default font where that can be read and has the
// characters of the text.
class Printer {
 public:
    explicit Printer(std::u16string_view text) : dc_(DefaultPrinter()) {
        const std::u16string characters = SpecialCharacters(text);
        if (!hasReadableFont() || countMissing(characters) > 0) useOwnFont(characters);
        ::SetBkMode(dc(), TRANSPARENT);
    }

    HDC dc() const { return dc_.get(); }

    Paper paper() const {
        return {::MulDiv(::GetDeviceCaps(dc(), HORZRES), 1440, dpi(LOGPIXELSX)),
                ::MulDiv(::GetDeviceCaps(dc(), VERTRES), 1440, dpi(LOGPIXELSY)),
                ::MulDiv(metrics().tmHeight + metrics().tmExternalLeading, 1440, dpi(LOGPIXELSY))};
    }
    int width(std::u16string_view text) const {
        SIZE size{};
        ::GetTextExtentPoint32W(dc(), win::AsWide(text).data(), static_cast<int>(text.size()), &size);
        return ::MulDiv(size.cx, 1440, dpi(LOGPIXELSX));
    }
    void print(const PlacedLine& line) const {
        win::Check(::TextOutW(dc(), ::MulDiv(line.left, dpi(LOGPIXELSX), 1440),
                              ::MulDiv(line.top, dpi(LOGPIXELSY), 1440), win::AsWide(line.text).data(),
                              static_cast<int>(line.text.size())));
    }

 private:
    int dpi(int axis) const { return ::GetDeviceCaps(dc(), axis); }
    TEXTMETRICW metrics() const {
        TEXTMETRICW result{};
        ::GetTextMetricsW(dc(), &result);
        return result;
    }
    bool hasReadableFont() const {
        const TEXTMETRICW font = metrics();
        const int points = ::MulDiv(font.tmHeight, 72, dpi(LOGPIXELSY));
        return points >= kSmallestFont && points <= kLargestFont && font.tmCharSet != OEM_CHARSET &&
               font.tmCharSet != SYMBOL_CHARSET;
    }
    std::size_t countMissing(std::u16string_view characters) const {
        std::vector<WORD> glyphs(characters.size(), kNoGlyph);
        ::GetGlyphIndicesW(dc(), win::AsWide(characters).data(), static_cast<int>(characters.size()),
                           glyphs.data(), GGI_MARK_NONEXISTING_GLYPHS);
        return static_cast<std::size_t>(std::count(glyphs.begin(), glyphs.end(), kNoGlyph));
    }
    void selectFont(DWORD charset) {
        win::UniqueFont font(::CreateFontW(-::MulDiv(kOwnFont, dpi(LOGPIXELSY), 72), 0, 0, 0, FW_NORMAL,
                                           FALSE, FALSE, FALSE, charset, OUT_DEFAULT_PRECIS,
                                           CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, FIXED_PITCH | FF_MODERN,
                                           L"Courier New"));
        ::SelectObject(dc(), font.get());
        font_ = std::move(font);
    }
    // Where the system has no such face for a character set, it takes another one of the same kind.
    void useOwnFont(std::u16string_view characters) {
        DWORD best = DEFAULT_CHARSET;
        std::size_t fewest = characters.size() + 1;
        for (const DWORD charset : kCharsets) {
            selectFont(charset);
            const std::size_t missing = countMissing(characters);
            if (missing < fewest) best = charset;
            fewest = std::min(fewest, missing);
            if (missing == 0) return;
        }
        selectFont(best);
    }

    win::UniqueFont font_;  // destroyed after the device that has it selected
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
        const std::wstring wide = win::ToWide(name);
        DOCINFOW info{};
        info.cbSize = sizeof info;
        info.lpszDocName = wide.c_str();
        CheckJob(::StartDocW(dc, &info));
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

// A printer that prints into a file asks for its name, and the user may cancel.
bool UserCancelled(const win::Error& error) {
    return error.code() == ERROR_CANCELLED || error.code() == ERROR_PRINT_CANCELLED;
}

}  // namespace

void PrintText(std::u16string_view text, const std::string& title, std::size_t tabLength) {
    if (text.empty()) return;
    const Printer printer(text);
    const Measure measure{[&printer](std::u16string_view piece) { return printer.width(piece); }};
    PrintLayout layout(text, win::Utf16FromUtf8(title), printer.paper(), measure, tabLength);
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
    try {
        const win::WaitCursor hourglass;
        PrintText(page->txtPad().text(), std::string(page->Tag()), page->tabText().size());
        return;
    } catch (const win::Error& error) {
        if (UserCancelled(error)) return;
    } catch (...) {
        // Reported below, like any other failure.
    }
    win::ShowMessage(main.mainHwnd(), "Printer Error", "Quillon", MB_ICONEXCLAMATION);
}

}  // namespace modPrint
