#include "win/tool_tips.h"

#include "win/error.h"
#include "win/unicode.h"

namespace win {

void ToolTips::create(HWND form) {
    form_ = form;
    tips_ = Check(::CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr,
                                    WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, 0, 0, 0, 0, form, nullptr,
                                    ::GetModuleHandleW(nullptr), nullptr));
}

void ToolTips::add(HWND control, const std::string& text) const {
    std::wstring wide = ToWide(text);
    TTTOOLINFOW tool{};
    // The size that common controls 5 know too; they check it.
    tool.cbSize = TTTOOLINFOW_V2_SIZE;
    tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
    tool.hwnd = form_;
    tool.uId = reinterpret_cast<UINT_PTR>(control);
    tool.lpszText = wide.data();
    ::SendMessageW(tips_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
    // The form gets the mouse messages of a disabled control.
    tool.uFlags = TTF_SUBCLASS;
    tool.uId = static_cast<UINT_PTR>(::GetDlgCtrlID(control));
    ::GetWindowRect(control, &tool.rect);
    ::MapWindowPoints(nullptr, form_, reinterpret_cast<POINT*>(&tool.rect), 2);
    ::SendMessageW(tips_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

}  // namespace win
