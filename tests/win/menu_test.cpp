#include "win/app_test.h"
#include "win/message_loop.h"

namespace {

class MenuTest : public AppTest {
 protected:
    HMENU menu(int position) { return ::GetSubMenu(::GetMenu(main().mainHwnd()), position); }
    static std::string textOf(HMENU menu, int position) {
        char text[128];
        ::GetMenuStringA(menu, static_cast<UINT>(position), text, sizeof text, MF_BYPOSITION);
        return text;
    }
    static bool hasState(HMENU menu, int position, UINT state) {
        return (::GetMenuState(menu, static_cast<UINT>(position), MF_BYPOSITION) & state) != 0;
    }
    // The menus of the bar, or only those in this state.
    std::string captions(UINT state = 0) {
        const HMENU bar = ::GetMenu(main().mainHwnd());
        std::string all;
        for (int i = 0; i < ::GetMenuItemCount(bar); ++i)
            if (state == 0 || hasState(bar, i, state)) all += textOf(bar, i) + " ";
        return all;
    }
};

TEST_F(MenuTest, WhatNeedsADocumentIsGreyWithoutOne) {
    constexpr char kNeedPages[] = "Current Edit Window Tags Scripts ";
    EXPECT_EQ(captions(), "File Current Edit Window Tags Scripts Upload Options Help ");
    EXPECT_EQ(textOf(menu(0), 0), "New\tF2");
    EXPECT_EQ(textOf(menu(0), 9), "Exit\tF5");
    EXPECT_EQ(captions(MF_GRAYED), kNeedPages);
    EXPECT_TRUE(hasState(menu(0), 4, MF_GRAYED)) << "Save";
    EXPECT_TRUE(label("No File Open") || label("Line numbers appear here."));
    newPage("");
    newPage("");
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(captions(MF_GRAYED), "");
        EXPECT_FALSE(hasState(menu(0), 4, MF_GRAYED)) << "Save";
        run(mnuFileClose);
    }
    EXPECT_EQ(captions(MF_GRAYED), kNeedPages);
    EXPECT_TRUE(label("No File Open"));
}

TEST_F(MenuTest, ToolbarButtonsHaveNamesAndFollowTheDocuments) {
    const auto isEnabled = [&](const char* name) {
        return ::IsWindowEnabled(seen::Child(main().mainHwnd(), name, "Button")) != FALSE;
    };
    for (const bool hasPage : {false, true}) {
        if (hasPage) newPage("");
        EXPECT_TRUE(isEnabled("New") && isEnabled("Open"));
        for (const char* name : {"Close", "Save", "Save As", "Cut", "Copy", "Paste", "Undo Cut/Paste"})
            EXPECT_EQ(isEnabled(name), hasPage) << name;
    }
}

TEST_F(MenuTest, TheMouseFindsTheNameOfAButtonThatWorksAndOfOneThatDoesNot) {
    for (const char* name : {"New", "Save"}) {
        const RECT button = seen::PlaceOf(seen::Child(main().mainHwnd(), name, "Button"));
        ::SetCursorPos(button.left + 9, button.top + 9);
        EXPECT_TRUE(seen::Until([name] { return win::RunPending() && window(name); })) << name;
    }
}

TEST_F(MenuTest, TheWindowListNamesThePagesAndFollowsThem) {
    frmChild& first = newPage("");
    newPage("");
    EXPECT_EQ(textOf(menu(1), 0), "Untitled1");
    EXPECT_TRUE(hasState(menu(1), 1, MF_CHECKED));
    run(windowList);
    EXPECT_EQ(&active(), &first);
    EXPECT_TRUE(hasState(menu(1), 0, MF_CHECKED));
    first.setCaption("a & b.htm");
    EXPECT_EQ(textOf(menu(1), 0), "a && b.htm");
    run(mnuWind + 2);
    EXPECT_TRUE(::IsZoomed(first.hwnd()));
    EXPECT_EQ(textOf(menu(2), 0), "a && b.htm") << "a maximised page puts its system menu first";
}

}  // namespace
