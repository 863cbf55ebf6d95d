#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <sstream>

#include "win/app_test.h"
#include "win/failing_calls.h"
#include "win/windows.h"

#include <winspool.h>

namespace {

// A PostScript printer on Letter paper.
char kPrinter[] = "Quillon test printer";

// The printer's own margin is 18 points, as its description says; a point is 20 twips.
constexpr int kMargin = 18;
constexpr int kBodyLeft = kMargin + 780 / 20;
constexpr int kBodyTop = kMargin + 1440 / 20;
constexpr int kBottomLimit = kMargin + 15120 / 20 - 2000 / 20;

// A line as Ghostscript reads it, in points from the left and the top edge of the sheet.
struct Line {
    int page = 0;  // from 1
    int left = 0;
    int base = 0;   // the baseline
    int right = 0;  // of the farthest letter
    std::string text;
};

class PrintTest : public AppTest {
 protected:
    // Installs a default printer that prints into a file.
    void install() {
        std::string description = "Z:" QUILLON_TESTS "/win/data/printer.ppd";
        std::replace(description.begin(), description.end(), '/', '\\');
        char driverFile[] = "wineps.drv";
        char dataType[] = "RAW";
        DRIVER_INFO_3A driver{};
        driver.cVersion = 3;
        driver.pName = kPrinter;
        driver.pDriverPath = driver.pConfigFile = driverFile;
        driver.pDataFile = description.data();
        driver.pDefaultDataType = dataType;
        EXPECT_TRUE(::AddPrinterDriverExA(nullptr, 3, reinterpret_cast<BYTE*>(&driver),
                                          APD_COPY_NEW_FILES | APD_COPY_FROM_DIRECTORY));
        std::string port = unixPath("print.ps");
        PRINTER_INFO_2A info{};
        info.pPrinterName = info.pDriverName = kPrinter;
        info.pPortName = port.data();
        info.pDatatype = dataType;
        // Newer versions of Wine pass the pages on as metafiles, which only the driver's own print processor
        // takes.
        char processors[][9] = {"WinPrint", "wineps"};
        info.pPrintProcessor = processors[wineVersion() > 8];
        ::ClosePrinter(::AddPrinterA(nullptr, 2, reinterpret_cast<BYTE*>(&info)));
        EXPECT_TRUE(::SetDefaultPrinterA(kPrinter)) << ::GetLastError();
    }

    void print(const std::string& text, const std::string& path = "") {
        newPage(text).setTag(path);
        EXPECT_EQ(SaidBy([&] { run(mnuFilePrint); }), std::vector<std::string>());
    }

    // The lines that were printed, without blank ones.
    std::vector<Line> printed() {
        // In format 1: <line> holds <char bbox="18 32 24 32" c="&#xa0;"/>. The file gets its name when it is
        // complete, since start.exe does not wait for a Unix program.
        writeFile(scratch("read.sh"), "cd '" + unixPath("") + "'\n" +
                                          "gs -q -dSAFER -dBATCH -dNOPAUSE -sDEVICE=txtwrite "
                                          "-dTextFormat=1 -o reading print.ps\nmv reading read.xml\n");
        ::WinExec(("start.exe /unix /bin/sh " + unixPath("read.sh")).c_str(), SW_HIDE);
        std::string read;
        EXPECT_TRUE(seen::Until([&] { return (read = readFile(scratch("read.xml"))) != "(no file)"; }));
        std::istringstream xml(read);
        std::vector<Line> all;
        int page = 0;
        for (std::string row; std::getline(xml, row);) {
            if (row == "<page>") ++page;
            if (row == "<line>") all.push_back({page, 0, 0, 0, ""});
            int left = 0;
            int base = 0;
            int right = 0;
            if (std::sscanf(row.c_str(), "<char bbox=\"%d %d %d", &left, &base, &right) != 3) continue;
            Line& line = all.back();
            if (line.text.empty()) line = {page, left, base, 0, ""};
            line.right = std::max(line.right, right);
            line.text += letterAt(row.c_str() + row.find("c=\"") + 3);
        }
        return all;
    }

 private:
    static int wineVersion() {
        const HMODULE ntdll = ::GetModuleHandleA("ntdll.dll");
        const auto version = reinterpret_cast<const char*(CDECL*)()>(
            reinterpret_cast<void*>(::GetProcAddress(ntdll, "wine_get_version")));
        return version ? std::atoi(version()) : 0;
    }
    // The letter there, which stands for itself or is given as "&#x3a9;".
    static std::string letterAt(const char* at) {
        unsigned code = static_cast<unsigned char>(*at);
        if (std::sscanf(at, "&#x%x", &code) == 1 && code == 0xA0) code = ' ';
        const auto unit = static_cast<char16_t>(code);
        return win::Utf8FromUtf16({&unit, 1});
    }
    // The Unix path of a file in the test's folder. Drive Z: is the root directory.
    std::string unixPath(const std::string& name) const {
        std::string path = scratch(name).substr(2);
        std::replace(path.begin(), path.end(), '\\', '/');
        return path;
    }
};

TEST_F(PrintTest, AHeaderIsPrintedThenTheTextWithItsBlankLines) {
    install();
    print("first\r\n\r\n\tsecond third\r\nlast \u03A8\u0416\u00E9\r\n", "C:\\site\\index.htm");
    const std::vector<Line> lines = printed();
    ASSERT_EQ(lines.size(), 4U);
    EXPECT_EQ(lines[0].text, "          C:\\site\\index.htm");
    EXPECT_EQ(lines[0].left, kMargin);
    EXPECT_NEAR(lines[0].base, kMargin + 100 / 20, 14);
    EXPECT_EQ(lines[1].text, "first");
    EXPECT_EQ(lines[1].left, kBodyLeft);
    EXPECT_EQ(lines[2].text, "    second third");
    EXPECT_EQ(lines[3].text, "last \u03A8\u0416\u00E9");
    const int step = lines[3].base - lines[2].base;
    EXPECT_GE(step, 9);
    EXPECT_NEAR(lines[2].base - lines[1].base, 2 * step, 1) << "a blank line takes the height of a line";
    EXPECT_NEAR(lines[1].base, kBodyTop + step, step / 2);
}

TEST_F(PrintTest, LongTextsAreBrokenIntoLinesAndSheetsAndPrintedWhole) {
    install();
    constexpr int kLines = 600;
    const std::string same = " of a page of more than 32,767 letters in all, as is said";
    std::string text;
    for (int i = 0; i < kLines; ++i) text += std::to_string(100 + i) + same + "\r\n";
    print(text + "some words before a long one of its own " + std::string(120, 'x') + " and after");
    const std::vector<Line> lines = printed();
    ASSERT_GT(lines.size(), kLines + 3U);
    EXPECT_EQ(lines[0].text, std::string(10, ' ')) << "the header of a page that has no file";
    EXPECT_EQ(lines[1].text, "100" + same);
    EXPECT_EQ(lines[kLines].text, "699" + same);
    std::string rest;
    for (std::size_t i = kLines + 1; i < lines.size(); ++i) rest += lines[i].text + "|";
    EXPECT_EQ(rest.find("some words before a long one of its own|x"), 0U) << rest;
    EXPECT_EQ(std::count(rest.begin(), rest.end(), 'x'), 120);
    EXPECT_EQ(rest.substr(rest.size() - 10), "and after|");

    // Each sheet has as many lines as have their top above the limit, and only the first a header.
    const int step = lines[2].base - lines[1].base;
    int fullSheet = 0;
    for (std::size_t i = 1; i < lines.size(); ++i) {
        EXPECT_EQ(lines[i].left, kBodyLeft);
        EXPECT_LT(lines[i].base, kBottomLimit + step);
        EXPECT_LT(lines[i].right, 612 - kMargin);
        fullSheet += lines[i].page == 2 ? 1 : 0;
    }
    EXPECT_NEAR(fullSheet, (kBottomLimit - kBodyTop) / step + 1, 5) << "the step is rounded to a point";
    const int printed = static_cast<int>(lines.size()) - 1;
    EXPECT_EQ(lines.back().page, (printed + fullSheet - 1) / fullSheet);
}

TEST_F(PrintTest, AnEmptyPagePrintsNothingAndWithoutAPrinterThereIsAMessage) {
    newPage("text");
    EXPECT_EQ(said(mnuFilePrint), "Printer Error");
    install();
    print("");
    EXPECT_EQ(readFile(scratch("print.ps")), "(no file)");
}

}  // namespace
