#include "ftp/core/remote_listing.h"

#include <utility>

#include "ftp/core/remote_path.h"

namespace ftp {
namespace {

constexpr unsigned long kDirectoryAttribute = 16;

}  // namespace

bool IsListableName(std::string_view name) {
    if (name.empty() || name.size() > kMaxRemoteName) return false;
    if (name == "." || name == ".." || name == "./" || name == "../" || name == "/") return false;
    return name.find_first_of(std::string_view("\r\n\0", 3)) == std::string_view::npos;
}

bool RemoteListing::add(std::string_view name, unsigned long attributes) {
    if (entries_ == kMaxListedEntries) return false;
    ++entries_;
    if (IsListableName(name)) {
        std::string line(name);
        if (attributes == kDirectoryAttribute && !IsDirectoryLine(line)) line += '/';
        lines_.push_back(std::move(line));
    }
    return entries_ < kMaxListedEntries;
}

}  // namespace ftp
