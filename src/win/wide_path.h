// Paths for the system's file calls.
#pragma once

#include <string>

namespace win {

// The path made absolute and in UTF-16; one that is too long for the ordinary file calls (259 characters)
// gets the prefix \\?\, which lifts the limit. Empty for an empty path.
std::wstring WidePath(const std::string& path);

// The path made absolute against the current folder, or as it is when that fails.
std::string FullPath(const std::string& path);

}  // namespace win
