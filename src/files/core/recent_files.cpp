#include "files/core/recent_files.h"

#include <algorithm>
#include <cstdlib>

namespace files {
namespace {

bool IsNumber(const std::string& key) {
    return !key.empty() && key.find_first_not_of("0123456789") == std::string::npos;
}

}  // namespace

std::vector<std::string> StoredFiles(const std::string& count, const std::vector<settings::Row>& rows) {
    const auto wanted =
        std::min(static_cast<std::size_t>(std::max(std::atoi(count.c_str()), 0)), kRecentFiles);
    std::vector<std::string> paths;
    for (const settings::Row& row : rows) {
        const bool listed = std::find(paths.begin(), paths.end(), row.value) != paths.end();
        if (paths.size() < wanted && IsNumber(row.key) && !row.value.empty() && !listed)
            paths.push_back(row.value);
    }
    return paths;
}

std::vector<std::string> WithNewest(const std::vector<std::string>& list, const std::string& path,
                                    const std::function<bool(const std::string&, const std::string&)>& same) {
    std::vector<std::string> fresh{path};
    for (const std::string& entry : list) {
        if (fresh.size() == kRecentFiles) break;
        if (!same(entry, path)) fresh.push_back(entry);
    }
    return fresh;
}

}  // namespace files
