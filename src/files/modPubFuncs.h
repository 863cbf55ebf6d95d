// File helpers that many features share.
#pragma once

#include <string>

#include "files/core/path.h"
#include "main_window.h"

namespace modPubFuncs {

// True for a file; false for a folder, a path with wildcards, and on any error.
bool FileExists(const std::string& path);

// Whether two paths name the same file: letters match regardless of case, as the file system has it, and a
// short name is that of its long one.
bool SamePath(const std::string& a, const std::string& b);

// Whether the path lies in the folder, or in one below it, however the two are spelt.
bool IsBelow(const std::string& path, const std::string& folder);

// True when a document window already has this path.
bool IsFileOpen(MainWindow& main, const std::string& path);

}  // namespace modPubFuncs
