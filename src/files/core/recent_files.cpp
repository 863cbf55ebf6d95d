#include "files/core/recent_files.h"

namespace files {

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
