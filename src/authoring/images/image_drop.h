// Image tags for files that are dropped onto a page.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "main_window.h"

namespace authoring {

// Reads the files of a drop. What is returned puts a tag for each into the page, at the caret, and its size
// into the status strip; or says why there is none. No paths stand for something else than files.
std::function<void()> ReadDrop(MainWindow& main, DocumentId page, const std::vector<std::string>& paths);

}  // namespace authoring
