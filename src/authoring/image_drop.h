// Image tags for files that are dropped onto a page.
#pragma once

#include <string>
#include <vector>

#include "main_window.h"

namespace authoring {

// Puts a tag for each file into the page, at the caret. No paths stand for something else than files.
void OnDrop(MainWindow& main, DocumentId page, const std::vector<std::string>& paths);

// One file of a drop: its tag, through the clipboard, and its size in the status strip; or a message that
// says why there is none.
void MakeImageTag(MainWindow& main, DocumentId page, const std::string& path);

}  // namespace authoring
