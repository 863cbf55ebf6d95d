#include "settings/CRegSettings.h"
#include "win/app_test.h"

namespace {

class OptionsTest : public AppTest {
 protected:
    static std::string stored(const std::string& section, const std::string& key) {
        return CRegSettings().GetRegSetting(section, key, "(nothing)");
    }
    // The captions of the checked items of a list.
    std::string checked(Command first, int count) {
        std::string captions;
        for (int i = 0; i < count; ++i) {
            const auto command = static_cast<UINT>(first + i);
            const HMENU bar = ::GetMenu(main().mainHwnd());
            if (!(::GetMenuState(bar, command, MF_BYCOMMAND) & MF_CHECKED)) continue;
            char caption[32];
            ::GetMenuStringA(bar, command, caption, sizeof caption, MF_BYCOMMAND);
            captions.append(captions.empty() ? "" : " ").append(caption);
        }
        return captions;
    }
    bool wrapChecked() {
        return (::GetMenuState(::GetMenu(main().mainHwnd()), mnuOptWW, MF_BYCOMMAND) & MF_CHECKED) != 0;
    }
    void activate(const frmChild& page) {
        ::SendMessageA(main().mdiClient(), WM_MDIACTIVATE, reinterpret_cast<WPARAM>(page.hwnd()), 0);
    }
    static HWND combo(HWND dialog, int index) {
        std::vector<HWND> boxes = seen::Below(dialog);
        std::erase_if(boxes, [](HWND box) { return seen::ClassOf(box) != "ComboBox"; });
        return boxes.at(static_cast<std::size_t>(index));
    }
    static void choose(HWND box, const std::string& text) {
        ::SendMessageA(box, CB_SELECTSTRING, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(text.c_str()));
        notify(box, CBN_SELCHANGE);
    }
    static void typeInto(HWND box, const std::string& text) {
        ::SendMessageA(box, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()));
        notify(box, CBN_EDITCHANGE);
    }
    static void notify(HWND box, WORD code) {
        ::SendMessageA(::GetParent(box), WM_COMMAND, MAKEWPARAM(::GetDlgCtrlID(box), code),
                       reinterpret_cast<LPARAM>(box));
    }
    static std::vector<std::string> rows(HWND box) {
        std::vector<std::string> texts;
        for (LRESULT i = 0; i < ::SendMessageA(box, CB_GETCOUNT, 0, 0); ++i) {
            char text[LF_FACESIZE + 1];
            ::SendMessageA(box, CB_GETLBTEXT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(text));
            texts.emplace_back(text);
        }
        return texts;
    }
    void withFontDialog(const std::function<void(HWND)>& act) {
        User user({{"Fonts", act}});
        run(mnuOptFont);
        user.heard();
    }
};

TEST_F(OptionsTest, DefaultTypesAreStoredAndChecked) {
    EXPECT_EQ(checked(mnuOptDefOpenList, 4), "All Files");
    const char* types[] = {".htm", ".txt", ".asp"};
    for (int i = 0; i < 3; ++i) {
        run(static_cast<Command>(mnuOptDefOpenList + i));
        run(static_cast<Command>(mnuOptDefSaveList + 2 - i));
        EXPECT_EQ(stored("Files", "default_Open"), types[i]);
        EXPECT_EQ(stored("Files", "default_Save"), types[2 - i]);
        EXPECT_EQ(checked(mnuOptDefOpenList, 4), types[i]);
        EXPECT_EQ(checked(mnuOptDefSaveList, 4), types[2 - i]);
    }
    run(mnuFileNew);
    EXPECT_EQ(active().Caption(), "Untitled1.asp");
    run(mnuOptDefOpenList + 3);
    EXPECT_EQ(stored("Files", "default_Open"), "(nothing)") << "an empty value reads as none";
    EXPECT_EQ(checked(mnuOptDefOpenList, 4), "All Files");
    run(mnuFileNew);
    EXPECT_EQ(active().Caption(), "Untitled2");
}

TEST_F(OptionsTest, TheTabLengthHoldsForTheActivePageAndForNewOnes) {
    EXPECT_EQ(checked(mnuOptTabsList, 6), "4");
    frmChild& other = newPage("");
    frmChild& page = newPage("");
    run(mnuOptTabsList + 3);
    EXPECT_EQ(stored("Tabs", "Length"), "      ");
    EXPECT_EQ(checked(mnuOptTabsList, 6), "6");
    pressKey(VK_TAB);
    EXPECT_EQ(page.txtPad().text(), "      ");
    activate(other);
    pressKey(VK_TAB);
    EXPECT_EQ(other.txtPad().text(), "    ");
}

TEST_F(OptionsTest, TheTabLengthIsStoredWithoutAPage) {
    run(mnuOptTabsList + 5);
    newPage("");
    pressKey(VK_TAB);
    EXPECT_EQ(pageText(), "        ");
}

TEST_F(OptionsTest, WordWrapBelongsToThePageAndItsMarkFollows) {
    const std::string line(4000, 'x');
    frmChild& first = newPage(line + " " + line);
    EXPECT_FALSE(wrapChecked());
    run(mnuOptWW);
    EXPECT_TRUE(wrapChecked());
    EXPECT_GT(first.txtPad().lineOf(8000), 0) << "the line is shown in several";
    frmChild& second = newPage("");
    EXPECT_FALSE(wrapChecked()) << "a new page";
    activate(first);
    EXPECT_TRUE(wrapChecked());
    first.setPage(line + " " + line);
    EXPECT_TRUE(wrapChecked());
    activate(second);
    EXPECT_FALSE(wrapChecked());
    run(mnuFileClose);
    EXPECT_TRUE(wrapChecked()) << "the other page has closed";
    run(mnuOptWW);
    EXPECT_FALSE(wrapChecked());
    EXPECT_EQ(first.txtPad().lineOf(8000), 0);
    run(mnuOptWW);
    first.txtPad().setChanged(false);
    run(mnuFileClose);
    EXPECT_FALSE(wrapChecked()) << "no page is left";
}

TEST_F(OptionsTest, TheFontDialogListsFontsOnceAndProposesArial) {
    withFontDialog([](HWND dialog) {
        const std::vector<std::string> faces = rows(combo(dialog, 0));
        EXPECT_GT(faces.size(), 3U);
        for (std::size_t i = 1; i < faces.size(); ++i) {
            EXPECT_LT(::lstrcmpiA(faces[i - 1].c_str(), faces[i].c_str()), 0) << faces[i];
            EXPECT_NE(faces[i][0], '@');
        }
        EXPECT_EQ(seen::TextOf(combo(dialog, 0)), "Arial");
        EXPECT_EQ(seen::TextOf(combo(dialog, 1)), "10");
        ::PostMessageA(dialog, WM_COMMAND, IDCANCEL, 0);
    });
    EXPECT_EQ(stored("font preferences", "font_Face"), "(nothing)");
}

TEST_F(OptionsTest, AFontIsShownAtOnceAndKeptByOk) {
    frmChild& page = newPage("some text");
    type("x");
    withFontDialog([&](HWND dialog) {
        choose(combo(dialog, 0), "Tahoma");
        choose(combo(dialog, 1), "18");
        EXPECT_EQ(page.txtPad().font(), (document::Font{"Tahoma", 18}));
        typeInto(combo(dialog, 1), "10,5");
        EXPECT_EQ(page.txtPad().font(), (document::Font{"Tahoma", 10.5F}));
        ::PostMessageA(dialog, WM_COMMAND, IDOK, 0);
    });
    EXPECT_EQ(stored("font preferences", "font_Face"), "Tahoma");
    EXPECT_EQ(stored("font preferences", "font_Size"), "10.5");
    EXPECT_EQ(newPage("").txtPad().font(), (document::Font{"Tahoma", 10.5F}));
    withFontDialog([](HWND dialog) {
        EXPECT_EQ(seen::TextOf(combo(dialog, 0)), "Tahoma");
        EXPECT_EQ(seen::TextOf(combo(dialog, 1)), "10.5");
        ::PostMessageA(dialog, WM_COMMAND, IDCANCEL, 0);
    });
    activate(page);
    run(mnuEditUndo);
    EXPECT_EQ(pageText(), "some text") << "Undo is about the text";
}

TEST_F(OptionsTest, CancelGivesThePageItsFontBack) {
    frmChild& page = newPage("text");
    const document::Font before = page.txtPad().font();
    withFontDialog([&](HWND dialog) {
        choose(combo(dialog, 0), "Tahoma");
        EXPECT_EQ(page.txtPad().font().face, "Tahoma");
        ::PostMessageA(dialog, WM_COMMAND, IDCANCEL, 0);
    });
    EXPECT_EQ(page.txtPad().font(), before);
    EXPECT_EQ(stored("font preferences", "font_Face"), "(nothing)");
    EXPECT_FALSE(page.txtPad().isChanged());
}

TEST_F(OptionsTest, ASizeThatIsNoneIsRefused) {
    User user({{"Fonts",
                [](HWND dialog) {
                    typeInto(combo(dialog, 1), "big");
                    ::PostMessageA(dialog, WM_COMMAND, IDOK, 0);
                }},
               User::press("Quillon", IDOK),
               User::press("Fonts", IDCANCEL)});
    run(mnuOptFont);
    EXPECT_EQ(user.heard().at(1), "Please choose a size between 1 and 400.");
    EXPECT_EQ(stored("font preferences", "font_Size"), "(nothing)");
}

}  // namespace
