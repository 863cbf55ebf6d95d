#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "print/core/print_layout.h"
#include "print/core/print_line.h"

namespace {

using modPrint::Measure;
using modPrint::NextPrintLine;
using Lines = std::vector<std::string>;

// Every byte is ten twips wide.
const Measure kTenATwip{[](std::string_view text) { return static_cast<int>(text.size()) * 10; }, {}};

Lines Broken(std::string_view text, int width, const Measure& measure = kTenATwip, std::size_t likely = 80) {
    Lines lines;
    std::size_t position = 0;
    while (const auto line = NextPrintLine(text, position, width, measure, likely)) lines.emplace_back(*line);
    EXPECT_EQ(position, text.size());
    return lines;
}

TEST(NextPrintLine, GivesEveryLineOfThePageEvenTheEmptyOnes) {
    EXPECT_EQ(Broken("a\r\n\r\n\r\nb\r\n", 100), (Lines{"a", "", "", "b"}));
    EXPECT_EQ(Broken("a\nb\rc\r\rd\r\n\ne", 100), (Lines{"a", "b", "c", "", "d", "", "e"}));
}

TEST(NextPrintLine, BreaksAtTheLastBlankThatKeepsThePieceInTheWidth) {
    for (const std::size_t likely : {1U, 7U, 80U}) {
        EXPECT_EQ(Broken("one two three", 70, kTenATwip, likely), (Lines{"one two", "three"}));
        EXPECT_EQ(Broken("one two three", 69, kTenATwip, likely), (Lines{"one", "two", "three"}));
        EXPECT_EQ(Broken("abcd \r\nx", 40, kTenATwip, likely), (Lines{"abcd", "x"}));
    }
}

TEST(NextPrintLine, ATooWideWordLosesNothingAndAlwaysAdvances) {
    EXPECT_EQ(Broken("to abcdefghij k", 40), (Lines{"to", "abcd", "efgh", "ij k"}));
    EXPECT_EQ(Broken("ab\r\nc", 0), (Lines{"a", "b", "c"}));
    const Measure doubleByte{kTenATwip.width, [](unsigned char c) { return c >= 0x81; }};
    EXPECT_EQ(Broken("\x81z\x81z\x81z", 30, doubleByte), (Lines{"\x81z", "\x81z", "\x81z"}));
}

TEST(NextPrintLine, AMegabyteWithoutABlankIsMeasuredByTheLineOnly) {
    std::size_t measured = 0;
    const Measure counting{[&measured](std::string_view text) {
                               measured += text.size();
                               return static_cast<int>(text.size()) * 10;
                           },
                           {}};
    const std::string text(1'000'000, 'x');
    EXPECT_EQ(Broken(text, 1000, counting, 1).size(), 10'000U);
    EXPECT_LT(measured, 15 * text.size());
}

TEST(ExpandTabs, ReachTheNextColumn) {
    EXPECT_EQ(modPrint::ExpandTabs("\ta\tbcd\te\r\n\tf", 4), "    a   bcd e\r\n    f");
    EXPECT_EQ(modPrint::ExpandTabs("a\tb", 0), "a b");
}

// "page left top text" of each line.
Lines Print(std::string_view text, std::string_view title, const modPrint::Paper& paper) {
    modPrint::PrintLayout layout(text, title, paper, kTenATwip, 8);
    Lines printed;
    int page = 0;
    while (const auto line = layout.next()) {
        page += line->startsPage;
        printed.push_back(std::to_string(page) + " " + std::to_string(line->left) + " " +
                          std::to_string(line->top) + " " + std::string(line->text));
    }
    return printed;
}

TEST(PrintLayout, HeaderOnTheFirstPageAndTheBodyAtItsPlaceOnEach) {
    // Three lines fit: tops 1440, 1640 and 1840 lie above 4000 - 2000, 2040 does not.
    EXPECT_EQ(Print("a\r\n\r\nc\r\nd\r\n", "C:\\p.htm", {1000, 4000, 200}),
              (Lines{"1 0 100           C:\\p.htm", "1 780 1440 a", "1 780 1640 ", "1 780 1840 c",
                     "2 780 1440 d"}));
    // A line that reaches the limit exactly starts a page, a full page no empty one.
    EXPECT_EQ(Print("a\r\nb\r\nc", "", {1000, 3840, 200}).back(), "2 780 1440 c");
    EXPECT_EQ(Print("a\r\nb\r\n", "", {1000, 3840, 200}).back(), "1 780 1640 b");
}

TEST(PrintLayout, LeavesThirtyCharactersFreeAtTheRight) {
    // A character is 10 wide: 500 - 300 leaves room for twenty.
    EXPECT_EQ(Print(std::string(21, 'x'), "", {500, 9000, 200}).back(), "1 780 1640 x");
    // Without metrics lines do not all fall on one another.
    EXPECT_GT(Print("a\r\nb", "", {500, 9000, 0}).back(), "1 780 1440 b");
}

}  // namespace
