// The Reset command: back to the saved file.
#pragma once

#include "main_window.h"

namespace files {

void OnReset(MainWindow& main, int);

}  // namespace files
