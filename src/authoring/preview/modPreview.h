// The Preview command: the active page in the user's browser, without saving it.
#pragma once

#include "main_window.h"

namespace modPreview {

// Returns as soon as the browser has been started. Of a page with unsaved changes the browser gets a copy
// beside the page's file, which is removed a few seconds later or with the main window; the page stays
// changed. Throws when nothing can be written.
void Preview(MainWindow& main);

void OnPreview(MainWindow& main, int);

}  // namespace modPreview
