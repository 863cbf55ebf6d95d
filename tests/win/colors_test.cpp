#include <set>

#include "authoring/core/web_colors.h"
#include "win/app_test.h"
#include "win/clipboard.h"
#include "win/message_loop.h"
#include "win/units.h"

namespace {

class ColorsTest : public AppTest {
 protected:
    static HWND chart() { return seen::Titled(::GetCurrentProcessId(), "Click for Color Tag..."); }
    HWND open() {
        run(tbrColor);
        win::RunPending();
        return chart();
    }
    static HWND box(const std::string& color) { return seen::Child(chart(), "\"" + color + "\"", "Edit"); }
    static void click(HWND window) {
        ::PostMessageA(window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(4, 4));
        ::PostMessageA(window, WM_LBUTTONUP, 0, MAKELPARAM(4, 4));
        win::RunPending();
    }
    // To whatever has the focus, through the message loop.
    static void press(WPARAM key) {
        ::PostMessageA(::GetFocus(), WM_KEYDOWN, key, 0);
        win::RunPending();
    }
    std::string clipboard() { return win::ClipboardText(main().mainHwnd()); }
    static COLORREF colorAt(HWND window, int x, int y) {
        const HDC dc = ::GetDC(window);
        const COLORREF color = ::GetPixel(dc, x, y);
        ::ReleaseDC(window, dc);
        return color;
    }
};

TEST_F(ColorsTest, TheChartHasEveryColorAtItsPlaceAndStandsAtTheTopRight) {
    const HWND window = open();
    ASSERT_TRUE(window);
    std::set<std::string> texts;
    for (const HWND child : seen::Below(window)) {
        if (seen::ClassOf(child) == "Edit") texts.insert(seen::TextOf(child));
    }
    EXPECT_EQ(texts.size(), 216U);
    for (int i = 0; i < authoring::kSwatchCount; ++i) {
        const HWND swatch = box(authoring::TextOfSwatch(i).substr(1, 7));
        RECT at{};
        ::GetWindowRect(swatch, &at);
        ::MapWindowPoints(nullptr, window, reinterpret_cast<POINT*>(&at), 2);
        EXPECT_EQ(at.left, win::PixelsFromTwips(315 * (i % 12))) << i;
        EXPECT_EQ(at.top, win::PixelsFromTwips(15 + 300 * (i / 12))) << i;
        EXPECT_EQ(at.right - at.left, win::PixelsFromTwips(285)) << i;
        const authoring::SwatchColor color = authoring::ColorOfSwatch(i);
        EXPECT_EQ(colorAt(swatch, 6, 6), RGB(color.red, color.green, color.blue)) << i;
    }
    RECT chartAt{};
    ::GetWindowRect(window, &chartAt);
    EXPECT_EQ(chartAt.top, win::PixelsFromTwips(120));
    EXPECT_EQ(chartAt.right, ::GetSystemMetrics(SM_CXSCREEN) - win::PixelsFromTwips(120));
    EXPECT_TRUE(::GetWindowLongA(window, GWL_EXSTYLE) & WS_EX_TOPMOST);
    ::SetWindowPos(window, nullptr, 5, 300, 0, 0, SWP_NOSIZE);
    EXPECT_EQ(open(), window) << "there is one chart only";
    RECT again{};
    ::GetWindowRect(window, &again);
    EXPECT_TRUE(::EqualRect(&again, &chartAt));
}

TEST_F(ColorsTest, AClickReplacesTheSelectionByTheColorAndGivesTheFocusBack) {
    newPage("bgcolor=red>").txtPad().select(8, 11);
    win::SetClipboardText(main().mainHwnd(), "something else");
    open();
    click(box("#CCFF00"));
    EXPECT_EQ(pageText(), "bgcolor=\"#CCFF00\">");
    EXPECT_EQ(active().txtPad().selection().start, 17);
    EXPECT_EQ(clipboard(), "\"#CCFF00\"");
    EXPECT_FALSE(chart());
    EXPECT_EQ(::GetFocus(), active().txtPad().hwnd());
    run(mnuEditUndo);
    EXPECT_EQ(pageText(), "bgcolor=red>");
}

TEST_F(ColorsTest, ArrowsWalkAndEnterPicks) {
    newPage("");
    open();
    for (const WPARAM key : {VK_UP, VK_LEFT, VK_RIGHT, VK_DOWN, VK_DOWN, VK_RIGHT}) press(key);
    EXPECT_TRUE(seen::Child(chart(), "#006666", "Static")) << "the color has its name below the boxes";
    press(VK_RETURN);
    EXPECT_EQ(pageText(), "\"#006666\"") << "and Enter does not reach the page";
    EXPECT_FALSE(chart());
}

TEST_F(ColorsTest, EscAndTheCloseBoxLeavePageAndClipboardAlone) {
    newPage("page");
    win::SetClipboardText(main().mainHwnd(), "kept");
    open();
    press(VK_ESCAPE);
    EXPECT_FALSE(chart());
    EXPECT_EQ(::GetFocus(), active().txtPad().hwnd());
    ::PostMessageA(open(), WM_CLOSE, 0, 0);
    win::RunPending();
    EXPECT_FALSE(chart());
    EXPECT_EQ(::GetFocus(), active().txtPad().hwnd());
    EXPECT_EQ(pageText(), "page");
    EXPECT_EQ(clipboard(), "kept");
}

TEST_F(ColorsTest, WithoutAPageTheColorIsOnlyCopied) {
    newPage("");
    open();
    run(mnuFileClose);
    click(box("#3366CC"));
    EXPECT_EQ(clipboard(), "\"#3366CC\"");
    EXPECT_FALSE(chart());
}

TEST_F(ColorsTest, TheChartGoesWithTheMainWindow) {
    open();
    closeMain();
    EXPECT_FALSE(chart());
}

}  // namespace
