#include "files/core/page_lines.h"

namespace files {
namespace {

std::size_t BreakLength(std::string_view text, std::size_t at) {
    if (text[at] == '\n') return 1;
    const std::string_view rest = text.substr(at);
    if (rest.starts_with("\r\r\n")) return 3;
    return rest.starts_with("\r\n") ? 2 : 1;
}

}  // namespace

TerminatedLines TerminateLines(std::string_view text) {
    TerminatedLines lines;
    lines.bytes.reserve(text.size() + text.size() / 16 + 2);
    std::size_t start = 0;
    for (;;) {
        const std::size_t end = text.find_first_of("\r\n", start);
        lines.bytes.append(text.substr(start, end - start)).append("\r\n");
        ++lines.count;
        if (end == std::string_view::npos) return lines;
        start = end + BreakLength(text, end);
    }
}

}  // namespace files
