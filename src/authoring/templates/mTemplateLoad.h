// The templates in the Options menu.
#pragma once

#include "main_window.h"

namespace mTemplateLoad {

// Makes the menu of the stored list. Nothing is written: a template whose file is not there, perhaps that of
// a copy of the program in another folder, is only not shown.
void ShowTemplateMenu(MainWindow& main);

// Drops templates without a file from the stored list, closes its gaps, and makes the menu of it.
void RebuildTemplateMenu(MainWindow& main);

void OnTemplateAdd(MainWindow& main, int);
void OnTemplateOrganize(MainWindow& main, int);
// Opens the template of a slot as a new document, which has no path, so that no save overwrites the template.
void OnTemplateOpen(MainWindow& main, int index);

}  // namespace mTemplateLoad
