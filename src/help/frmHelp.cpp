#include "help/frmHelp.h"

#include "forms/frmHelp.h"
#include "help/core/help_texts.h"
#include "tool_buttons.h"
#include "win/system_colours.h"
#include "win/unicode.h"
#include "win/units.h"

namespace {

constexpr char kName[] = "frmHelp";
constexpr int kMargin = 12;  // pixels of a 96-dpi screen
constexpr int kTop = 9;
constexpr COLORREF kWordsColour = RGB(102, 102, 102);

win::UniqueFont Arial(int points, int weight) {
    return win::UniqueFont(::CreateFontW(
        -::MulDiv(points, win::SystemDpi(), 72), 0, 0, 0, weight, FALSE, FALSE, FALSE, DEFAULT_CHARSET,
        OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, VARIABLE_PITCH | FF_SWISS, L"Arial"));
}

}  // namespace

bool frmHelp::Words::fits() const {
    const auto length = static_cast<WPARAM>(::GetWindowTextLengthW(hwnd()));
    if (length == 0) return true;
    const auto bottom = static_cast<short>(HIWORD(send(EM_POSFROMCHAR, length - 1)));
    const auto second =
        static_cast<short>(HIWORD(send(EM_POSFROMCHAR, static_cast<WPARAM>(send(EM_LINEINDEX, 1)))));
    const auto first = static_cast<short>(HIWORD(send(EM_POSFROMCHAR, 0)));
    RECT area{};
    ::GetClientRect(hwnd(), &area);
    return bottom + (second - first) <= area.bottom;
}

void frmHelp::Words::show(const std::string& text) const {
    ::ShowScrollBar(hwnd(), SB_VERT, FALSE);
    ::SetWindowTextW(hwnd(), win::ToWide(text).c_str());
    if (!fits()) ::ShowScrollBar(hwnd(), SB_VERT, TRUE);
}

LRESULT frmHelp::Words::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_GETDLGCODE) return DLGC_WANTARROWS;
    return Control::onMessage(message, wParam, lParam);
}

frmHelp::frmHelp() : Dialog(kName), heading_(help::kIntroHeading), text_(help::kIntroWords) {}

void frmHelp::show(MainWindow& main) {
    if (!bringForward(main.mainHwnd(), kName)) (new frmHelp)->showModeless(main.mainHwnd());
}

bool frmHelp::onInit() {
    showProgramIcon();
    Picture1_.create(hwnd(), Picture1, kToolbar);
    RECT area{};
    ::GetClientRect(hwnd(), &area);
    const int margin = win::Scaled(kMargin);
    Picture1_.place(margin, win::Scaled(kTop), area.right - 2 * margin);
    lblWords_.attach(item(lblWords));
    useFonts();
    show(heading_, text_);
    focusItem(lblWords);
    return false;
}

void frmHelp::useFonts() {
    headingFont_ = Arial(13, FW_BOLD);
    textFont_ = Arial(9, FW_NORMAL);
    for (const int id : {Label1, lblWords}) {
        ::SendMessageW(item(id), WM_SETFONT, reinterpret_cast<WPARAM>(textFont_.get()), TRUE);
    }
    ::SendMessageW(item(lblHead), WM_SETFONT, reinterpret_cast<WPARAM>(headingFont_.get()), TRUE);
}

void frmHelp::show(const std::string& heading, const std::string& words) {
    heading_ = heading;
    text_ = words;
    setItemText(lblHead, heading_);
    lblWords_.show(text_);
}

bool frmHelp::onCommand(WORD id, WORD) {
    if (id >= mnuFeatDrag && id <= mnuFeatPrint) {
        const help::Topic& topic = help::kTopics[static_cast<std::size_t>(id - mnuFeatDrag)];
        show(topic.heading, topic.words);
        return true;
    }
    if (id >= Picture1 && id < Picture1 + static_cast<int>(kToolbar.size())) {
        show(" Toolbar Details", help::ButtonWords(static_cast<std::size_t>(id - Picture1)));
        setItemText(Label1, "Quillon");
        return true;
    }
    if (id != mnuFeatClose) return false;
    close();
    return true;
}

LRESULT frmHelp::paintWords(HDC dc) const {
    const bool isLight = GetGValue(::GetSysColor(COLOR_WINDOW)) >= 0xC0;
    ::SetTextColor(dc, isLight && !win::IsHighContrast() ? kWordsColour : ::GetSysColor(COLOR_WINDOWTEXT));
    ::SetBkColor(dc, ::GetSysColor(COLOR_WINDOW));
    return reinterpret_cast<LRESULT>(::GetSysColorBrush(COLOR_WINDOW));
}

INT_PTR frmHelp::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_SYSCOLORCHANGE || message == WM_SETTINGCHANGE)
        win::PassToControls(hwnd(), message, wParam, lParam);
    if (message == WM_CTLCOLORSTATIC && reinterpret_cast<HWND>(lParam) == lblWords_.hwnd()) {
        return paintWords(reinterpret_cast<HDC>(wParam));
    }
    return FALSE;
}

namespace help {

void OnHelpContents(MainWindow& main, int) {
    frmHelp::show(main);
}

}  // namespace help
