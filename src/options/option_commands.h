// The commands of the Options menu that set how pages are opened, saved and shown.
#pragma once

#include "main_window.h"

class frmChild;

namespace options {

void OnDefaultOpen(MainWindow& main, int index);
void OnDefaultSave(MainWindow& main, int index);
// Index 0 stands for three blanks.
void OnTabLength(MainWindow& main, int index);
void OnWordWrap(MainWindow& main, int);
void OnFonts(MainWindow& main, int);

// Puts the check marks of the default types and of the tab length beside what is stored.
void ShowStored(MainWindow& main);
// Checks Word Wrap as the page has it; null when no page is open.
void ShowWordWrap(MainWindow& main, const frmChild* page);

}  // namespace options
