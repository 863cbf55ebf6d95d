#include "win/units.h"

namespace win {

int SystemDpi() {
    // It is the same for as long as the process lives.
    static const int known = [] {
        const HDC screen = ::GetDC(nullptr);
        const int dpi = ::GetDeviceCaps(screen, LOGPIXELSY);
        ::ReleaseDC(nullptr, screen);
        return dpi;
    }();
    return known;
}

}  // namespace win
