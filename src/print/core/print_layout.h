// Where everything that is printed stands: a header on the first page, then the text, page by page.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "print/core/print_line.h"

namespace modPrint {

// All in twips, as the printer driver reports them.
struct Paper {
    int width = 0;  // of the page's scale
    int height = 0;
    int lineHeight = 0;  // of the font
};

struct PlacedLine {
    std::u16string_view text;  // valid as long as the layout
    int left = 0;              // twips
    int top = 0;
    bool startsPage = false;  // true for the header, which opens the first page
};

// Hands out the lines of a print one by one:
//
//     while (const auto line = layout.next()) {
//         if (line->startsPage) { end the open page, if any; start one }
//         print line->text at (line->left, line->top)
//     }
//     if anything was printed: end the open page, end the document
class PrintLayout {
 public:
    // `title` stands in the header behind ten blanks; tabs reach to multiples of `tabLength` columns.
    // An empty text prints nothing, not even a header.
    PrintLayout(std::u16string_view text, std::u16string_view title, const Paper& paper, Measure measure,
                std::size_t tabLength);
    PrintLayout(const PrintLayout&) = delete;
    PrintLayout& operator=(const PrintLayout&) = delete;

    std::optional<PlacedLine> next();

 private:
    std::u16string text_;
    std::u16string header_;
    Measure measure_;
    int lineWidth_ = 0;
    int lineHeight_ = 0;
    int bottomLimit_ = 0;
    std::size_t likelyLength_ = 0;
    std::size_t position_ = 0;
    int top_ = 0;  // of the next line; 0 before the header
};

}  // namespace modPrint
