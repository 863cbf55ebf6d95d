// Four bytes of paper and font, then a title up to the first line end, then the text.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>

#include "check.h"
#include "print/core/print_layout.h"

namespace {

bool IsDropped(char16_t c) {
    return c == ' ' || c == '\r' || c == '\n';
}

std::u16string Ink(std::u16string_view text) {
    std::u16string ink(text);
    std::erase_if(ink, IsDropped);
    return ink;
}

void CheckLines(const std::u16string& text, int width, const modPrint::Measure& measure, std::size_t likely) {
    std::u16string ink;
    std::size_t position = 0;
    for (;;) {
        const std::size_t before = position;
        const auto line = modPrint::NextPrintLine(text, position, width, measure, likely);
        if (!line) break;
        Check(position > before && position <= text.size());
        Check(line->find_first_of(u"\r\n") == std::u16string_view::npos);
        // No half of a character stands alone where its other half was.
        Check(line->empty() || line->back() != u'\xD83D' || text[before + line->size() - 1] != u'\xD83D' ||
              before + line->size() == text.size() || text[before + line->size()] != u'\xDE00');
        Check(line->size() <= 2 || measure.width(*line) <= width);
        // What the line leaves out between here and the next is one blank and one line end at most.
        const std::size_t left = position - before - line->size();
        Check(left <= 3 && text.compare(before, line->size(), *line) == 0);
        Check(std::count(text.begin() + static_cast<std::ptrdiff_t>(position - left),
                         text.begin() + static_cast<std::ptrdiff_t>(position), ' ') <= 1);
        ink += Ink(*line);
    }
    Check(position == text.size() && ink == Ink(text));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 4) return 0;
    const std::u16string input = Units({reinterpret_cast<const char*>(data) + 4, size - 4});
    const modPrint::Measure measure{[scale = data[0] % 16](std::u16string_view text) {
        int width = 0;
        for (const char16_t c : text) width += (c % 8 + 1) * scale;
        return width;
    }};
    const int width = data[1] * 8 - 32;
    CheckLines(input, width, measure, data[3]);

    const modPrint::Paper paper{width * 4, data[2] * 64, data[3] - 1};
    const std::size_t titleEnd = std::min(input.size(), input.find(u'\n'));
    const std::u16string text = input.substr(titleEnd);
    modPrint::PrintLayout layout(text, input.substr(0, titleEnd), paper, measure, data[3] % 9U);
    std::u16string ink;
    bool isHeader = true;
    while (const auto line = layout.next()) {
        if (isHeader) Check(line->startsPage && line->top == 100);
        if (!isHeader) Check(line->top == 1440 || (line->top > 1440 && line->top < paper.height - 2000));
        if (!isHeader) ink += Ink(line->text);
        isHeader = false;
    }
    Check(ink == Ink(modPrint::ExpandTabs(text, 1)));
    return 0;
}
