// Four bytes of paper and font, then a title up to the first line end, then the text.
#include <algorithm>

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
        // No character is cut in two.
        Check(line->empty() || line->back() != u'\xD83D' || text[before + line->size() - 1] != u'\xD83D' ||
              before + line->size() == text.size() || text[before + line->size()] != u'\xDE00');
        Check(line->size() <= 2 || measure.width(*line) <= width);
        // Between this line and the next at most one blank and one line end are left out.
        const std::size_t left = position - before - line->size();
        Check(left <= 3 && text.compare(before, line->size(), *line) == 0);
        Check(std::count(text.begin() + static_cast<std::ptrdiff_t>(position - left),
                         text.begin() + static_cast<std::ptrdiff_t>(position), ' ') <= 1);
        ink += Ink(*line);
    }
    Check(position == text.size() && ink == Ink(text));
}

}  // namespace

void Try(std::string_view input) {
    if (input.size() < 4) return;
    const modPrint::Measure measure{[scale = TakeByte(input) % 16](std::u16string_view text) {
        unsigned width = 0;
        for (const char16_t c : text) width += (c % 8 + 1) * scale;
        return static_cast<int>(width);
    }};
    const int width = static_cast<int>(TakeByte(input)) * 8 - 32;
    const int height = static_cast<int>(TakeByte(input)) * 64;
    const unsigned likely = TakeByte(input);
    CheckLines(Units(input), width, measure, likely);

    const modPrint::Paper paper{width * 4, height, static_cast<int>(likely) - 1};
    const std::u16string title = Units(input.substr(0, input.find('\n')));
    const std::u16string text = Units(input.substr(title.size()));
    modPrint::PrintLayout layout(text, title, paper, measure, likely % 9);
    std::u16string ink;
    bool isHeader = true;
    while (const auto line = layout.next()) {
        if (isHeader) Check(line->startsPage && line->top == 100);
        if (!isHeader) Check(line->top == 1440 || (line->top > 1440 && line->top < paper.height - 2000));
        if (!isHeader) ink += Ink(line->text);
        isHeader = false;
    }
    Check(ink == Ink(modPrint::ExpandTabs(text, 1)));
}
