#include "win/app_test.h"
#include "win/message_loop.h"

namespace {

class PageDialogTest : public AppTest {
 protected:
    HWND open(Command command, const std::vector<std::string>& texts = {}) {
        run(command);
        const HWND form = window(command == tbrFind ? "Find" : "Replace");
        for (std::size_t i = 0; i < texts.size(); ++i) fill(form, i, texts[i]);
        return form;
    }
    static HWND box(HWND form, std::size_t index) { return ControlsOfClass(form, "Edit").at(index); }
    // Sets the text, of which the dialog is notified as if it were typed.
    static void fill(HWND form, std::size_t index, const std::string& text) {
        seen::PutText(box(form, index), text);
    }
    static void click(HWND form, const std::string& caption) {
        ::SendMessageA(seen::Child(form, caption, "Button"), BM_CLICK, 0, 0);
    }
    static std::string enabled(HWND form) {
        std::string captions;
        for (const char* caption : {"Find", "Find Next", "Replace", "Replace All"}) {
            if (::IsWindowEnabled(seen::Child(form, caption, "Button")))
                captions += std::string(caption) + ",";
        }
        return captions;
    }
    // Presses a key, through the message loop.
    static void pressIn(HWND form, WPARAM key) {
        ::PostMessageA(box(form, 0), WM_KEYDOWN, key, 0);
        win::RunPending();
    }
};

using FindTest = PageDialogTest;
using ReplaceTest = PageDialogTest;

TEST_F(FindTest, FindSelectsTheFirstMatchAndCountsToTheEnd) {
    const std::string german = "<BODY>\r\n\rgr\u00DC\u00DFt \u0141\u03A9\n";
    // Page, caret and text, then the selection, the message and the enabled buttons.
    using Search = std::tuple<std::string, long, const char*, const char*, const char*, const char*>;
    const Search searches[] = {
        {"xxabyyab", 0, "ab", "2-4", "2\r\noccurrences", "Find Next,"},
        {"xxabyyab", 0, "yy", "4-6", "1\r\noccurrences", ""},
        {"abxxab", 0, "AB", "0-2", "0\r\noccurrences", "Find,"},  // a match at the very top is not counted
        {"aaaaaaaa", 1, "aa", "1-3", "3\r\noccurrences", "Find Next,"},
        {german, 0, "Body", "1-5", "1\r\noccurrences", ""},
        {german, 0, "R\u00FC\u00DF", "10-13", "1\r\noccurrences", ""},
        {german, 0, "t \u0142\u03C9", "13-17", "1\r\noccurrences", ""},
        {"." + std::string(33000, 'a'), 0, "a", "1-2", "", "Find Next,"},  // more than can be counted
    };
    for (const auto& [page, caret, wanted, selection, message, buttons] : searches) {
        SCOPED_TRACE(page.substr(0, 20) + " " + wanted);
        newPage(page).txtPad().select(caret, caret);
        const HWND find = open(tbrFind, {wanted});
        EXPECT_EQ(seen::LabelsOf(find), "") << "the prompt disappears when there is text";
        click(find, "Find");
        EXPECT_EQ(selected(), selection);
        EXPECT_EQ(seen::LabelsOf(find), message);
        EXPECT_EQ(enabled(find), buttons);
        EXPECT_TRUE(pageHasFocus());
        fill(find, 0, "");
        EXPECT_EQ(seen::LabelsOf(find), "Enter search string above...");
        EXPECT_EQ(enabled(find), "Find,");
        pressIn(find, VK_ESCAPE);
    }
}

TEST_F(FindTest, FindNextStepsOverTheRepeatAfterAMatch) {
    newPage("aaaaaaaa").txtPad().select(1, 1);
    const HWND find = open(tbrFind, {"aa"});
    click(find, "Find");
    click(find, "Find Next");
    EXPECT_EQ(selected(), "3-5");
    EXPECT_EQ(heard([&] { click(find, "Find Next"); }, {User::press("Fennick", IDNO)}),
              "String not found.\r\nCare to search from the top of the page?");
    EXPECT_EQ(seen::LabelsOf(find), "Enter search string above...");
    EXPECT_EQ(::GetFocus(), box(find, 0));
}

TEST_F(FindTest, WhereNoMatchFollowsASearchFromTheTopIsOffered) {
    newPage("..ab..ab..").txtPad().select(8, 8);
    const HWND find = open(tbrFind, {"ab"});
    heard([&] { click(find, "Find"); }, {User::press("Fennick", IDYES)});
    EXPECT_EQ(selected(), "2-4");
    EXPECT_EQ(seen::LabelsOf(find), "2\r\noccurrences");
    fill(find, 0, "zz");
    active().txtPad().select(0, 0);
    click(find, "Find");
    EXPECT_EQ(seen::LabelsOf(find), "\r\nThe highlighted text was not found");
    EXPECT_EQ(::SendMessageA(box(find, 0), EM_GETSEL, 0, 0), MAKELONG(0, 2));
}

TEST_F(FindTest, EnterFindsThenFindsTheNextAndEscCloses) {
    newPage("..ab..ab..");
    const HWND find = open(tbrFind);
    const HWND replace = open(tbrReplace);
    ::EnableWindow(replace, FALSE);
    const auto look = [&](HWND note) {
        EXPECT_FALSE(::IsWindowEnabled(main().mainHwnd()) || ::IsWindowEnabled(find));
        ::PostMessageA(note, WM_COMMAND, IDOK, 0);
    };
    EXPECT_EQ(heard([&] { pressIn(find, VK_RETURN); }, {{"Oreval Note:", look}}),
              "You must enter text to find...");
    EXPECT_TRUE(::IsWindowEnabled(main().mainHwnd()) && ::IsWindowEnabled(find));
    EXPECT_FALSE(::IsWindowEnabled(replace)) << "what was disabled before stays disabled";
    fill(find, 0, "ab");
    pressIn(find, VK_RETURN);
    EXPECT_EQ(selected(), "2-4");
    EXPECT_EQ(open(tbrFind), find) << "there is only one";
    EXPECT_EQ(::GetFocus(), box(find, 0));
    pressIn(find, VK_RETURN);
    EXPECT_EQ(selected(), "6-8");
    pressIn(find, VK_ESCAPE);
    EXPECT_FALSE(::IsWindow(find));
    EXPECT_TRUE(pageHasFocus());
}

TEST_F(FindTest, ItSearchesThePageItWasOpenedFor) {
    frmChild& first = newPage("..ab");
    const HWND find = open(tbrFind, {"ab"});
    const frmChild& second = newPage("ab..");
    click(find, "Find");
    EXPECT_EQ(&active(), &first);
    EXPECT_EQ(selected(), "2-4");
    EXPECT_EQ(second.txtPad().selection().length(), 0);
}

TEST_F(FindTest, BothDialogsCloseWithAnyPageAndWithTheMainWindow) {
    newPage("a");
    newPage("b");
    const HWND find = open(tbrFind);
    const HWND replace = open(tbrReplace);
    EXPECT_EQ(::GetWindowLongPtrA(find, GWL_EXSTYLE) & WS_EX_TOPMOST, WS_EX_TOPMOST);
    run(mnuFileClose);
    EXPECT_FALSE(::IsWindow(find) || ::IsWindow(replace));
    EXPECT_TRUE(pageHasFocus());
    const HWND again = open(tbrFind);
    closeMain();
    EXPECT_FALSE(::IsWindow(again));
}

TEST_F(FindTest, TheDialogStaysOnTheScreen) {
    newPage("a");
    ::SetWindowPos(main().mainHwnd(), nullptr, -3000, 2000, 800, 600, SWP_NOZORDER);
    const RECT at = seen::PlaceOf(open(tbrFind));
    RECT area{};
    ::SystemParametersInfoA(SPI_GETWORKAREA, 0, &area, 0);
    EXPECT_GE(at.left, area.left);
    EXPECT_LE(at.bottom, area.bottom);
}

TEST_F(ReplaceTest, ReplaceChangesTheFirstMatchOfThePage) {
    newPage("abcabc").txtPad().select(5, 5);
    const HWND replace = open(tbrReplace, {"b", "B"});
    click(replace, "Replace");
    EXPECT_EQ(pageText(), "aBcabc");
    EXPECT_EQ(selected(), "2-2");
    EXPECT_TRUE(active().txtPad().isChanged());
    EXPECT_TRUE(label("Last Replace changed 1 occurrence."));
    EXPECT_EQ(enabled(replace), "Replace,Replace All,");
    pressIn(replace, VK_RETURN);
    EXPECT_EQ(pageText(), "aBcaBc");
    EXPECT_EQ(enabled(replace), "");
    run(mnuEditUndo);
    EXPECT_EQ(pageText(), "aBcabc");
    fill(replace, 0, "a");
    fill(replace, 1, "aa");
    for (int i = 0; i < 3; ++i) click(replace, "Replace");
    EXPECT_EQ(pageText(), "aaaaBcabc");
    EXPECT_EQ(enabled(replace), "Replace,Replace All,") << "the new text contains what is looked for";
}

TEST_F(ReplaceTest, WhatCannotBeReplacedIsReportedAndLeavesThePageAlone) {
    const std::string tooMuch(40000, 'a');
    const std::vector<std::array<std::string, 6>> refusals = {
        {"A", "", "", "Replace", "Oreval Note:", "Enter text to be replaced."},
        {"A", "a", "", "Replace", "Quillon", "Enter text to replace with..."},
        {"A", "a", "", "Replace All", "Oreval Note:", "Enter text to replace with..."},
        {"A", "a", "b", "Replace", "Oreval Note:", "No match found"},
        {"A", "a", "b", "Replace All", "Oreval Note:", "No match found"},
        {tooMuch, "a", "b", "Replace All", "Oreval Note:", "Too much to handle at this time!"},
    };
    setClipboard("kept");
    for (const auto& [page, find, with, button, title, message] : refusals) {
        newPage(page);
        const HWND replace = open(tbrReplace, {find, with});
        EXPECT_EQ(said([&, press = button] { click(replace, press); }, title), message);
        EXPECT_EQ(pageText(), page);
        EXPECT_FALSE(active().txtPad().isChanged());
        EXPECT_EQ(clipboard(), "kept");
        pressIn(replace, VK_ESCAPE);
    }
}

TEST_F(ReplaceTest, ReplaceAllRebuildsThePageAndClosesTheDialog) {
    frmChild& page = newPage("x\r\naaaa\r\n");
    page.txtPad().setFont({"Arial", 17});
    page.txtPad().setWordWrap(true);
    page.setTab("      ");
    page.txtPad().select(4, 6);
    const HWND replace = open(tbrReplace, {"aa", "x"});
    click(replace, "Replace All");
    EXPECT_EQ(pageText(), "x\r\nxx\r\n");
    EXPECT_FALSE(::IsWindow(replace));
    EXPECT_TRUE(label("Last Replace changed  3 occurrences.")) << "those that overlap are counted too";
    EXPECT_TRUE(label("Current Line No: 2"));
    EXPECT_EQ(clipboard(), "x\r\nxx\r\n");
    EXPECT_EQ(selected(), "4-4");
    EXPECT_TRUE(page.txtPad().isChanged());
    EXPECT_TRUE(page.txtPad().wordWrap());
    EXPECT_EQ(page.txtPad().font().face, "Arial");
    EXPECT_EQ(page.tabText(), "      ");
    EXPECT_TRUE(pageHasFocus());
    win::RunPending();
    EXPECT_EQ(::RevokeDragDrop(page.txtPad().hwnd()), S_OK) << "files can still be dropped";
    EXPECT_GT(::SendMessageA(page.txtPad().hwnd(), EM_GETLIMITTEXT, 0, 0), 0x100000);
}

TEST_F(ReplaceTest, DuringReplaceAllOnlyCancelWorksAndLeavesThePageAlone) {
    newPage("aaaa");
    HWND replace = open(tbrReplace, {"a", "b"});
    ::PostMessageA(replace, WM_COMMAND, IDCANCEL, 0);
    click(replace, "Replace All");
    EXPECT_FALSE(::IsWindow(replace));
    EXPECT_EQ(pageText(), "aaaa");
    replace = open(tbrReplace, {"a", "b"});
    ::PostMessageA(main().mainHwnd(), WM_CLOSE, 0, 0);
    click(replace, "Replace All");
    EXPECT_EQ(pageText(), "bbbb") << "the main window takes no input meanwhile";
}

}  // namespace
