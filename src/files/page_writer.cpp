#include "files/page_writer.h"

#include <algorithm>

#include "document/mTxtBoxAPI.h"
#include "files/core/page_lines.h"
#include "files/replace_file.h"

namespace files {
namespace {

// A wrapping control speaks of displayed lines, so wrapping is off while lines are counted.
class WithoutWrap {
 public:
    explicit WithoutWrap(document::RichEdit& pad) : pad_(pad), wrapped_(pad.wordWrap()) {
        if (!wrapped_) return;
        ::SendMessageA(pad_.hwnd(), WM_SETREDRAW, FALSE, 0);
        pad_.setWordWrap(false);
    }
    ~WithoutWrap() {
        if (!wrapped_) return;
        pad_.setWordWrap(true);
        ::SendMessageA(pad_.hwnd(), WM_SETREDRAW, TRUE, 0);
        ::InvalidateRect(pad_.hwnd(), nullptr, TRUE);
    }
    WithoutWrap(const WithoutWrap&) = delete;
    WithoutWrap& operator=(const WithoutWrap&) = delete;

 private:
    document::RichEdit& pad_;
    bool wrapped_;
};

std::string LinesOneByOne(HWND edit, std::string_view text) {
    std::string bytes;
    bytes.reserve(text.size() + 2);
    const long count = mTxtBoxAPI::LineCount(edit);
    for (long line = 0; line < count; ++line) {
        const auto start = static_cast<std::size_t>(mTxtBoxAPI::LineStart(edit, line));
        const auto length = static_cast<std::size_t>(mTxtBoxAPI::LineLength(edit, line));
        if (start <= text.size()) bytes.append(text.substr(start, length));
        bytes.append("\r\n");
    }
    return bytes;
}

}  // namespace

std::string PageBytes(document::RichEdit& pad) {
    const WithoutWrap unwrapped(pad);
    const std::string text = pad.text();
    TerminatedLines lines = TerminateLines(text);
    // Asking the control for line after line takes time that grows with the square of the page, so it is
    // done only where the control sees other breaks than we do.
    const auto counted = static_cast<std::size_t>(mTxtBoxAPI::LineCount(pad.hwnd()));
    return lines.count == counted ? std::move(lines.bytes) : LinesOneByOne(pad.hwnd(), text);
}

bool WritePage(document::RichEdit& pad, const std::string& path) {
    return ReplaceFileContents(path, PageBytes(pad));
}

}  // namespace files
