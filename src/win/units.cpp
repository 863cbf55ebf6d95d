#include "win/units.h"

namespace win {

int SystemDpi() {
    const HDC screen = ::GetDC(nullptr);
    const int dpi = ::GetDeviceCaps(screen, LOGPIXELSY);
    ::ReleaseDC(nullptr, screen);
    return dpi;
}

}  // namespace win
