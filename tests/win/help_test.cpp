#include "forms/frmAbout.h"
#include "forms/frmHelp.h"
#include "help/core/help_texts.h"
#include "support/standin_browser.h"
#include "win/app_test.h"

namespace {

class HelpTest : public AppTest {
 protected:
    HWND open() {
        run(mnuHelpCont);
        return window("Quillon Help");
    }
    static std::string text(HWND dialog, int id) { return seen::TextOf(::GetDlgItem(dialog, id)); }
};

TEST_F(HelpTest, EachTopicShowsItsHeadingAndWords) {
    const HWND dialog = open();
    ASSERT_TRUE(dialog);
    EXPECT_EQ(text(dialog, lblHead), "\"Quillon Help\"  ");
    EXPECT_EQ(text(dialog, lblWords), help::kIntroWords);
    const HMENU features = ::GetSubMenu(::GetMenu(dialog), 0);
    std::string headings;
    for (UINT i = 0; i < 14; ++i) {
        char caption[64];
        ::GetMenuStringA(features, i, caption, sizeof caption, MF_BYPOSITION);
        ::SendMessageA(dialog, WM_COMMAND, ::GetMenuItemID(features, static_cast<int>(i)), 0);
        headings += std::string(caption) + ": " + text(dialog, lblHead) + "\n";
        EXPECT_EQ(text(dialog, lblWords), help::kTopics[i].words) << caption;
    }
    EXPECT_EQ(
        headings,
        "Image Drag: Image Tag via Drag/Drop\nDirect FTP: Direct FTP\nLine Count: Line Numbers\n"
        "Page Update: Page Updater\nPreview: Page Preview\nReset: Page Reset\nSpell Check: Spell Checker\n"
        "Change Spy: Change Spying\nCurrent: Current List\nMRU List: MRU List\n"
        "As Notepad: To Replace Notepad...\nWord Wrap: About word wrap\nColor Tags: Color Tags\n"
        "Print: About Printing\n");
    EXPECT_EQ(open(), dialog) << "there is one only";
    ::SendMessageA(dialog, WM_COMMAND, mnuFeatClose, 0);
    EXPECT_FALSE(::IsWindow(dialog));
}

TEST_F(HelpTest, EachButtonShowsItsDescription) {
    const HWND dialog = open();
    ASSERT_TRUE(dialog);
    const ToolButtons tools(dialog);
    EXPECT_EQ(tools.names(true), ToolButtons(main().mainHwnd()).names());
    for (int i = 0; i < 17; ++i) {
        tools.click(i);
        EXPECT_EQ(text(dialog, lblHead), " Toolbar Details");
        EXPECT_EQ(text(dialog, Label1), "Quillon");
        EXPECT_EQ(text(dialog, lblWords), help::ButtonWords(static_cast<std::size_t>(i))) << i;
    }
    ::SendMessageA(::GetDlgItem(dialog, cmdClose), BM_CLICK, 0, 0);
    EXPECT_FALSE(::IsWindow(dialog));
}

TEST_F(HelpTest, TheAboutBoxTellsTheVersionAndItsLinksOpenByClickAndByKey) {
    const Browser browser(Browser::standIn(), scratch("seen"));
    const auto expectOpens = [&](const std::string& address) {
        const std::string shown = browser.shown();
        EXPECT_NE(shown.find(address), std::string::npos) << shown;
    };
    const auto use = [&](HWND dialog) {
        EXPECT_EQ(text(dialog, lblVersion), "Version 4.1.2");
        const HWND page = ::GetDlgItem(dialog, lblLinks);
        EXPECT_EQ(seen::TextOf(page), "http://www.example.com/quillon/");
        for (const UINT message : {WM_LBUTTONDOWN, WM_LBUTTONUP})
            ::PostMessageW(page, message, 0, MAKELPARAM(9, 9));
        expectOpens("http://www.example.com/quillon/");
        const HWND mail = ::GetDlgItem(dialog, lblLinks + 1);
        EXPECT_EQ(seen::TextOf(mail), "support@example.com");
        ::SendMessageW(dialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(mail), TRUE);
        ::PostMessageW(mail, WM_KEYDOWN, VK_RETURN, 0);
        ::PostMessageW(mail, WM_KEYUP, VK_RETURN, 0);
        expectOpens("mailto:support@example.com");
        ::PostMessageA(dialog, WM_COMMAND, IDCANCEL, 0);
    };
    heard([&] { run(mnuHelpAbout); }, {{"About Quillon", use}});
}

}  // namespace
