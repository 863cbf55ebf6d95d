#include <random>

#include "document/core/page_outline.h"
#include "document/mTxtBoxAPI.h"
#include "files/page_writer.h"
#include "win/app_test.h"
#include "win/clipboard.h"
#include "win/message_loop.h"

namespace {

using PageTest = AppTest;

std::string RandomPage(unsigned seed, std::size_t length) {
    constexpr char kAlphabet[] = "ab \t\r\n\r\n\r\n<>\xE9\x80\xFF\x81";
    std::mt19937 random(seed);
    std::string page;
    while (page.size() < length) page += kAlphabet[random() % (sizeof kAlphabet - 1)];
    return page;
}

TEST_F(PageTest, EveryByteOfAPageIsKept) {
    std::string allBytes;
    for (int c = 0; c < 256; ++c) allBytes += static_cast<char>(c);
    for (const std::string& page :
         {allBytes, std::string("{\\rtf1 not formatted}"), std::string("\xEF\xBB\xBF<p>"),
          std::string("\xEF\xBB\xBF\xEF\xBB\xBF"), std::string("\xEF\xBB\xBF"), std::string("\0\0", 2),
          std::string("a\rb\nc\r\r\nd\r\n"), std::string(200000, 'x'),
          std::string(4095, 'x') + "\r\n" + std::string(4095, 'y') + "\r\n"}) {
        EXPECT_EQ(newPage(page).txtPad().text(), page) << page.substr(0, 20);
        EXPECT_FALSE(active().txtPad().isChanged());
        active().setPage(page);
        EXPECT_EQ(pageText(), page) << "a second time: " << page.substr(0, 20);
    }
}

TEST_F(PageTest, WhatIsWrittenAreTheControlsLinesWhateverTheBreaksAndTheWrap) {
    for (unsigned seed = 1; seed <= 25; ++seed) {
        const std::string page = RandomPage(seed, 20 + seed * 7);
        document::RichEdit& pad = newPage(page).txtPad();
        std::string expected;
        for (long line = 0; line < mTxtBoxAPI::LineCount(pad.hwnd()); ++line) {
            const long start = mTxtBoxAPI::LineStart(pad.hwnd(), line);
            expected += pad.textRange(start, start + mTxtBoxAPI::LineLength(pad.hwnd(), line)) + "\r\n";
        }
        EXPECT_EQ(files::PageBytes(pad), expected) << "seed " << seed;
        pad.setWordWrap(true);
        EXPECT_EQ(files::PageBytes(pad), expected) << "wrapped, seed " << seed;
        EXPECT_TRUE(pad.wordWrap());
        run(mnuFileClose);
    }
    const std::string longLine = std::string(70000, 'x') + " y";
    EXPECT_EQ(files::PageBytes(newPage(longLine).txtPad()), longLine + "\r\n");
}

TEST_F(PageTest, NewPagesAreNumberedAndHoldTheOutline) {
    run(mnuFileNew);
    EXPECT_EQ(active().Caption(), "Untitled1");
    EXPECT_EQ(pageText(), document::kPageOutline);
    EXPECT_TRUE(label("Current Line No: 1"));
    run(mnuFileClose);
    run(mnuFileNew);
    EXPECT_EQ(active().Caption(), "Untitled2") << "closing gives no number back";
}

TEST_F(PageTest, TheTabKeyInsertsARunThatOneBackspaceRemoves) {
    newPage("ab");
    active().setTab("      ");
    active().txtPad().select(1, 1);
    pressKey(VK_TAB);
    EXPECT_EQ(pageText(), "a      b");
    pressKey(VK_BACK);
    EXPECT_EQ(pageText(), "ab");
    EXPECT_EQ(selected(), "1-1");
    pressKey(VK_TAB);
    active().txtPad().select(7, 8);
    pressKey(VK_BACK);
    EXPECT_EQ(pageText(), "a      ") << "with a selection only that goes";
    type("\t");
    EXPECT_EQ(pageText().find('\t'), std::string::npos);
}

TEST_F(PageTest, TheLineLabelFollowsTheCaretAndThePageInFront) {
    frmChild& first = newPage("a\r\nb\r\nc");
    pressKey(VK_DOWN);
    EXPECT_TRUE(label("Current Line No: 2")) << "after the key, not before";
    newPage("x");
    EXPECT_TRUE(label("Current Line No: 1"));
    activate(first);
    EXPECT_TRUE(label("Current Line No: 2"));
}

TEST_F(PageTest, CutPasteAndUndo) {
    newPage("one two");
    active().txtPad().select(0, 4);
    run(mnuEditCut);
    EXPECT_EQ(clipboard(), "one ");
    active().txtPad().select(0, 0);
    run(mnuEditCut);
    EXPECT_EQ(pageText(), "two") << "cutting nothing";
    run(mnuEditPaste);
    EXPECT_EQ(pageText(), "one two");
    run(mnuEditClear);
    EXPECT_EQ(pageText(), "");
    run(mnuEditUndo);
    EXPECT_EQ(pageText(), "one two") << "one step";
    win::SetClipboardText(main().mainHwnd(), "{\\rtf1 \\b bold}");
    active().selectAll();
    ::SendMessageA(active().txtPad().hwnd(), WM_PASTE, 0, 0);
    EXPECT_EQ(pageText(), "{\\rtf1 \\b bold}") << "characters only";
}

TEST_F(PageTest, ClosingAsksOnlyForAChangedPageAndSavesTheOneItAsksAbout) {
    newPage("unchanged");
    run(mnuFileClose);
    EXPECT_TRUE(main().documents().empty());

    const std::string path = scratch("asked.htm");
    newPage("asked").setCaption("asked.htm");
    type("x");
    frmChild* asked = &active();
    newPage("in front");
    const auto close = [&] { ::SendMessageA(asked->hwnd(), WM_CLOSE, 0, 0); };
    EXPECT_EQ(
        User::hears(close, {User::press("Quillon", IDYES), User::chooseFile("Save File As...", path)})[0],
        "ASKED.HTM has changed since last saved...(or has not yet been saved.)\r\n\r\n"
        "                     Would you like to save that file now?\r\n\r\n");
    EXPECT_EQ(readFile(path), "xasked\r\n");
    EXPECT_EQ(main().documents().size(), 1U);
}

TEST_F(PageTest, APageThatClosesUnsavedAfterAllIsOnTheClipboard) {
    newPage("page");
    type("my ");
    heard([&] { run(mnuFileClose); },
          {User::press("Quillon", IDYES), User::press("Save File As...", IDCANCEL)});
    EXPECT_TRUE(main().documents().empty());
    EXPECT_EQ(clipboard(), "my page");
}

TEST_F(PageTest, ACloseWhileABoxWaitsIsIgnoredAndExitAsksForEveryChangedPage) {
    newPage("");
    type("x");
    newPage("");
    type("y");
    const HWND window = main().mainHwnd();
    const auto tryToClose = [window](HWND box) {
        ::SendMessageA(window, WM_CLOSE, 0, 0);
        ::PostMessageA(box, WM_COMMAND, IDNO, 0);
    };
    heard([&] { run(mnuFileExit); }, {{"Quillon", tryToClose}, User::press("Quillon", IDNO)});
    EXPECT_FALSE(::IsWindow(window));
}

TEST_F(PageTest, AThousandPagesLeaveNothingBehind) {
    for (int i = 0; i < 5; ++i) {
        newPage("warm");
        run(mnuFileClose);
    }
    const seen::Holdings before = seen::HeldBy(::GetCurrentProcessId());
    ASSERT_GT(before.gdi, 0);
    for (int i = 0; i < 1000; ++i) {
        newPage("page");
        run(mnuFileClose);
        win::RunPending();
    }
    const seen::Holdings after = seen::HeldBy(::GetCurrentProcessId());
    EXPECT_LE(after.windows, before.windows);
    EXPECT_LE(after.gdi, before.gdi);
}

}  // namespace
