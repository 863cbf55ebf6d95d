// Writing a page as a file.
#pragma once

#include <string>

#include "document/rich_edit.h"

namespace files {

// The page's lines as its control counts them without word wrap, each followed by CR LF.
std::string PageBytes(document::RichEdit& pad);

// Writes these bytes to the path, whose file is replaced as a whole. False when that fails.
bool WritePage(document::RichEdit& pad, const std::string& path);

}  // namespace files
