#include "win/system_colours.h"

namespace win {

bool IsHighContrast() {
    HIGHCONTRASTW setting{};
    setting.cbSize = sizeof setting;
    return ::SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof setting, &setting, 0) &&
           (setting.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

void PassToControls(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    for (HWND control = ::GetWindow(window, GW_CHILD); control; control = ::GetWindow(control, GW_HWNDNEXT))
        ::SendMessageW(control, message, wParam, lParam);
}

}  // namespace win
