#include "ftp/core/remote_path.h"

namespace ftp {
namespace {

// "/" itself keeps its slash.
std::string_view WithoutTrailingSlashes(std::string_view directory) {
    while (directory.size() > 1 && directory.back() == '/') directory.remove_suffix(1);
    return directory;
}

std::string_view Parent(std::string_view directory) {
    const std::size_t slash = directory.rfind('/');
    if (slash == std::string_view::npos) return {};
    return WithoutTrailingSlashes(directory.substr(0, slash + 1));
}

bool LiesAbove(std::string_view directory, std::string_view other) {
    if (directory.size() >= other.size() || other.substr(0, directory.size()) != directory) return false;
    return directory.empty() || directory.back() == '/' || other[directory.size()] == '/';
}

}  // namespace

std::string JoinRemote(std::string_view directory, std::string_view name) {
    std::string path(directory);
    path += '/';
    path += name;
    return path;
}

std::optional<std::string> DirectoryAbove(std::string_view current, std::string_view root) {
    const std::string_view from = WithoutTrailingSlashes(current);
    const std::string_view start = WithoutTrailingSlashes(root);
    if (from == start) return std::nullopt;
    const std::string_view parent = Parent(from);
    const std::string_view above = parent.empty() || LiesAbove(parent, start) ? start : parent;
    // Neither leads anywhere where the server never told its directory.
    if (above == from || above.empty()) return std::nullopt;
    return std::string(above);
}

bool IsDirectoryLine(std::string_view line) {
    return !line.empty() && line.back() == '/';
}

std::string_view NameOfLine(std::string_view line) {
    if (IsDirectoryLine(line)) line.remove_suffix(1);
    return line;
}

bool OpensOnDoubleClick(std::string_view line) {
    return line.find('.') == std::string_view::npos;
}

}  // namespace ftp
