// Breaking a text into the lines that fit on paper.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace modPrint {

// What the printer's font says about a text. A wider text never has the smaller width.
struct Measure {
    std::function<int(std::u16string_view)> width;  // printed width in twips
};

// The next line to print of `text`, without its line end, and moves `position` (in UTF-16 units; 32,767
// is no limit) behind it. None at the end of the text, which an empty line of the page is not: told
// apart by their emptiness, the first blank line of a page would end the print.
//
// A line ends at CR LF, or at a CR or LF that stands alone. One that is wider than `width` (twips) is
// broken at the last blank that keeps the piece within it, and that blank is not printed; a word that
// is wider by itself is broken between characters, so that nothing is lost beyond the edge. Every
// call advances. `likelyLength`, the usual number of units that fit, spares measuring.
std::optional<std::u16string_view> NextPrintLine(std::u16string_view text, std::size_t& position, int width,
                                                 const Measure& measure, std::size_t likelyLength = 80);

// The text with every tab replaced by blanks up to the next multiple of `tabLength` columns (units from
// the start of the line), since a printer's font draws a box for it. A `tabLength` of 0 counts as 1.
std::u16string ExpandTabs(std::u16string_view text, std::size_t tabLength);

}  // namespace modPrint
