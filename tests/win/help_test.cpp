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

TEST_F(HelpTest, EachTopicAndEachButtonShowsItsWords) {
    const HWND dialog = open();
    ASSERT_TRUE(dialog);
    EXPECT_EQ(text(dialog, lblHead), "\"Quillon Help\"  ");
    EXPECT_EQ(text(dialog, lblWords), help::kIntroWords);
    const HMENU features = ::GetSubMenu(::GetMenu(dialog), 0);
    for (int i = 0; i < 14; ++i) {
        ::SendMessageA(dialog, WM_COMMAND, ::GetMenuItemID(features, i), 0);
        const help::Topic& topic = help::kTopics[static_cast<std::size_t>(i)];
        EXPECT_EQ(text(dialog, lblHead) + text(dialog, lblWords), std::string(topic.heading) + topic.words);
    }
    EXPECT_EQ(open(), dialog) << "there is one only";
    const ToolButtons tools(dialog);
    EXPECT_EQ(tools.names(true), ToolButtons(main().mainHwnd()).names());
    for (int i = 0; i < 17; ++i) {
        tools.click(i);
        EXPECT_EQ(text(dialog, lblHead), " Toolbar Details");
        EXPECT_EQ(text(dialog, Label1), "Quillon");
        EXPECT_EQ(text(dialog, lblWords), help::ButtonWords(static_cast<std::size_t>(i))) << i;
    }
    for (const int id : {mnuFeatClose, cmdClose}) {
        ::SendMessageA(open(), WM_COMMAND, static_cast<WPARAM>(id), 0);
        EXPECT_FALSE(window("Quillon Help"));
    }
}

TEST_F(HelpTest, TheAboutBoxShowsTheVersionAndItsLinksOpenByClickAndByKey) {
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
