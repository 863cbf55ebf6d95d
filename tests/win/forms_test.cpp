// All forms: each dialog template in the program is gone through by Tab, so that new ones are tested too.
#include "win/app_test.h"
#include "win/dialog.h"
#include "win/error.h"

namespace {

BOOL CALLBACK AddName(HMODULE, LPCSTR, LPSTR name, LONG_PTR list) {
    reinterpret_cast<std::vector<std::string>*>(list)->push_back(name);
    return TRUE;
}

// A form without its code, as the template describes it.
INT_PTR CALLBACK Bare(HWND, UINT message, WPARAM, LPARAM) {
    return message == WM_INITDIALOG;
}

bool TakesText(HWND control) {
    const std::string cls = seen::ClassOf(control);
    return cls == "Edit" || cls == "ComboBox" || cls == "ListBox" || cls == "RICHEDIT";
}

// The name that a screen reader finds: a control's own text or, where that is what the user types or chooses,
// the label just before it, visible or not.
std::string NameOf(HWND control) {
    if (seen::ClassOf(::GetParent(control)) == "ComboBox") control = ::GetParent(control);
    if (!TakesText(control)) return seen::TextOf(control);
    const HWND label = ::GetWindow(control, GW_HWNDPREV);
    if (!label || seen::ClassOf(label) != "Static") return "";
    const std::string text = seen::TextOf(label);
    return text.empty() ? "(filled by the code)" : text;
}

// Presses Tab until the focus is back where it began, and lists the names on the way. "(lost)" at the end
// when it does not come back.
std::string NamesByTab(HWND dialog) {
    ::SetFocus(::GetNextDlgTabItem(dialog, nullptr, FALSE));
    const HWND first = ::GetFocus();
    std::string names;
    for (int presses = 0; presses < 400; ++presses) {
        names += "[" + NameOf(::GetFocus()) + "]";
        MSG tab{::GetFocus(), WM_KEYDOWN, VK_TAB, 0, 0, {}};
        ::IsDialogMessageA(dialog, &tab);
        if (::GetFocus() == first) return names;
    }
    return names + "(lost)";
}

// The size that a label's or a button's text needs.
SIZE Needed(HWND control, LONG width) {
    const HDC dc = ::GetDC(control);
    const HGDIOBJ old =
        ::SelectObject(dc, reinterpret_cast<HFONT>(::SendMessageA(control, WM_GETFONT, 0, 0)));
    RECT area{0, 0, width, 0};
    const bool wraps = seen::ClassOf(control) == "Static";
    ::DrawTextA(dc, seen::TextOf(control).c_str(), -1, &area,
                static_cast<UINT>(DT_CALCRECT) | (wraps ? DT_WORDBREAK : DT_SINGLELINE));
    ::SelectObject(dc, old);
    ::ReleaseDC(control, dc);
    return {area.right, area.bottom};
}

void ExpectNothingCutOff(HWND dialog) {
    RECT inside{};
    ::GetClientRect(dialog, &inside);
    for (const HWND control : seen::Below(dialog)) {
        if (!::IsWindowVisible(control) || ::GetParent(control) != dialog) continue;
        RECT place = seen::PlaceOf(control);
        ::MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&place), 2);
        RECT shown{};
        ::IntersectRect(&shown, &place, &inside);
        EXPECT_TRUE(::IsRectEmpty(&place) || ::EqualRect(&shown, &place)) << seen::TextOf(control);
        const std::string cls = seen::ClassOf(control);
        const LONG style = ::GetWindowLongA(control, GWL_STYLE);
        const bool drawsText = (cls == "Static" && (style & SS_TYPEMASK) != SS_ICON) ||
                               (cls == "Button" && (style & BS_TYPEMASK) != BS_OWNERDRAW);
        if (!drawsText || seen::TextOf(control).empty()) continue;
        const SIZE needed = Needed(control, place.right - place.left);
        EXPECT_LE(needed.cx, place.right - place.left) << seen::TextOf(control);
        EXPECT_LE(needed.cy, place.bottom - place.top) << seen::TextOf(control);
    }
}

using FormsTest = AppTest;

TEST_F(FormsTest, EveryControlOfEveryTemplateHasANameAndRoomForIt) {
    std::vector<std::string> names;
    ::EnumResourceNamesA(nullptr, reinterpret_cast<LPCSTR>(RT_DIALOG), AddName,
                         reinterpret_cast<LONG_PTR>(&names));
    EXPECT_GE(names.size(), 14U);
    for (const std::string& name : names) {
        SCOPED_TRACE(name);
        const HWND dialog = ::CreateDialogParamA(nullptr, name.c_str(), main().mainHwnd(), Bare, 0);
        ASSERT_TRUE(dialog);
        ::ShowWindow(dialog, SW_SHOW);
        if (::GetNextDlgTabItem(dialog, nullptr, FALSE)) {
            const std::string found = NamesByTab(dialog);
            EXPECT_EQ(found.find("[]"), std::string::npos) << found;
            EXPECT_EQ(found.find("(lost)"), std::string::npos) << found;
        }
        ExpectNothingCutOff(dialog);
        ::DestroyWindow(dialog);
    }
}

TEST_F(FormsTest, ControlsThatTheHelpMakesAtRunTimeHaveNamesToo) {
    run(mnuHelpCont);
    const HWND helpWindow = window("Quillon Help");
    ASSERT_TRUE(helpWindow);
    EXPECT_EQ(NamesByTab(helpWindow), "[Toolbar][\"Quillon Help\"  ][Close]");
    ExpectNothingCutOff(helpWindow);
    ::SendMessageA(helpWindow, WM_CLOSE, 0, 0);
}

class Broken : public win::Dialog {
 public:
    Broken() : Dialog("frmToUp") {}
    bool onInit() override { throw win::Failure("No memory."); }
};

TEST_F(FormsTest, AFormThatCannotBeMadeLeavesNoWindow) {
    EXPECT_THROW(Broken().showModal(main().mainHwnd()), win::Failure);
    EXPECT_THROW((new Broken)->showModeless(main().mainHwnd()), win::Failure);
    EXPECT_EQ(win::Dialog::find(main().mainHwnd(), "frmToUp"), nullptr);
    EXPECT_EQ(seen::TopLevel(::GetCurrentProcessId()), std::vector<HWND>{main().mainHwnd()});
}

TEST_F(FormsTest, AfterAChangeOfResolutionAllWindowsAreOnTheScreen) {
    run(mnuHelpCont);
    RECT area{};
    ::SystemParametersInfoA(SPI_GETWORKAREA, 0, &area, 0);
    for (const HWND form : {main().mainHwnd(), window("Quillon Help")}) {
        ::SetWindowPos(form, nullptr, area.right - 50, area.bottom + 200, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    }
    ::SendMessageA(main().mainHwnd(), WM_DISPLAYCHANGE, 32, MAKELPARAM(area.right, area.bottom));
    for (const HWND form : {main().mainHwnd(), window("Quillon Help")}) {
        const RECT place = seen::PlaceOf(form);
        RECT shown{};
        ::IntersectRect(&shown, &place, &area);
        EXPECT_TRUE(::EqualRect(&shown, &place)) << seen::TextOf(form);
    }
}

}  // namespace
