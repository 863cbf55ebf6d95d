// Image tags for files that are dropped onto a page.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "main_window.h"

namespace authoring {

// Reads the dropped files. The function that is returned inserts a tag for each at the page's caret and shows
// the file's size in the status strip, or says why there is no tag. No paths mean that something other than
// files was dropped.
std::function<void()> ReadDrop(MainWindow& main, DocumentId page, const std::vector<std::string>& paths);

}  // namespace authoring
