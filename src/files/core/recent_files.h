// The order of the recently used files.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "settings/core/section_rows.h"

namespace files {

inline constexpr std::size_t kRecentFiles = 7;

// The list as stored: as many paths as the count says, or fewer where the section has fewer, each once.
// Keys that are no number do not belong to it.
std::vector<std::string> StoredFiles(const std::string& count, const std::vector<settings::Row>& rows);

// The list with `path` on top: an entry that names the same file is dropped, and so is what the list has no
// room for.
std::vector<std::string> WithNewest(const std::vector<std::string>& list, const std::string& path,
                                    const std::function<bool(const std::string&, const std::string&)>& same);

}  // namespace files
