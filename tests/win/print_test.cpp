#include <algorithm>

#include "win/app_test.h"
#include "win/test_printer.h"

namespace {

// The printer's own margin is 18 points, as its description says; a point is 20 twips.
constexpr int kMargin = 18;
constexpr int kBodyLeft = kMargin + 780 / 20;
constexpr int kBodyTop = kMargin + 1440 / 20;
constexpr int kBottomLimit = kMargin + 15120 / 20 - 2000 / 20;

class PrintTest : public AppTest {
 protected:
    TestPrinter install() { return TestPrinter(scratch("").substr(0, scratch("").size() - 1)); }
    void print(const std::string& text, const std::string& path = "") {
        newPage(text).setTag(path);
        run(mnuFilePrint);
    }
};

TEST_F(PrintTest, AHeaderThenTheTextWithItsBlankLines) {
    const TestPrinter printer = install();
    print("<HTML>\r\n\r\n\tsecond & \"third\"\r\n</HTML>\r\n", "C:\\site\\index.htm");
    const std::vector<TestPrinter::Line> lines = printer.lines();
    ASSERT_EQ(lines.size(), 4U);
    EXPECT_EQ(lines[0].text, "          C:\\site\\index.htm");
    EXPECT_EQ(lines[0].left, kMargin);
    EXPECT_NEAR(lines[0].base, kMargin + 100 / 20, 14);
    EXPECT_EQ(lines[1].text, "<HTML>");
    EXPECT_EQ(lines[1].left, kBodyLeft);
    EXPECT_EQ(lines[2].text, "    second & \"third\"");
    EXPECT_EQ(lines[3].text, "</HTML>");
    const int step = lines[3].base - lines[2].base;
    EXPECT_GE(step, 9);
    EXPECT_NEAR(lines[2].base - lines[1].base, 2 * step, 1) << "the blank line has its room";
    EXPECT_NEAR(lines[1].base, kBodyTop + step, step / 2);
    const std::vector<TestPrinter::Box> ink = printer.ink();
    ASSERT_EQ(ink.size(), 1U);
    EXPECT_NEAR(ink[0].left, kBodyLeft, 3);
    EXPECT_NEAR(ink[0].top, 792 - kMargin - 100 / 20, 4) << "of the header";
}

TEST_F(PrintTest, LongTextsAreBrokenIntoLinesAndSheetsAndPrintedWhole) {
    const TestPrinter printer = install();
    constexpr int kLines = 600;
    const std::string same = " of a page of more than 32,767 letters in all, as is said";
    std::string text;
    for (int i = 0; i < kLines; ++i) text += std::to_string(100 + i) + same + "\r\n";
    ASSERT_GT(text.size(), 32767U);
    print(text + "some words before a long one of its own " + std::string(120, 'x') + " and after");
    const std::vector<TestPrinter::Line> lines = printer.lines();
    ASSERT_GT(lines.size(), kLines + 3U);
    EXPECT_EQ(lines[0].text, std::string(10, ' ')) << "the header of a page that has no file";
    EXPECT_EQ(lines[1].text, "100" + same);
    EXPECT_EQ(lines[kLines].text, "699" + same);
    std::string rest;
    for (std::size_t i = kLines + 1; i < lines.size(); ++i) rest += lines[i].text + "|";
    EXPECT_EQ(rest.find("some words before a long one of its own|x"), 0U) << rest;
    EXPECT_EQ(std::count(rest.begin(), rest.end(), 'x'), 120);
    EXPECT_EQ(rest.substr(rest.size() - 10), "and after|");

    // As many lines on each sheet as have their top above the limit, and never a second header.
    const int step = lines[2].base - lines[1].base;
    int fullSheet = 0;
    for (std::size_t i = 1; i < lines.size(); ++i) {
        EXPECT_EQ(lines[i].left, kBodyLeft);
        EXPECT_LT(lines[i].base, kBottomLimit + step);
        fullSheet += lines[i].page == 2 ? 1 : 0;
    }
    EXPECT_NEAR(fullSheet, (kBottomLimit - kBodyTop) / step + 1, 5) << "the step is rounded to a point";
    const int printed = static_cast<int>(lines.size()) - 1;
    EXPECT_EQ(lines.back().page, (printed + fullSheet - 1) / fullSheet);
    const std::vector<TestPrinter::Box> ink = printer.ink();
    EXPECT_EQ(static_cast<int>(ink.size()), lines.back().page);
    for (const TestPrinter::Box& sheet : ink) EXPECT_LT(sheet.right, 612 - kMargin);
}

TEST_F(PrintTest, AnEmptyPagePrintsNothingAndWithoutAPrinterThereIsAMessage) {
    {
        User user({User::press("Quillon", IDOK)});
        print("text");
        EXPECT_EQ(user.heard().front(), "Printer Error");
    }
    const TestPrinter printer = install();
    print("");
    EXPECT_FALSE(printer.hasPrinted());
}

}  // namespace
