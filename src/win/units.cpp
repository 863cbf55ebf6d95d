#include "win/units.h"

namespace win {

int SystemDpi() {
    // It is the same for as long as the process lives.
    static int known = 0;
    if (known == 0) {
        const HDC screen = ::GetDC(nullptr);
        known = ::GetDeviceCaps(screen, LOGPIXELSY);
        ::ReleaseDC(nullptr, screen);
    }
    return known;
}

}  // namespace win
