#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "print/core/print_layout.h"
#include "print/core/print_line.h"
#include "win/core/utf.h"

namespace {

using modPrint::Measure;
using modPrint::NextPrintLine;
using Lines = std::vector<std::u16string>;

// Measures every unit as ten twips wide.
const Measure kTenATwip{[](std::u16string_view text) { return static_cast<int>(text.size()) * 10; }};

Lines Broken(std::u16string_view text, int width, const Measure& measure = kTenATwip,
             std::size_t likely = 80) {
    Lines lines;
    std::size_t position = 0;
    while (const auto line = NextPrintLine(text, position, width, measure, likely)) lines.emplace_back(*line);
    EXPECT_EQ(position, text.size());
    return lines;
}

TEST(NextPrintLine, GivesEveryLineOfThePageEvenTheEmptyOnes) {
    EXPECT_EQ(Broken(u"a\r\n\r\n\r\nb\r\n", 100), (Lines{u"a", u"", u"", u"b"}));
    EXPECT_EQ(Broken(u"a\nb\rc\r\rd\r\n\ne", 100), (Lines{u"a", u"b", u"c", u"", u"d", u"", u"e"}));
}

TEST(NextPrintLine, BreaksAtTheLastBlankWithinTheWidth) {
    for (const std::size_t likely : {1U, 7U, 80U}) {
        EXPECT_EQ(Broken(u"one two three", 70, kTenATwip, likely), (Lines{u"one two", u"three"}));
        EXPECT_EQ(Broken(u"one two three", 69, kTenATwip, likely), (Lines{u"one", u"two", u"three"}));
        EXPECT_EQ(Broken(u"abcd \r\nx", 40, kTenATwip, likely), (Lines{u"abcd", u"x"}));
    }
}

TEST(NextPrintLine, AWordThatIsTooWideIsBrokenAndLosesNothing) {
    EXPECT_EQ(Broken(u"to abcdefghij k", 40), (Lines{u"to", u"abcd", u"efgh", u"ij k"}));
    EXPECT_EQ(Broken(u"ab\r\nc", 0), (Lines{u"a", u"b", u"c"}));
    const std::u16string pair = u"\U0001F600";
    const Measure whole{[](std::u16string_view text) {
        EXPECT_FALSE(!text.empty() && text.back() == 0xD83D)
            << "no half of a character is measured or printed";
        return static_cast<int>(text.size()) * 10;
    }};
    for (const std::size_t likely : {1U, 3U, 80U}) {
        EXPECT_EQ(Broken(u"a" + pair + pair + pair, 30, whole, likely), (Lines{u"a" + pair, pair, pair}));
        EXPECT_EQ(Broken(pair + pair, 0, whole, likely), (Lines{pair, pair}));
    }
}

TEST(NextPrintLine, AMegabyteWithoutABlankIsMeasuredByTheLineOnly) {
    std::size_t measured = 0;
    const Measure counting{[&measured](std::u16string_view text) {
        measured += text.size();
        return static_cast<int>(text.size()) * 10;
    }};
    const std::u16string text(1'000'000, u'x');
    EXPECT_EQ(Broken(text, 1000, counting, 1).size(), 10'000U);
    EXPECT_LT(measured, 15 * text.size());
}

TEST(ExpandTabs, FillsUpToTheNextColumn) {
    EXPECT_EQ(modPrint::ExpandTabs(u"\ta\tbcd\te\r\n\tf", 4), u"    a   bcd e\r\n    f");
    EXPECT_EQ(modPrint::ExpandTabs(u"a\tb", 0), u"a b");
}

// "page left top text" of each line.
Lines Print(std::u16string_view text, std::u16string_view title, const modPrint::Paper& paper) {
    modPrint::PrintLayout layout(text, title, paper, kTenATwip, 8);
    Lines printed;
    int page = 0;
    while (const auto line = layout.next()) {
        page += line->startsPage;
        printed.push_back(win::Utf16FromUtf8(std::to_string(page) + " " + std::to_string(line->left) + " " +
                                             std::to_string(line->top) + " ") +
                          std::u16string(line->text));
    }
    return printed;
}

TEST(PrintLayout, PutsAHeaderOnTheFirstPageAndTheBodyAtItsPlaceOnEach) {
    // Three lines fit: tops 1440, 1640 and 1840 lie above 4000 - 2000, 2040 does not.
    EXPECT_EQ(Print(u"a\r\n\r\nc\r\nd\r\n", u"C:\\p.htm", {1000, 4000, 200}),
              (Lines{u"1 0 100           C:\\p.htm", u"1 780 1440 a", u"1 780 1640 ", u"1 780 1840 c",
                     u"2 780 1440 d"}));
    // A line at the limit starts a new page; a full page is not followed by an empty one.
    EXPECT_EQ(Print(u"a\r\nb\r\nc", u"", {1000, 3840, 200}).back(), u"2 780 1440 c");
    EXPECT_EQ(Print(u"a\r\nb\r\n", u"", {1000, 3840, 200}).back(), u"1 780 1640 b");
}

TEST(PrintLayout, LeavesThirtyCharactersFreeAtTheRight) {
    // A character is 10 wide: 500 - 300 leaves room for twenty.
    EXPECT_EQ(Print(std::u16string(21, u'x'), u"", {500, 9000, 200}).back(), u"1 780 1640 x");
    // Without metrics the lines do not overprint one another.
    EXPECT_GT(Print(u"a\r\nb", u"", {500, 9000, 0}).back(), u"1 780 1440 b");
}

}  // namespace
