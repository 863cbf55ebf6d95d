#include "shell/commands.h"
#include "shell/menu_table.h"
#include "win/app_test.h"

namespace {

// The commands that no feature answers to yet, each by its caption. The list only ever gets shorter.
constexpr const char* kMissing = "";

class MenuTest : public AppTest {
 protected:
    std::string textOf(HMENU menu, int position) const {
        char text[128];
        ::GetMenuStringA(menu, static_cast<UINT>(position), text, sizeof text, MF_BYPOSITION);
        return text;
    }
    bool isGrey(HMENU menu, int position) const {
        return (::GetMenuState(menu, static_cast<UINT>(position), MF_BYPOSITION) & MF_GRAYED) != 0;
    }
};

TEST_F(MenuTest, OnlyTheKnownCommandsAreMissing) {
    std::string missing;
    for (const win::MenuRow& row : shell::kMenu) {
        if (row.kind == win::MenuKind::item && !shell::IsAvailable(row.id))
            missing.append(row.caption).append(",");
    }
    for (const ToolButton& button : kToolbar) {
        if (!shell::IsAvailable(button.command)) missing.append(button.tip).append(",");
    }
    EXPECT_EQ(missing, kMissing);
}

TEST_F(MenuTest, TheBarReadsFromFileToHelp) {
    const HMENU bar = ::GetMenu(main().mainHwnd());
    std::string captions;
    for (int i = 0; i < ::GetMenuItemCount(bar); ++i) captions += textOf(bar, i) + " ";
    EXPECT_EQ(captions, "File Current Edit Window Tags Scripts Upload Options Help ");
    const HMENU file = ::GetSubMenu(bar, 0);
    EXPECT_EQ(textOf(file, 0), "New\tF2");
    EXPECT_EQ(textOf(file, 9), "Exit\tF5");
}

TEST_F(MenuTest, WhatNeedsADocumentIsGreyWithoutOne) {
    const HMENU bar = ::GetMenu(main().mainHwnd());
    const auto grey = [&] {
        std::string captions;
        for (int i = 0; i < ::GetMenuItemCount(bar); ++i)
            captions += isGrey(bar, i) ? textOf(bar, i) + " " : "";
        return captions;
    };
    EXPECT_EQ(grey(), "Current Edit Window Tags Scripts ");
    EXPECT_TRUE(isGrey(::GetSubMenu(bar, 0), 4)) << "Save";
    EXPECT_TRUE(label("No File Open") || label("Line numbers appear here."));
    newPage("");
    newPage("");
    EXPECT_EQ(grey(), "");
    EXPECT_FALSE(isGrey(::GetSubMenu(bar, 0), 4)) << "Save";
    run(mnuFileClose);
    EXPECT_EQ(grey(), "");
    run(mnuFileClose);
    EXPECT_EQ(grey(), "Current Edit Window Tags Scripts ");
    EXPECT_TRUE(label("No File Open"));
}

TEST_F(MenuTest, ToolbarButtonsHaveNamesAndFollowTheDocuments) {
    const auto buttons = [&] {
        std::string names;
        for (const HWND button : seen::Below(main().mainHwnd())) {
            if (seen::ClassOf(button) == "Button" && ::IsWindowEnabled(button))
                names += seen::TextOf(button) + ",";
        }
        return names;
    };
    EXPECT_EQ(buttons().substr(0, 9), "New,Open,");
    EXPECT_EQ(buttons().find("Save"), std::string::npos);
    newPage("");
    EXPECT_NE(buttons().find("Close,Save,Save As,Cut,Copy,Paste,Undo Cut/Paste,"), std::string::npos);
}

TEST_F(MenuTest, TheWindowListNamesThePagesAndFollowsThem) {
    frmChild& first = newPage("");
    newPage("");
    const HMENU list = ::GetSubMenu(::GetMenu(main().mainHwnd()), 1);
    EXPECT_EQ(textOf(list, 0), "Untitled1");
    EXPECT_EQ(::GetMenuState(list, 1, MF_BYPOSITION) & MF_CHECKED, static_cast<UINT>(MF_CHECKED));
    run(windowList);
    EXPECT_EQ(&active(), &first);
    EXPECT_EQ(::GetMenuState(list, 0, MF_BYPOSITION) & MF_CHECKED, static_cast<UINT>(MF_CHECKED));
    first.setCaption("a & b.htm");
    EXPECT_EQ(textOf(list, 0), "a && b.htm");
    run(mnuWind + 2);
    EXPECT_TRUE(::IsZoomed(first.hwnd()));
    EXPECT_EQ(textOf(::GetSubMenu(::GetMenu(main().mainHwnd()), 2), 0), "a && b.htm")
        << "a maximised page puts its system menu first";
}

}  // namespace
