// The Edit and Window menus, and the one way in which a tool puts text into a page.
#pragma once

#include <string_view>

#include "main_window.h"

namespace document {

// Replaces the active document's selection; the caret ends behind the text. An empty fragment deletes the
// selection.
void InsertAtCaret(MainWindow& main, std::string_view fragment);

void OnEditCut(MainWindow& main, int);
void OnEditCopy(MainWindow& main, int);
void OnEditPaste(MainWindow& main, int);
void OnEditAll(MainWindow& main, int);
void OnEditClear(MainWindow& main, int);
void OnEditUndo(MainWindow& main, int);
// The index is the window state: 0 normal, 1 minimised, 2 maximised.
void OnWindowState(MainWindow& main, int index);

// Enables the items of the Edit menu that can do something now.
void UpdateEditMenu(MainWindow& main);

}  // namespace document
