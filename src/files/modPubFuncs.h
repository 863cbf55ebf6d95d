// File helpers that many features share.
#pragma once

#include <string>

#include "files/core/path.h"
#include "main_window.h"

namespace modPubFuncs {

// True for a file; false for a folder, a path with wildcards, and on any error.
bool FileExists(const std::string& path);

// Whether two paths name the same file as far as their text tells: letters match regardless of case.
bool SamePath(const std::string& a, const std::string& b);

// True when a document window already has this path.
bool IsFileOpen(MainWindow& main, const std::string& path);

}  // namespace modPubFuncs
