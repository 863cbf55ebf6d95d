// Twips (1/1440 inch), the measure in which the forms are laid out, and pixels at the system's DPI.
#pragma once

#include "win/windows.h"

namespace win {

// Dots per inch of the screen, which the process keeps for its whole life.
int SystemDpi();

inline int PixelsFromTwips(int twips) {
    return ::MulDiv(twips, SystemDpi(), 1440);
}
inline int TwipsFromPixels(int pixels) {
    return ::MulDiv(pixels, 1440, SystemDpi());
}
// A length given in pixels of a 96-dpi screen.
inline int Scaled(int pixelsAt96) {
    return ::MulDiv(pixelsAt96, SystemDpi(), 96);
}

}  // namespace win
