#include "win/app_test.h"
#include "win/clipboard.h"
#include "win/message_loop.h"

namespace {

class PageDialogTest : public AppTest {
 protected:
    HWND dialog(const std::string& title) { return seen::Titled(::GetCurrentProcessId(), title); }
    HWND open(Command command, const std::string& title) {
        run(command);
        const HWND window = dialog(title);
        EXPECT_TRUE(window) << title;
        return window;
    }
    static std::vector<HWND> boxes(HWND window) {
        std::vector<HWND> edits = seen::Below(window);
        std::erase_if(edits, [](HWND child) { return seen::ClassOf(child) != "Edit"; });
        return edits;
    }
    // As if typed: the dialog hears of the change.
    static void fill(HWND window, std::size_t box, const std::string& text) {
        ::SendMessageA(boxes(window)[box], WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()));
    }
    static HWND button(HWND window, const std::string& caption) {
        return seen::Child(window, caption, "Button");
    }
    static bool enabled(HWND window, const std::string& caption) {
        return ::IsWindowEnabled(button(window, caption)) != FALSE;
    }
    static void click(HWND window, const std::string& caption) {
        ::SendMessageA(button(window, caption), BM_CLICK, 0, 0);
    }
    // As the message loop hands it on.
    static void pressIn(HWND window, WPARAM key) {
        MSG message{};
        message.hwnd = boxes(window)[0];
        message.message = WM_KEYDOWN;
        message.wParam = key;
        ::SendMessageA(window, win::kPreTranslate, 0, reinterpret_cast<LPARAM>(&message));
    }
    std::string selected() { return selectedIn(active()); }
    static std::string selectedIn(const frmChild& page) {
        const document::Selection selection = page.txtPad().selection();
        return std::to_string(selection.start) + "-" + std::to_string(selection.end);
    }
    bool pageHasFocus() { return ::GetFocus() == active().txtPad().hwnd(); }
};

class FindTest : public PageDialogTest {
 protected:
    HWND openFind(const std::string& wanted) {
        const HWND find = open(tbrFind, "Find");
        fill(find, 0, wanted);
        return find;
    }
    static std::string buttons(HWND find) {
        return std::string(enabled(find, "Find") ? "Find" : "") + (enabled(find, "Find Next") ? "Next" : "");
    }
};

TEST_F(FindTest, FindSelectsTheFirstMatchAndCountsToTheEnd) {
    newPage("xxabyyab");
    const HWND find = openFind("ab");
    EXPECT_EQ(seen::LabelsOf(find), "") << "the prompt goes when there is text";
    click(find, "Find");
    EXPECT_EQ(selected(), "2-4");
    EXPECT_EQ(seen::LabelsOf(find), "2\r\noccurrences");
    EXPECT_EQ(buttons(find), "Next");
    EXPECT_TRUE(pageHasFocus());
    fill(find, 0, "");
    EXPECT_EQ(seen::LabelsOf(find), "Enter search string above...");
    EXPECT_EQ(buttons(find), "Find");
    fill(find, 0, "yy");
    click(find, "Find");
    EXPECT_EQ(seen::LabelsOf(find), "1\r\noccurrences");
    EXPECT_EQ(buttons(find), "") << "one match needs no further search";
}

TEST_F(FindTest, AMatchAtTheVeryTopCountsNothing) {
    newPage("abxxab");
    const HWND find = openFind("AB");
    click(find, "Find");
    EXPECT_EQ(selected(), "0-2");
    EXPECT_EQ(seen::LabelsOf(find), "0\r\noccurrences");
    EXPECT_EQ(buttons(find), "Find");
}

TEST_F(FindTest, FindNextStepsOverTheRepeatAfterAMatch) {
    newPage("aaaaaaaa");
    const HWND find = openFind("aa");
    active().txtPad().select(1, 1);
    click(find, "Find");
    EXPECT_EQ(selected(), "1-3");
    EXPECT_EQ(seen::LabelsOf(find), "3\r\noccurrences");
    click(find, "Find Next");
    EXPECT_EQ(selected(), "3-5");
    User user({User::press("Fennick", IDNO)});
    click(find, "Find Next");
    EXPECT_EQ(user.heard()[0], "String not found.\r\nCare to search from the top of the page?");
    EXPECT_EQ(seen::LabelsOf(find), "Enter search string above...");
    EXPECT_EQ(::GetFocus(), boxes(find)[0]);
}

TEST_F(FindTest, LettersMatchWhateverTheirCaseAndUmlautsToo) {
    newPage(
        "<BODY>\r\n\rgr\xDC\xDF"
        "e\n");
    const HWND find = openFind("Body");
    click(find, "Find");
    EXPECT_EQ(selected(), "1-5");
    fill(find, 0, "R\xFC\xDF");
    active().txtPad().select(0, 0);
    click(find, "Find");
    EXPECT_EQ(active().txtPad().selectedText(), "r\xDC\xDF");
}

TEST_F(FindTest, WithNoMatchBelowTheTopIsOffered) {
    newPage("..ab..ab..");
    active().txtPad().select(8, 8);
    const HWND find = openFind("ab");
    {
        User user({User::press("Fennick", IDYES)});
        click(find, "Find");
    }
    EXPECT_EQ(selected(), "2-4");
    EXPECT_EQ(seen::LabelsOf(find), "2\r\noccurrences");
    fill(find, 0, "zz");
    active().txtPad().select(0, 0);
    click(find, "Find");
    EXPECT_EQ(seen::LabelsOf(find), "\r\nThe highlighted text was not found");
    EXPECT_EQ(::GetFocus(), boxes(find)[0]);
    DWORD start = 9;
    DWORD end = 9;
    ::SendMessageA(boxes(find)[0], EM_GETSEL, reinterpret_cast<WPARAM>(&start),
                   reinterpret_cast<LPARAM>(&end));
    EXPECT_EQ(std::to_string(start) + "-" + std::to_string(end), "0-2");
}

TEST_F(FindTest, EnterFindsThenFindsTheNextAndEscCloses) {
    newPage("..ab..ab..");
    const HWND find = open(tbrFind, "Find");
    {
        User user({User::press("Oreval Note:", IDOK)});
        pressIn(find, VK_RETURN);
        EXPECT_EQ(user.heard()[0], "You must enter text to find...");
    }
    EXPECT_TRUE(::IsWindowEnabled(main().mainHwnd()));
    fill(find, 0, "ab");
    pressIn(find, VK_RETURN);
    EXPECT_EQ(selected(), "2-4");
    run(tbrFind);
    EXPECT_EQ(dialog("Find"), find) << "there is one only";
    EXPECT_EQ(::GetFocus(), boxes(find)[0]);
    pressIn(find, VK_RETURN);
    EXPECT_EQ(selected(), "6-8");
    pressIn(find, VK_ESCAPE);
    EXPECT_FALSE(::IsWindow(find));
    EXPECT_TRUE(pageHasFocus());
}

TEST_F(FindTest, ItSearchesThePageItWasOpenedFor) {
    frmChild& first = newPage("..ab");
    const HWND find = openFind("ab");
    frmChild& second = newPage("ab..");
    click(find, "Find");
    EXPECT_EQ(&active(), &first);
    EXPECT_EQ(selectedIn(first), "2-4");
    EXPECT_EQ(selectedIn(second), "0-0");
}

TEST_F(FindTest, CountsPastTheLimitEndSilentlyAndTheWalkGoesOn) {
    newPage("." + std::string(33000, 'a'));
    const HWND find = openFind("a");
    click(find, "Find");
    EXPECT_EQ(selected(), "1-2");
    EXPECT_EQ(seen::LabelsOf(find), "");
    click(find, "Find Next");
    EXPECT_EQ(selected(), "2-3");
}

TEST_F(FindTest, BothDialogsGoWithAnyPageAndWithTheMainWindow) {
    newPage("a");
    newPage("b");
    const HWND find = open(tbrFind, "Find");
    const HWND replace = open(tbrReplace, "Replace");
    EXPECT_EQ(::GetWindowLongPtrA(find, GWL_EXSTYLE) & WS_EX_TOPMOST, WS_EX_TOPMOST);
    run(mnuFileClose);
    EXPECT_FALSE(::IsWindow(find));
    EXPECT_FALSE(::IsWindow(replace));
    EXPECT_TRUE(pageHasFocus());
    const HWND again = open(tbrFind, "Find");
    closeMain();
    EXPECT_FALSE(::IsWindow(again));
}

TEST_F(FindTest, TheDialogStaysOnTheScreen) {
    newPage("a");
    ::SetWindowPos(main().mainHwnd(), nullptr, -3000, 2000, 800, 600, SWP_NOZORDER);
    RECT at{};
    ::GetWindowRect(open(tbrFind, "Find"), &at);
    RECT area{};
    ::SystemParametersInfoA(SPI_GETWORKAREA, 0, &area, 0);
    EXPECT_GE(at.left, area.left);
    EXPECT_LE(at.bottom, area.bottom);
}

class ReplaceTest : public PageDialogTest {
 protected:
    HWND openReplace(const std::string& find, const std::string& with) {
        const HWND replace = open(tbrReplace, "Replace");
        fill(replace, 0, find);
        fill(replace, 1, with);
        return replace;
    }
};

TEST_F(ReplaceTest, ReplaceChangesTheFirstMatchOfThePage) {
    newPage("abcabc");
    active().txtPad().select(5, 5);
    const HWND replace = openReplace("b", "B");
    click(replace, "Replace");
    EXPECT_EQ(pageText(), "aBcabc");
    EXPECT_EQ(selected(), "2-2");
    EXPECT_TRUE(active().txtPad().isChanged());
    EXPECT_TRUE(label("Last Replace changed 1 occurrence."));
    EXPECT_TRUE(enabled(replace, "Replace") && enabled(replace, "Replace All"));
    pressIn(replace, VK_RETURN);
    EXPECT_EQ(pageText(), "aBcaBc");
    EXPECT_FALSE(enabled(replace, "Replace") || enabled(replace, "Replace All"));
    run(mnuEditUndo);
    EXPECT_EQ(pageText(), "aBcabc");
    fill(replace, 0, "a");
    fill(replace, 1, "aa");
    for (int i = 0; i < 3; ++i) click(replace, "Replace");
    EXPECT_EQ(pageText(), "aaaaBcabc");
    EXPECT_TRUE(enabled(replace, "Replace")) << "the new text holds what is looked for";
}

TEST_F(ReplaceTest, EmptyTextsAndNoMatchAreTold) {
    newPage("A");
    const HWND replace = openReplace("", "");
    User user({User::press("Oreval Note:", IDOK), User::press("Quillon", IDOK),
               User::press("Oreval Note:", IDOK), User::press("Oreval Note:", IDOK),
               User::press("Oreval Note:", IDOK)});
    click(replace, "Replace");
    fill(replace, 0, "a");
    click(replace, "Replace");
    click(replace, "Replace All");
    fill(replace, 1, "b");
    click(replace, "Replace");
    EXPECT_EQ(::GetFocus(), boxes(replace)[0]);
    click(replace, "Replace All");
    EXPECT_EQ(user.heard(), (std::vector<std::string>{
                                "Enter text to be replaced.", "Enter text to replace with...",
                                "Enter text to replace with...", "No match found", "No match found"}));
    EXPECT_EQ(pageText(), "A");
    EXPECT_FALSE(active().txtPad().isChanged());
}

TEST_F(ReplaceTest, ReplaceAllRebuildsThePageAndClosesTheDialog) {
    newPage("x\r\naaaa\r\n");
    const document::Font font{"Arial", 17};
    active().txtPad().setFont(font);
    active().txtPad().setWordWrap(true);
    active().setTab("      ");
    active().txtPad().select(4, 6);
    const HWND replace = openReplace("aa", "x");
    click(replace, "Replace All");
    EXPECT_EQ(pageText(), "x\r\nxx\r\n");
    EXPECT_FALSE(::IsWindow(replace));
    EXPECT_TRUE(label("Last Replace changed  3 occurrences."));
    EXPECT_TRUE(label("Current Line No: 2"));
    EXPECT_EQ(win::ClipboardText(main().mainHwnd()), "x\r\nxx\r\n");
    EXPECT_EQ(selected(), "4-4");
    EXPECT_TRUE(active().txtPad().isChanged());
    EXPECT_TRUE(active().txtPad().wordWrap());
    EXPECT_EQ(active().txtPad().font().face, "Arial");
    EXPECT_EQ(active().tabText(), "      ");
    EXPECT_TRUE(pageHasFocus());
    EXPECT_EQ(::RevokeDragDrop(active().txtPad().hwnd()), S_OK) << "drops go on";
    EXPECT_GT(::SendMessageA(active().txtPad().hwnd(), EM_GETLIMITTEXT, 0, 0), 0x100000);
}

TEST_F(ReplaceTest, TooManyMatchesLeaveThePageAlone) {
    const std::string page(40000, 'a');
    newPage(page);
    win::SetClipboardText(main().mainHwnd(), "kept");
    const HWND replace = openReplace("a", "b");
    User user({User::press("Oreval Note:", IDOK)});
    click(replace, "Replace All");
    EXPECT_EQ(user.heard()[0], "Too much to handle at this time!");
    EXPECT_EQ(pageText(), page);
    EXPECT_EQ(win::ClipboardText(main().mainHwnd()), "kept");
    EXPECT_FALSE(active().txtPad().isChanged());
}

TEST_F(ReplaceTest, AMegabyteIsSearchedAndReplaced) {
    std::string page;
    std::string replaced;
    for (int i = 0; i < 5000; ++i) {
        const std::string line(90, '-');
        page += line + "\r\n<B>needle</B>\r\n" + line + "\r\n";
        replaced += line + "\r\n<B>pin</B>\r\n" + line + "\r\n";
    }
    newPage(page);
    const HWND find = open(tbrFind, "Find");
    fill(find, 0, "NEEDLE");
    click(find, "Find");
    EXPECT_EQ(selected(), "95-101");
    EXPECT_EQ(seen::LabelsOf(find), "5000\r\noccurrences");
    click(openReplace("needle", "pin"), "Replace All");
    EXPECT_EQ(pageText(), replaced);
    EXPECT_EQ(selected(), "95-95");
}

TEST_F(ReplaceTest, WhatIsTypedDuringReplaceAllIsKept) {
    newPage("aaaa");
    const HWND replace = openReplace("a", "b");
    ::PostMessageA(active().txtPad().hwnd(), WM_CHAR, 'a', 0);
    click(replace, "Replace All");
    EXPECT_EQ(pageText(), "bbbbb");
    EXPECT_TRUE(label("Last Replace changed  5 occurrences."));
}

TEST_F(ReplaceTest, CancelDuringReplaceAllLeavesThePageAlone) {
    newPage("aaaa");
    const HWND replace = openReplace("a", "b");
    ::PostMessageA(replace, WM_COMMAND, IDCANCEL, 0);
    click(replace, "Replace All");
    EXPECT_FALSE(::IsWindow(replace));
    EXPECT_EQ(pageText(), "aaaa");
}

}  // namespace
