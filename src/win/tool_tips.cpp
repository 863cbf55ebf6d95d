#include "win/tool_tips.h"

#include "win/error.h"

namespace win {

void ToolTips::create(HWND form) {
    form_ = form;
    tips_ = Check(::CreateWindowExA(WS_EX_TOPMOST, TOOLTIPS_CLASSA, nullptr,
                                    WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, 0, 0, 0, 0, form, nullptr,
                                    ::GetModuleHandleA(nullptr), nullptr));
}

void ToolTips::add(HWND control, const char* text) const {
    TTTOOLINFOA tool{};
    // The record of common controls 5 too, whose size they check.
    tool.cbSize = TTTOOLINFOA_V2_SIZE;
    tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
    tool.hwnd = form_;
    tool.uId = reinterpret_cast<UINT_PTR>(control);
    tool.lpszText = const_cast<char*>(text);
    ::SendMessageA(tips_, TTM_ADDTOOLA, 0, reinterpret_cast<LPARAM>(&tool));
    // The form gets the mouse that a disabled control does not take.
    tool.uFlags = TTF_SUBCLASS;
    tool.uId = static_cast<UINT_PTR>(::GetDlgCtrlID(control));
    ::GetWindowRect(control, &tool.rect);
    ::MapWindowPoints(nullptr, form_, reinterpret_cast<POINT*>(&tool.rect), 2);
    ::SendMessageA(tips_, TTM_ADDTOOLA, 0, reinterpret_cast<LPARAM>(&tool));
}

}  // namespace win
