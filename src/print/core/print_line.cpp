#include "print/core/print_line.h"

#include <algorithm>

#include "win/core/utf.h"

namespace modPrint {
namespace {

constexpr std::u16string_view kLineEnds = u"\r\n";

std::size_t SkipLineEnd(std::u16string_view text, std::size_t position) {
    if (text.substr(position, 2) == u"\r\n") return position + 2;
    return position < text.size() && kLineEnds.find(text[position]) != std::u16string_view::npos
               ? position + 1
               : position;
}

bool IsPair(std::u16string_view text, std::size_t at) {
    return at < text.size() && win::FirstOfUtf16(text.substr(at)).length == 2;
}

// `length` units of `line`, or one less where that would cut a character in two.
std::u16string_view WholeCharacters(std::u16string_view line, std::size_t length) {
    return line.substr(0, length > 0 && IsPair(line, length - 1) ? length - 1 : length);
}

// The longest beginning of `line` that fits, given one that does and that the whole does not; one character
// at least.
std::u16string_view LongestFit(std::u16string_view line, std::size_t fits, int width,
                               const Measure& measure) {
    std::size_t tooLong = line.size();
    while (tooLong - fits > 1) {
        const std::size_t middle = fits + (tooLong - fits) / 2;
        (measure.width(WholeCharacters(line, middle)) <= width ? fits : tooLong) = middle;
    }
    const std::u16string_view fitting = WholeCharacters(line, fits);
    return fitting.empty() ? line.substr(0, IsPair(line, 0) ? 2 : 1) : fitting;
}

}  // namespace

std::optional<std::u16string_view> NextPrintLine(std::u16string_view text, std::size_t& position, int width,
                                                 const Measure& measure, std::size_t likelyLength) {
    if (position >= text.size()) return std::nullopt;
    const std::u16string_view rest = text.substr(position);

    // Looks at a window that doubles while it fits: a paragraph of a megabyte is neither searched nor
    // measured as a whole for each of its lines.
    std::size_t fits = 0;
    std::size_t window = std::max<std::size_t>(likelyLength, 2);
    std::u16string_view line;
    for (;; window *= 2) {
        line = WholeCharacters(rest, window);
        const std::size_t end = line.find_first_of(kLineEnds);
        const bool isWhole = end != std::u16string_view::npos || line.size() == rest.size();
        line = line.substr(0, end);
        if (measure.width(line) > width) break;
        if (isWhole) {
            position = SkipLineEnd(text, position + line.size());
            return line;
        }
        fits = line.size();
    }

    const std::u16string_view fitting = LongestFit(line, fits, width, measure);
    // A blank may stand just behind what fits.
    const std::size_t blank = line.rfind(u' ', fitting.size());
    const bool breaksWord = blank == std::u16string_view::npos;
    const std::size_t length = breaksWord ? fitting.size() : blank;
    // Where nothing is left behind the break, the line ends with it: no empty line of its own follows.
    position = SkipLineEnd(text, position + length + (breaksWord ? 0 : 1));
    return line.substr(0, length);
}

std::u16string ExpandTabs(std::u16string_view text, std::size_t tabLength) {
    tabLength = std::max<std::size_t>(tabLength, 1);
    std::u16string result;
    result.reserve(text.size());
    std::size_t column = 0;
    for (const char16_t c : text) {
        if (c == u'\t') {
            const std::size_t blanks = tabLength - column % tabLength;
            result.append(blanks, u' ');
            column += blanks;
            continue;
        }
        result += c;
        column = kLineEnds.find(c) == std::u16string_view::npos ? column + 1 : 0;
    }
    return result;
}

}  // namespace modPrint
