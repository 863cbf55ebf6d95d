#include "authoring/colours/core/web_colors.h"
#include "win/app_test.h"
#include "win/clipboard.h"
#include "win/message_loop.h"
#include "win/units.h"

namespace {

class ColorsTest : public AppTest {
 protected:
    static HWND chart() { return window("Click for Color Tag..."); }
    HWND open() {
        run(tbrColor);
        win::RunPending();
        return chart();
    }
    static HWND box(const std::string& color) { return seen::Child(chart(), color, "Edit"); }
    // Clicks twice, as many people do.
    static void click(HWND window) {
        for (const UINT press : {WM_LBUTTONDOWN, WM_LBUTTONDBLCLK}) {
            ::PostMessageA(window, press, MK_LBUTTON, MAKELPARAM(4, 4));
            ::PostMessageA(window, WM_LBUTTONUP, 0, MAKELPARAM(4, 4));
        }
        win::RunPending();
    }
    // Sends a key to whatever has the focus, through the message loop.
    static void press(WPARAM key) {
        ::PostMessageA(::GetFocus(), WM_KEYDOWN, key, 0);
        win::RunPending();
    }
};

TEST_F(ColorsTest, TheChartHasEveryColorAtItsPlaceAndStandsAtTheTopRight) {
    const HWND form = open();
    ASSERT_TRUE(form);
    for (int i = 0; i < authoring::kSwatchCount; ++i) {
        const HWND swatch = box(authoring::TextOfSwatch(i));
        RECT at = seen::PlaceOf(swatch);
        ::MapWindowPoints(nullptr, form, reinterpret_cast<POINT*>(&at), 2);
        const authoring::SwatchPlace place = authoring::PlaceOfSwatch(i);
        EXPECT_EQ(at.left, win::PixelsFromTwips(place.left)) << i;
        EXPECT_EQ(at.top, win::PixelsFromTwips(place.top)) << i;
        const authoring::SwatchColor color = authoring::ColorOfSwatch(i);
        EXPECT_EQ(seen::ColorAt(swatch, 6, 6), RGB(color.red, color.green, color.blue)) << i;
    }
    const RECT chartAt = seen::PlaceOf(form);
    EXPECT_EQ(chartAt.top, win::PixelsFromTwips(120));
    EXPECT_EQ(chartAt.right, ::GetSystemMetrics(SM_CXSCREEN) - win::PixelsFromTwips(120));
    EXPECT_TRUE(::GetWindowLongA(form, GWL_EXSTYLE) & WS_EX_TOPMOST);
    ::SetWindowPos(form, nullptr, 5, 300, 0, 0, SWP_NOSIZE);
    EXPECT_EQ(open(), form) << "there is only one chart";
    const RECT again = seen::PlaceOf(form);
    EXPECT_TRUE(::EqualRect(&again, &chartAt));
    closeMain();
    EXPECT_FALSE(chart());
}

TEST_F(ColorsTest, AClickReplacesTheSelectionWithTheColorAndGivesTheFocusBack) {
    newPage("bgcolor=red>").txtPad().select(8, 11);
    setClipboard("something else");
    open();
    click(box("\"#CCFF00\""));
    EXPECT_EQ(pageText(), "bgcolor=\"#CCFF00\">");
    EXPECT_EQ(selected(), "17-17");
    EXPECT_EQ(clipboard(), "\"#CCFF00\"");
    EXPECT_FALSE(chart());
    EXPECT_TRUE(pageHasFocus());
    run(mnuEditUndo);
    EXPECT_EQ(pageText(), "bgcolor=red>");
    active().txtPad().setChanged(false);
    open();
    run(mnuFileClose);
    click(box("\"#3366CC\""));
    EXPECT_EQ(clipboard(), "\"#3366CC\"") << "without a page it is only copied";
    EXPECT_FALSE(chart());
}

TEST_F(ColorsTest, EscAndTheCloseButtonLeavePageAndClipboardAloneAndEnterPicksTheColorOfTheArrowKeys) {
    newPage("page");
    setClipboard("kept");
    for (const bool byKey : {true, false}) {
        const HWND form = open();
        ::PostMessageA(byKey ? ::GetFocus() : form, byKey ? WM_KEYDOWN : WM_CLOSE, byKey ? VK_ESCAPE : 0, 0);
        win::RunPending();
        EXPECT_FALSE(chart());
        EXPECT_TRUE(pageHasFocus());
    }
    EXPECT_EQ(pageText(), "page");
    EXPECT_EQ(clipboard(), "kept");
    open();
    for (const WPARAM key : {VK_UP, VK_LEFT, VK_RIGHT, VK_DOWN, VK_DOWN, VK_RIGHT}) press(key);
    EXPECT_TRUE(seen::Child(chart(), "#006666", "Static")) << "the color's name is shown below the boxes";
    press(VK_RETURN);
    EXPECT_EQ(pageText(), "\"#006666\"page") << "and Enter does not reach the page";
    EXPECT_FALSE(chart());
}

}  // namespace
