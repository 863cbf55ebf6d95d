#include "win/system_colours.h"

namespace win {

bool IsHighContrast() {
    HIGHCONTRASTA setting{};
    setting.cbSize = sizeof setting;
    return ::SystemParametersInfoA(SPI_GETHIGHCONTRAST, sizeof setting, &setting, 0) &&
           (setting.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

}  // namespace win
