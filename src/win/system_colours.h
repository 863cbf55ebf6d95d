// The user's choice of colours.
#pragma once

#include "win/windows.h"

namespace win {

// The user needs strong contrast: only the system's own colours are shown.
bool IsHighContrast();

}  // namespace win
