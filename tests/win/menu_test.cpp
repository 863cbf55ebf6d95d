#include <cstdlib>

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
    // The captions of the menus in the bar that have this state.
    std::string captions(UINT state) {
        const HMENU bar = ::GetMenu(main().mainHwnd());
        std::string all;
        for (int i = 0; i < ::GetMenuItemCount(bar); ++i)
            if (hasState(bar, i, state)) all += textOf(bar, i) + " ";
        return all;
    }
};

TEST_F(MenuTest, WhatNeedsADocumentIsDisabledWithoutOne) {
    constexpr char kNeedPages[] = "Current Edit Window Tags Scripts ";
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

TEST_F(MenuTest, ToolbarButtonsHaveNamesFollowTheDocumentsAndLeaveTheFocusInThePage) {
    const ToolButtons tools(main().mainHwnd());
    EXPECT_EQ(tools.names(true), "|New|Open|Help");
    tools.click(2);  // nothing to close
    tools.click(0);
    EXPECT_EQ(tools.names(true), tools.names());
    EXPECT_TRUE(pageHasFocus());
    tools.click(0);
    EXPECT_EQ(main().documents().size(), 2U);
    EXPECT_TRUE(pageHasFocus());
    EXPECT_EQ(said(tbrPicture1 + 17), "Tool selection error.");
    tools.click(2);
    tools.click(2);
    EXPECT_EQ(tools.names(true), "|New|Open|Help");
}

TEST_F(MenuTest, ToolTipsNameEnabledAndDisabledButtons) {
    const ToolButtons tools(main().mainHwnd());
    const RECT bar = seen::PlaceOf(tools.bar());
    for (const auto& [index, name] : {std::pair(0, "New"), std::pair(3, "Save")}) {
        const RECT button = tools.place(index);
        bool found = false;
        for (int step = 0; step < 10 && !found; ++step) {  // a user moves the mouse when no tip comes
            ::SetCursorPos(bar.left + button.left + 9 + step % 2, bar.top + button.top + 9);
            found = seen::Until([name] { return win::RunPending() && window(name); }, 1500);
        }
        EXPECT_TRUE(found) << name;
    }
}

TEST_F(MenuTest, ANarrowWindowShowsTheToolbarInRowsAboveThePages) {
    const ToolButtons tools(main().mainHwnd());
    const auto bottomOf = [&](int width) {
        ::SetWindowPos(main().mainHwnd(), nullptr, 0, 0, width, 500, SWP_NOMOVE | SWP_NOZORDER);
        win::RunPending();
        EXPECT_EQ(seen::ColorAt(main().mdiClient(), 2, 2), ::GetSysColor(COLOR_APPWORKSPACE));
        RECT bar{};
        ::GetClientRect(tools.bar(), &bar);
        for (int i = 0; i < 17; ++i) {
            const RECT button = tools.place(i);
            RECT shown{};
            ::IntersectRect(&shown, &button, &bar);
            EXPECT_TRUE(::EqualRect(&shown, &button)) << i << " of a window " << width << " wide";
        }
        const RECT strip = seen::PlaceOf(::GetParent(tools.bar()));
        EXPECT_LT(seen::PlaceOf(tools.bar()).bottom, strip.bottom);
        EXPECT_EQ(seen::PlaceOf(main().mdiClient()).top, strip.bottom);
        return tools.place(16).bottom;
    };
    const LONG one = bottomOf(800);
    EXPECT_GT(bottomOf(300), one);
    EXPECT_EQ(bottomOf(800), one);
}

TEST_F(MenuTest, MenuPicturesAndTheStripFollowTheSystemsSettings) {
    const auto hasGround = [&](HMENU popup, int position, COLORREF colour) {
        MENUITEMINFOW item{};
        item.cbSize = sizeof item;
        item.fMask = MIIM_CHECKMARKS;
        ::GetMenuItemInfoW(popup, static_cast<UINT>(position), TRUE, &item);
        EXPECT_EQ(item.hbmpChecked, item.hbmpUnchecked);
        const win::UniqueDc memory(::CreateCompatibleDC(nullptr));
        const HGDIOBJ old = ::SelectObject(memory.get(), item.hbmpUnchecked);
        bool found = false;
        const int size = ::GetSystemMetrics(SM_CXMENUCHECK);
        for (int i = 0; i < size * size; ++i)
            found = found || ::GetPixel(memory.get(), i % size, i / size) == colour;
        ::SelectObject(memory.get(), old);
        return found;
    };
    constexpr int kMenuColour = COLOR_MENU;
    const COLORREF before = ::GetSysColor(kMenuColour);
    for (const COLORREF colour : {before, RGB(1, 99, 200), before}) {
        ::SetSysColors(1, &kMenuColour, &colour);
        win::RunPending();
        for (const int position : {0, 1, 2, 4, 5, 6})
            EXPECT_TRUE(hasGround(menu(0), position, colour)) << position;
        EXPECT_TRUE(hasGround(menu(6), 0, colour));
    }

    NONCLIENTMETRICSW kept{};
    kept.cbSize = sizeof kept;
    ::SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof kept, &kept, 0);
    NONCLIENTMETRICSW large = kept;
    large.lfMessageFont.lfHeight = -40;
    for (NONCLIENTMETRICSW* metrics : {&large, &kept}) {
        ::SystemParametersInfoW(SPI_SETNONCLIENTMETRICS, sizeof kept, metrics, 0);
        ::SendMessageW(main().mainHwnd(), WM_SETTINGCHANGE, SPI_SETNONCLIENTMETRICS, 0);
        const HWND results = label("File updates are shown here.");
        LOGFONTW font{};
        ::GetObjectW(reinterpret_cast<HFONT>(::SendMessageW(results, WM_GETFONT, 0, 0)), sizeof font, &font);
        EXPECT_EQ(font.lfHeight, metrics->lfMessageFont.lfHeight);
        const RECT place = seen::PlaceOf(results);
        EXPECT_GE(place.bottom - place.top, std::abs(font.lfHeight));
    }
}

TEST_F(MenuTest, TheWindowListNamesThePagesAndFollowsThem) {
    frmChild& first = newPage("");
    const frmChild& second = newPage("");
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
    ::ShowWindow(second.hwnd(), SW_SHOWMINNOACTIVE);
    for (const int show : {SW_MINIMIZE, SW_RESTORE}) ::ShowWindow(main().mainHwnd(), show);
    EXPECT_EQ(&active(), &first);
    EXPECT_FALSE(::IsZoomed(first.hwnd()) || ::IsIconic(second.hwnd()));
}

}  // namespace
