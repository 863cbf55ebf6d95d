#include "settings/CRegSettings.h"
#include "win/app_test.h"

namespace {

class OptionsTest : public AppTest {
 protected:
    static std::string stored(const std::string& section, const std::string& key) {
        return CRegSettings().GetRegSetting(section, key, "(nothing)");
    }
    bool isChecked(int command) {
        return (::GetMenuState(::GetMenu(main().mainHwnd()), static_cast<UINT>(command), MF_BYCOMMAND) &
                MF_CHECKED) != 0;
    }
    // The captions of the checked items of a list.
    std::string checked(Command first, int count) {
        std::string captions;
        for (int command = first; command < first + count; ++command)
            if (isChecked(command)) captions += main().menu().caption(static_cast<Command>(command));
        return captions;
    }
    static HWND combo(HWND dialog, std::size_t index) {
        return ControlsOfClass(dialog, "ComboBox").at(index);
    }
    static void choose(HWND box, const std::string& text) {
        ::SendMessageA(box, CB_SELECTSTRING, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(text.c_str()));
        Notify(box, CBN_SELCHANGE);
    }
    static void typeInto(HWND box, const std::string& text) {
        ::SetWindowTextA(box, text.c_str());
        Notify(box, CBN_EDITCHANGE);
    }
    // The font that the control really has.
    static document::Font shown(const frmChild& page) {
        CHARFORMATA format{};
        format.cbSize = sizeof format;
        ::SendMessageA(page.txtPad().hwnd(), EM_GETCHARFORMAT, TRUE, reinterpret_cast<LPARAM>(&format));
        return {format.szFaceName, static_cast<float>(format.yHeight) / 20};
    }
    // Acts in the dialog, then presses a button.
    void withFontDialog(WORD button, const std::function<void(HWND)>& act) {
        const auto actAndPress = [&](HWND dialog) {
            act(dialog);
            ::PostMessageA(dialog, WM_COMMAND, button, 0);
        };
        heard([&] { run(mnuOptFont); }, {{"Fonts", actAndPress}});
    }
};

TEST_F(OptionsTest, DefaultTypesAreStoredAndChecked) {
    EXPECT_EQ(checked(mnuOptDefOpenList, 4), "All Files");
    run(mnuOptDefOpenList + 2);
    run(mnuOptDefSaveList + 1);
    EXPECT_EQ(stored("Files", "default_Open") + stored("Files", "default_Save"), ".asp.txt");
    EXPECT_EQ(checked(mnuOptDefOpenList, 4) + checked(mnuOptDefSaveList, 4), ".asp.txt");
    run(mnuFileNew);
    EXPECT_EQ(active().Caption(), "Untitled1.asp");
    run(mnuFileClose);
    run(mnuOptDefOpenList + 3);
    EXPECT_EQ(stored("Files", "default_Open"), "(nothing)") << "an empty value reads as none";
    EXPECT_EQ(checked(mnuOptDefOpenList, 4), "All Files");
    run(mnuFileNew);
    EXPECT_EQ(active().Caption(), "Untitled2") << "the number of a closed page is not used again";
}

TEST_F(OptionsTest, TheTabLengthHoldsForTheActivePageAndForNewOnes) {
    EXPECT_EQ(checked(mnuOptTabsList, 6), "4");
    run(mnuOptTabsList + 5);
    frmChild& other = newPage("");
    newPage("");
    run(mnuOptTabsList + 3);
    EXPECT_EQ(stored("Tabs", "Length"), "      ");
    EXPECT_EQ(checked(mnuOptTabsList, 6), "6");
    pressKey(VK_TAB);
    EXPECT_EQ(pageText(), "      ");
    activate(other);
    pressKey(VK_TAB);
    EXPECT_EQ(pageText(), "        ") << "the length that was chosen before there was a page";
}

TEST_F(OptionsTest, WordWrapBelongsToThePageAndItsCheckMarkFollows) {
    const std::string line(900, 'x');
    frmChild& first = newPage(line + " " + line);
    EXPECT_FALSE(isChecked(mnuOptWW));
    run(mnuOptWW);
    EXPECT_TRUE(isChecked(mnuOptWW));
    EXPECT_GT(first.txtPad().lineOf(1800), 0) << "the line is wrapped";
    frmChild& second = newPage("");
    EXPECT_FALSE(isChecked(mnuOptWW)) << "for a new page";
    activate(first);
    EXPECT_TRUE(isChecked(mnuOptWW));
    activate(second);
    run(mnuFileClose);
    EXPECT_TRUE(isChecked(mnuOptWW)) << "for the page that is left";
    run(mnuOptWW);
    EXPECT_FALSE(isChecked(mnuOptWW));
    EXPECT_EQ(first.txtPad().lineOf(1800), 0);
    run(mnuOptWW);
    run(mnuFileClose);
    EXPECT_FALSE(isChecked(mnuOptWW)) << "without a page";
}

TEST_F(OptionsTest, TheFontDialogListsFontsOnceAndCancelGivesThePageItsFontBack) {
    const frmChild& page = newPage("text");
    const document::Font before = shown(page);
    ASSERT_NE(before.face, "Arial");
    withFontDialog(IDOK, [](HWND) {});
    EXPECT_EQ(shown(page), before) << "nothing was chosen";
    EXPECT_EQ(stored("font preferences", "font_Face"), "Arial");
    withFontDialog(IDCANCEL, [&](HWND dialog) {
        const HWND faces = combo(dialog, 0);
        EXPECT_EQ(seen::TextOf(faces) + seen::TextOf(combo(dialog, 1)), "Arial10");
        char face[LF_FACESIZE + 1];
        std::string last;
        EXPECT_GT(::SendMessageA(faces, CB_GETCOUNT, 0, 0), 3);
        for (WPARAM i = 0; ::SendMessageA(faces, CB_GETLBTEXT, i, reinterpret_cast<LPARAM>(face)) > 0; ++i) {
            EXPECT_LT(::lstrcmpiA(last.c_str(), face), 0) << face;
            EXPECT_NE(face[0], '@');
            last = face;
        }
        choose(combo(dialog, 1), "18");
        EXPECT_EQ(shown(page), (document::Font{before.face, 18})) << "only a size was chosen";
        choose(faces, "Tahoma");
        EXPECT_EQ(shown(page), (document::Font{"Tahoma", 18}));
    });
    EXPECT_EQ(shown(page), before);
    EXPECT_EQ(stored("font preferences", "font_Face"), "Arial");
    EXPECT_FALSE(page.txtPad().isChanged());
}

TEST_F(OptionsTest, AFontIsShownAtOnceAndKeptByOk) {
    frmChild& page = newPage("some text");
    type("x");
    withFontDialog(IDOK, [&](HWND dialog) {
        choose(combo(dialog, 0), "Tahoma");
        choose(combo(dialog, 1), "18");
        typeInto(combo(dialog, 1), "10,5");
        EXPECT_EQ(shown(page), (document::Font{"Tahoma", 10.5F}));
    });
    EXPECT_EQ(stored("font preferences", "font_Face"), "Tahoma");
    EXPECT_EQ(stored("font preferences", "font_Size"), "10.5");
    EXPECT_EQ(newPage("").txtPad().font(), (document::Font{"Tahoma", 10.5F}));
    const auto enterBig = [](HWND dialog) {
        EXPECT_EQ(seen::TextOf(combo(dialog, 0)), "Tahoma");
        EXPECT_EQ(seen::TextOf(combo(dialog, 1)), "10.5");
        typeInto(combo(dialog, 1), "big");
        ::PostMessageA(dialog, WM_COMMAND, IDOK, 0);
    };
    EXPECT_EQ(
        User::hears([&] { run(mnuOptFont); },
                    {{"Fonts", enterBig}, User::press("Quillon", IDOK), User::press("Fonts", IDCANCEL)})[1],
        "Please choose a size between 1 and 400.");
    EXPECT_EQ(stored("font preferences", "font_Size"), "10.5");
    activate(page);
    run(mnuEditUndo);
    EXPECT_EQ(pageText(), "some text") << "Undo takes back changes of the text only";
}

}  // namespace
