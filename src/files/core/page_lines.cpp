#include "files/core/page_lines.h"

namespace files {
namespace {

std::size_t BreakLength(std::u16string_view text, std::size_t at) {
    if (text[at] == u'\n') return 1;
    const std::u16string_view rest = text.substr(at);
    if (rest.starts_with(u"\r\r\n")) return 3;
    return rest.starts_with(u"\r\n") ? 2 : 1;
}

}  // namespace

TerminatedLines TerminateLines(std::u16string_view text) {
    TerminatedLines lines;
    lines.text.reserve(text.size() + text.size() / 16 + 2);
    std::size_t start = 0;
    for (;;) {
        const std::size_t end = text.find_first_of(u"\r\n", start);
        lines.text.append(text.substr(start, end - start)).append(u"\r\n");
        ++lines.count;
        if (end == std::u16string_view::npos) return lines;
        start = end + BreakLength(text, end);
    }
}

}  // namespace files
