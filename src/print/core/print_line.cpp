#include "print/core/print_line.h"

#include <algorithm>

namespace modPrint {
namespace {

constexpr std::string_view kLineEnds = "\r\n";

std::size_t SkipLineEnd(std::string_view text, std::size_t position) {
    if (text.substr(position, 2) == "\r\n") return position + 2;
    return position < text.size() && kLineEnds.find(text[position]) != std::string_view::npos ? position + 1
                                                                                              : position;
}

// The longest beginning of `line` that fits, given one that does and that the whole does not.
std::size_t LongestFit(std::string_view line, std::size_t fits, int width, const Measure& measure) {
    std::size_t tooLong = line.size();
    while (tooLong - fits > 1) {
        const std::size_t middle = fits + (tooLong - fits) / 2;
        (measure.width(line.substr(0, middle)) <= width ? fits : tooLong) = middle;
    }
    return fits;
}

// At most `length` bytes of `line`, less when that would cut a character in two, but one character at least.
std::size_t WholeCharacters(std::string_view line, std::size_t length, const Measure& measure) {
    std::size_t end = 0;
    while (end < line.size()) {
        const bool isDouble = measure.isLeadByte && end + 1 < line.size() &&
                              measure.isLeadByte(static_cast<unsigned char>(line[end]));
        const std::size_t next = end + (isDouble ? 2 : 1);
        if (next > length && end > 0) break;
        end = next;
        if (end >= length) break;
    }
    return end;
}

}  // namespace

std::optional<std::string_view> NextPrintLine(std::string_view text, std::size_t& position, int width,
                                              const Measure& measure, std::size_t likelyLength) {
    if (position >= text.size()) return std::nullopt;
    const std::string_view rest = text.substr(position);

    // Looks at a window that doubles while it fits: a paragraph of a megabyte is neither searched nor
    // measured as a whole for each of its lines.
    std::size_t fits = 0;
    std::size_t window = std::max<std::size_t>(likelyLength, 1);
    std::string_view line;
    for (;; window *= 2) {
        line = rest.substr(0, window);
        const std::size_t end = line.find_first_of(kLineEnds);
        const bool isWhole = end != std::string_view::npos || line.size() == rest.size();
        line = line.substr(0, end);
        if (measure.width(line) > width) break;
        if (isWhole) {
            position = SkipLineEnd(text, position + line.size());
            return line;
        }
        fits = line.size();
    }

    fits = LongestFit(line, fits, width, measure);
    const std::size_t blank = line.rfind(' ', fits);
    const bool breaksWord = blank == std::string_view::npos;
    const std::size_t length = breaksWord ? WholeCharacters(line, fits, measure) : blank;
    // Where nothing is left behind the break, the line ends with it: no empty line of its own follows.
    position = SkipLineEnd(text, position + length + (breaksWord ? 0 : 1));
    return line.substr(0, length);
}

std::string ExpandTabs(std::string_view text, std::size_t tabLength) {
    tabLength = std::max<std::size_t>(tabLength, 1);
    std::string result;
    result.reserve(text.size());
    std::size_t column = 0;
    for (const char c : text) {
        if (c == '\t') {
            const std::size_t blanks = tabLength - column % tabLength;
            result.append(blanks, ' ');
            column += blanks;
            continue;
        }
        result += c;
        column = kLineEnds.find(c) == std::string_view::npos ? column + 1 : 0;
    }
    return result;
}

}  // namespace modPrint
