#include <memory>
#include <random>

#include "e2e/quillon.h"
#include "menu_ids.h"

#include <shlwapi.h>

namespace {

class EditingTest : public QuillonTest {};

std::string RealPage(std::size_t size) {
    std::string page = "<HTML>\r\n<BODY>\r\n";
    for (int line = 0; page.size() < size; ++line) {
        page += "<P>Line " + std::to_string(line) + ": caf\u00E9 &amp; <B>bread</B>,\ttwo  blanks.</P>\r\n";
    }
    return page + "</BODY>\r\n</HTML>";
}

TEST_F(EditingTest, PagesAreOpenedEditedSearchedSavedAndLeftFromTheKeyboard) {
    const std::string page = RealPage(200000);
    writeFile(scratch("my page.htm"), page);
    Quillon quillon(scratch("my page.htm"));
    EXPECT_EQ(quillon.pageCaption(), "my page.htm");
    EXPECT_EQ(quillon.pageText(), page);
    EXPECT_TRUE(quillon.shows("Current Line No: 1"));
    quillon.typeText("<!-- x -->");
    quillon.pressKey(VK_TAB);
    quillon.pressKey(VK_BACK);
    quillon.pressKey('Z');
    ASSERT_TRUE(seen::Until([&] { return quillon.pageText() == "<!-- x -->z" + page; }));
    quillon.pressKey('S', true);
    EXPECT_TRUE(quillon.shows("Saved :  " + scratch("my page.htm")));
    EXPECT_EQ(readFile(scratch("my page.htm")), "<!-- x -->z" + page + "\r\n");
    quillon.pressKey('F', true);
    const HWND find = quillon.waitForDialog("Find");
    quillon.typeText("BREAD");
    quillon.pressKey(VK_RETURN);
    EXPECT_TRUE(
        seen::Until([&] { return seen::LabelsOf(find).find("\r\noccurrences") != std::string::npos; }));
    quillon.pressKey('F', true);  // the page has the focus now
    quillon.pressKey(VK_ESCAPE);
    EXPECT_TRUE(seen::Until([&] { return !::IsWindow(find); }));
    quillon.pressKey('H', true);
    const HWND replace = quillon.waitForDialog("Replace");
    quillon.pressKey(VK_ESCAPE);
    EXPECT_TRUE(seen::Until([&] { return !::IsWindow(replace); }));
    quillon.typeText("a");
    quillon.pressKey(VK_F2);
    ASSERT_TRUE(seen::Until([&] { return quillon.pageCaption() == "Untitled1"; }));
    quillon.typeText("b");
    quillon.pressKey('N', true);
    ASSERT_TRUE(seen::Until([&] { return quillon.pageCaption() == "Untitled2"; }));
    quillon.pressKey(VK_F5);
    EXPECT_EQ(quillon.answer("Quillon", IDNO).substr(0, 23), "MY PAGE.HTM has changed");
    EXPECT_EQ(quillon.answer("Quillon", IDYES).substr(0, 21), "UNTITLED1 has changed");
    quillon.chooseFile("Save File As...", scratch("second.htm"));
    EXPECT_TRUE(quillon.waitForEnd()) << "the page that has not changed is not asked about";
    EXPECT_EQ(readFile(scratch("second.htm")).substr(0, 7), "b<HTML>");
}

TEST_F(EditingTest, SecondStartsHandTheirFilesOver) {
    const std::string name = scratch("[b] c ~+%^{d} caf\u00E9 \u0141\u30BD\U0001F600.htm");
    writeFile(name, "handed over");
    Quillon first;
    first.choose(mnuHelpCont);
    first.waitForDialog("Quillon Help");
    first.choose(mnuWind + 2);
    ASSERT_TRUE(seen::Until([&] { return ::IsZoomed(first.page()); }));
    Quillon second(name, false);
    EXPECT_TRUE(second.waitForEnd());
    EXPECT_TRUE(seen::Until([&] { return first.pages().size() == 2 && first.pageText() == "handed over"; }));
    std::vector<std::unique_ptr<Quillon>> crowd;
    for (const char* other : {"1.htm", "2.htm", "3.htm"}) {
        writeFile(scratch(other), "page");
        crowd.push_back(std::make_unique<Quillon>(scratch(other), false));
    }
    EXPECT_TRUE(seen::Until([&] { return first.pages().size() == 5; }, 30000));
    for (const auto& other : crowd) EXPECT_TRUE(other->waitForEnd());
    for (const HWND page : first.pages())
        EXPECT_EQ(seen::TextOf(seen::ChildOfClass(page, "RICHEDIT")).find(".htm"), std::string::npos);
    ::ShowWindow(first.window(), SW_MINIMIZE);
    Quillon fourth("", false);
    EXPECT_TRUE(fourth.waitForEnd());
    EXPECT_TRUE(seen::Until([&] { return !::IsIconic(first.window()); }));
    Quillon again(name, false);
    first.waitForDialog("Quillon");
    Quillon late(scratch("1.htm"), false);
    EXPECT_NE(late.answer("Quillon", IDOK).find(scratch("1.htm") + "\r\nwas not opened"), std::string::npos);
    EXPECT_EQ(first.answer("Quillon", IDOK), "That file is already open.");
}

TEST_F(EditingTest, WhatCannotBeOpenedAtTheStartIsReportedAndTheProgramGoesOn) {
    EXPECT_EQ(Quillon(scratch("")).pageCaption(), "Untitled1") << "a folder is not opened";
    writeFile(scratch("empty.htm"), "");
    EXPECT_EQ(Quillon(scratch("empty.htm")).pageCaption(), "empty.htm");
    const HANDLE lock =
        ::CreateFileA(scratch("empty.htm").c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ::SHDeleteValueA(HKEY_CURRENT_USER, "Software\\VB and VBA Program Settings\\Quillon\\File Count",
                     "Count");
    Quillon locked(scratch("empty.htm"), false);
    EXPECT_EQ(locked.answer("Quillon Note:", IDOK), "Unable to open File") << "instead of the welcome";
    ::CloseHandle(lock);
    EXPECT_TRUE(locked.isRunning());
}

TEST_F(EditingTest, KilledInMidSaveItLeavesTheOldFileOrTheNewOne) {
    const std::string path = scratch("killed.htm");
    const std::string page = RealPage(20000);
    const std::string saved = "x" + page + "\r\n";
    std::mt19937 random(20260);
    int fresh = 0;
    const int rounds = EnvironmentNumber("QUILLON_KILLS", 100);
    for (int round = 0; round < rounds; ++round) {
        ForgetCopies();
        writeFile(path, page);
        Quillon quillon(path);
        ::PostMessageA(quillon.pad(), WM_CHAR, 'x', 0);
        const auto before = Listing(scratch("*"));
        quillon.choose(mnuFileSave);
        const DWORD start = ::GetTickCount();
        while (Listing(scratch("*")) == before) ASSERT_LT(::GetTickCount() - start, 10000U);
        for (unsigned spin = random() % 500; spin > 0; --spin) ::SwitchToThread();
        quillon.kill();
        const std::string left = readFile(path);
        ASSERT_TRUE(left == page || left == saved) << "round " << round << ": " << left.size() << " bytes";
        fresh += left == saved;
    }
    EXPECT_TRUE(0 < fresh && fresh < rounds) << "no kill fell into the save itself";
    std::printf("%d kills: %d left the old file, %d the new one\n", rounds, rounds - fresh, fresh);
}

}  // namespace
