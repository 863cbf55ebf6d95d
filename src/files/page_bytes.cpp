#include "files/page_bytes.h"

#include <algorithm>

#include "document/mTxtBoxAPI.h"
#include "document/system_code_pages.h"
#include "files/core/page_lines.h"

namespace files {
namespace {

// A wrapping control speaks of displayed lines, so wrapping is off while lines are counted.
class WithoutWrap {
 public:
    explicit WithoutWrap(document::RichEdit& pad) : pad_(pad), wrapped_(pad.wordWrap()) {
        if (!wrapped_) return;
        ::SendMessageW(pad_.hwnd(), WM_SETREDRAW, FALSE, 0);
        pad_.setWordWrap(false);
    }
    ~WithoutWrap() {
        if (!wrapped_) return;
        pad_.setWordWrap(true);
        ::SendMessageW(pad_.hwnd(), WM_SETREDRAW, TRUE, 0);
        ::InvalidateRect(pad_.hwnd(), nullptr, TRUE);
    }
    WithoutWrap(const WithoutWrap&) = delete;
    WithoutWrap& operator=(const WithoutWrap&) = delete;

 private:
    document::RichEdit& pad_;
    bool wrapped_;
};

std::u16string LinesOneByOne(HWND edit, std::u16string_view text) {
    std::u16string lines;
    lines.reserve(text.size() + 2);
    const long count = mTxtBoxAPI::LineCount(edit);
    for (long line = 0; line < count; ++line) {
        const auto start = static_cast<std::size_t>(mTxtBoxAPI::LineStart(edit, line));
        const auto length = static_cast<std::size_t>(mTxtBoxAPI::LineLength(edit, line));
        if (start <= text.size()) lines.append(text.substr(start, length));
        lines.append(u"\r\n");
    }
    return lines;
}

std::u16string PageLines(document::RichEdit& pad) {
    const std::u16string text = pad.text();
    TerminatedLines lines = TerminateLines(text);
    // Unwrapped, the control takes far too long to lay out such lines.
    if (document::HasLongLine(text)) return std::move(lines.text);
    const WithoutWrap unwrapped(pad);
    // Asking the control for line after line takes time that grows with the square of the page, so it is done
    // only where the control counts other lines than TerminateLines does.
    const auto counted = static_cast<std::size_t>(mTxtBoxAPI::LineCount(pad.hwnd()));
    return lines.count == counted ? std::move(lines.text) : LinesOneByOne(pad.hwnd(), text);
}

}  // namespace

PageFile FileOf(const frmChild& page) {
    const document::CodePages& pages = document::SystemCodePages();
    const std::u16string lines = PageLines(page.txtPad());
    const document::Encoding encoding = document::EncodingToSave(lines, page.encoding(), pages);
    const std::u16string written = document::WithReferences(encoding, lines, pages);
    PageFile file{document::Encode(encoding, written, pages), encoding, std::nullopt};
    if (written != lines) file.shown = document::WithReferences(encoding, page.txtPad().text(), pages);
    return file;
}

}  // namespace files
