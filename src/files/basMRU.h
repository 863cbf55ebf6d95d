// The recently used files, up to seven, newest first, in the settings and in the File menu.
#pragma once

#include <string>

#include "main_window.h"

namespace basMRU {

// Fills the menu from the store. On the very first run shows the welcome message instead.
void LoadRecentFiles(MainWindow& main);

// Puts an explicitly opened or saved file at the top. Files in the temporary folder are never listed.
void AddRecentFile(MainWindow& main, const std::string& path);

// Drops the stored entries whose files are gone, and renumbers the rest.
void PruneRecentFiles(MainWindow& main);

// Opens the file of item `index`.
void OnFileMRU(MainWindow& main, int index);

}  // namespace basMRU
