// The templates in the Options menu.
#pragma once

#include "authoring/core/template_list.h"
#include "main_window.h"

namespace mTemplateLoad {

// Drops the templates whose file has gone from the stored list, closes its gaps, and makes the menu of it.
void RebuildTemplateMenu(MainWindow& main);

// Makes the nine items of the menu those of the list.
void ShowTemplates(MainWindow& main, const authoring::TemplateList& list);
// "Organize Templates" and the separator below it.
void ShowOrganize(MainWindow& main, bool shown);

void OnTemplateAdd(MainWindow& main, int);
void OnTemplateOrganize(MainWindow& main, int);
// Opens the template of a slot as a new document, which has no path, so that no save overwrites the template.
void OnTemplateOpen(MainWindow& main, int index);

}  // namespace mTemplateLoad
