#include <random>
#include <thread>

#include "document/mTxtBoxAPI.h"
#include "document/system_code_pages.h"
#include "files/page_bytes.h"
#include "win/app_test.h"
#include "win/failing_calls.h"
#include "win/message_loop.h"

namespace {

using PageTest = AppTest;

std::u16string RandomPage(unsigned seed, std::size_t length) {
    constexpr char16_t kAlphabet[] = u"ab \t\r\n\r\n\r\n<>\u00E9\u20AC\u0141\u2028\xDC81";
    std::mt19937 random(seed);
    std::u16string page;
    while (page.size() < length) page += kAlphabet[random() % (std::size(kAlphabet) - 1)];
    return page;
}

TEST_F(PageTest, EveryByteOfAPageIsKept) {
    std::string allBytes;
    for (int c = 0; c < 256; ++c) allBytes += static_cast<char>(c);
    const std::string mark16 = "\xFF\xFE";
    const auto declared = [&allBytes](const std::string& label) {
        return "<META CHARSET=" + label + ">" + allBytes + "\x82\xA0\xED\x40\xFA\x5C\x81\x30";
    };
    for (const std::string& page :
         {allBytes, declared("windows-1251"), declared("shift_jis"), declared("gb2312"), declared("utf-8"),
          declared("iso-2022-jp"), mark16 + std::string("a\0\r\0\n\0\x42\x04\x00\xD8z", 11),
          std::string("\xFE\xFF\x00\x61\x04\x42\xDC\x00\x20\x28", 10), std::string("\u65E5\u672C \u0141\xC3"),
          std::string("{\\rtf1 not formatted}"), std::string("\xEF\xBB\xBF<p>"),
          std::string("\xEF\xBB\xBF\xEF\xBB\xBF"), std::string("\xEF\xBB\xBF"), std::string("\0\0", 2),
          std::string("a\rb\nc\r\r\nd\r\n"), std::string(20000, 'x'),
          std::string(4095, 'x') + "\r\n" + std::string(4095, 'y') + "\r\n"}) {
        openPage("page.htm", page);
        const auto bytes = [this] {
            return document::Encode(active().encoding(), active().txtPad().text(),
                                    document::SystemCodePages());
        };
        EXPECT_EQ(bytes(), page) << page.substr(0, 20);
        EXPECT_FALSE(active().txtPad().isChanged() || active().txtPad().isReadOnly());
        active().replacePage(active().txtPad().text());
        EXPECT_EQ(bytes(), page) << "a second time: " << page.substr(0, 20);
        active().txtPad().setChanged(false);
        run(mnuFileClose);
    }
}

TEST_F(PageTest, TheControlsLinesAreWrittenWhateverTheirBreaksAndTheWordWrap) {
    for (unsigned seed = 1; seed <= 25; ++seed) {
        const document::Page page{RandomPage(seed, 20 + seed * 7), {document::kUtf8, false}};
        const frmChild& window = frmChild::open(main(), "random", page);
        document::RichEdit& pad = window.txtPad();
        std::u16string lines;
        for (long line = 0; line < mTxtBoxAPI::LineCount(pad.hwnd()); ++line) {
            const long start = mTxtBoxAPI::LineStart(pad.hwnd(), line);
            pad.select(start, start + mTxtBoxAPI::LineLength(pad.hwnd(), line));
            lines += pad.selectedText() + u"\r\n";
        }
        const std::string expected = document::Encode(page.encoding, lines, document::SystemCodePages());
        EXPECT_EQ(files::FileOf(window).bytes, expected) << "seed " << seed;
        pad.setWordWrap(true);
        EXPECT_EQ(files::FileOf(window).bytes, expected) << "wrapped, seed " << seed;
        EXPECT_TRUE(pad.wordWrap());
        run(mnuFileClose);
    }
    const std::string longLine = std::string(70000, 'x') + " y";
    EXPECT_EQ(files::FileOf(newPage(longLine)).bytes, longLine + "\r\n");
}

TEST_F(PageTest, WhatTheEncodingCannotHoldIsInsertedAsAReference) {
    openPage("page.htm", "<META CHARSET=windows-1252>\r\n\xE9");
    type("\u0141\u00E9");
    EXPECT_TRUE(pageText().starts_with("&#321;\u00E9<META")) << pageText();
    run(mnuEditUndo);
    run(mnuEditUndo);
    EXPECT_TRUE(pageText().starts_with("<META")) << "one step each: " << pageText();
    setClipboard("\u65E5\U0001F600");
    run(mnuEditPaste);
    EXPECT_TRUE(pageText().starts_with("&#26085;&#128512;<META"));
    // Another declared encoding takes effect with the save, which turns what it cannot hold into references.
    active().selectAll();
    active().insert(u"<META CHARSET=\"utf-8\">\u00E9");
    type("\u0142");
    run(mnuFileSave);
    EXPECT_EQ(readFile(scratch("page.htm")), "<META CHARSET=\"utf-8\">\u00E9&#322;\r\n");
    type("\u0142");
    run(mnuFileSave);
    EXPECT_EQ(readFile(scratch("page.htm")), "<META CHARSET=\"utf-8\">\u00E9&#322;\u0142\r\n");
    active().selectAll();
    active().insert(u"<META CHARSET=koi8-r>\u0416\u00E9");
    run(mnuFileSave);
    EXPECT_EQ(readFile(scratch("page.htm")), "<META CHARSET=koi8-r>\xF6&#233;\r\n");
    EXPECT_EQ(pageText(), "<META CHARSET=koi8-r>\u0416&#233;");
    EXPECT_FALSE(active().isChanged());
}

TEST_F(PageTest, ReplacingTheWholePageIsOneStepOfUndoAndKeepsTheEarlierOnes) {
    frmChild& page = openPage("page.htm", "one");
    type("a");
    page.replacePage(u"two");
    type("b");
    run(mnuEditUndo);
    EXPECT_EQ(pageText(), "two");
    run(mnuFileSave);
    run(mnuOptWW);
    run(mnuOptWW);
    run(mnuEditUndo);
    EXPECT_EQ(pageText(), "aone");
    EXPECT_TRUE(page.isChanged()) << "its file holds the replacement now";
    run(mnuEditUndo);
    EXPECT_EQ(pageText(), "one");
}

TEST_F(PageTest, AVeryLongLineIsWrappedOnTheScreenAndNowhereElse) {
    std::string page = "<p>";
    while (page.size() < 5000) page += "some words ";
    openPage("long.htm", page);
    EXPECT_TRUE(main().menu().isChecked(mnuOptWW));
    EXPECT_EQ(files::FileOf(active()).bytes, page + "\r\n");
    newPage(std::string(3999, 'x'));
    EXPECT_FALSE(main().menu().isChecked(mnuOptWW));
}

// An edit control that changes the text it is given.
WNDPROC realControl = nullptr;
LRESULT CALLBACK ChangingControl(HWND control, UINT message, WPARAM wParam, LPARAM lParam) {
    const LRESULT result = ::CallWindowProcA(realControl, control, message, wParam, lParam);
    if (message == EM_STREAMIN)
        ::CallWindowProcA(realControl, control, EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>("?"));
    return result;
}

TEST_F(PageTest, APageThatTheControlChangesIsReadOnly) {
    const auto setProcedure = [control = newPage("").txtPad().hwnd()](WNDPROC procedure) {
        return ::SetClassLongPtrA(control, GCLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure));
    };
    realControl = reinterpret_cast<WNDPROC>(setProcedure(ChangingControl));
    const auto text = said([&] { openPage("page.htm", "old"); });
    setProcedure(realControl);
    EXPECT_EQ(text.substr(0, text.find('\r')),
              "page.htm holds characters that this system's edit control cannot keep.");
    type("new ");
    active().insert(u"new ");
    EXPECT_EQ(said(mnuFileSave), "Could not write to the specified file at this time.");
    EXPECT_EQ(readFile(scratch("page.htm")), "old");
}

TEST_F(PageTest, ShiftAndEnterEndALine) {
    newPage("ab");
    active().txtPad().select(1, 1);
    BYTE keys[256] = {};
    keys[VK_SHIFT] = 0x80;
    ::SetKeyboardState(keys);
    ::SendMessageW(active().txtPad().hwnd(), WM_KEYDOWN, VK_RETURN, 0);
    keys[VK_SHIFT] = 0;
    ::SetKeyboardState(keys);
    EXPECT_EQ(pageText(), "a\r\nb");
}

TEST_F(PageTest, APageTooLargeForTheMemoryIsReported) {
    newPage("the other page");
    writeFile(scratch("large.htm"), std::string(1000000, '\n'));
    const auto said = SaidWhileMemoryIsShort(
        [&] { heard([&] { run(mnuFileOpen); }, {User::chooseFile("Open File...", scratch("large.htm"))}); });
    ASSERT_EQ(said.size(), 1U);
    EXPECT_EQ(said[0].substr(0, said[0].find(':')), "large.htm (1000000 bytes) is too large to be opened");
    EXPECT_EQ(main().documents().size(), 1U);
    EXPECT_EQ(pageText(), "the other page");
}

TEST_F(PageTest, TheTabKeyInsertsBlanksThatOneBackspaceRemoves) {
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
    EXPECT_EQ(pageText(), "a      ") << "a selection alone is removed";
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

TEST_F(PageTest, TheMenuIsThatOfThePageUnderTheMouse) {
    const frmChild& behind = newPage("behind");
    newPage("in front");
    const std::jthread user([window = main().mainHwnd()] {
        EXPECT_TRUE(seen::Until([] { return ::FindWindowA("#32768", nullptr) != nullptr; }));
        ::SendMessageA(window, WM_CANCELMODE, 0, 0);
    });
    ::SendMessageA(behind.txtPad().hwnd(), WM_RBUTTONUP, 0, 0);
    EXPECT_EQ(&active(), &behind);
}

TEST_F(PageTest, ClearIsUndoneInOneStepAndPasteTakesCharactersOnly) {
    newPage("one two");
    run(mnuEditClear);
    EXPECT_EQ(pageText(), "");
    active().txtPad().setChanged(false);
    run(mnuEditUndo);
    EXPECT_EQ(pageText(), "one two");
    EXPECT_TRUE(active().isChanged()) << "it was saved without the text";
    setClipboard("{\\rtf1 \\b bold}");
    active().selectAll();
    ::SendMessageA(active().txtPad().hwnd(), WM_PASTE, 0, 0);
    EXPECT_EQ(pageText(), "{\\rtf1 \\b bold}");
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

TEST_F(PageTest, APageThatIsClosedAfterACancelledSaveIsOnTheClipboard) {
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

}  // namespace
