#include "authoring/preview/core/preview_path.h"

#include <cstddef>

namespace authoring {
namespace {

// The page's caption is its file name. It is taken from the end of the path and not searched for in it: a
// folder of the same name ("C:\index.htm\index.htm") would be found first, and the copy would lie elsewhere.
std::size_t NameAt(std::string_view path) {
    return path.find_last_of("\\/:") + 1;
}

}  // namespace

bool HasExtension(std::string_view path) {
    constexpr std::size_t kEnd = 5;
    std::string_view name = path.substr(NameAt(path));
    if (name.size() > kEnd) name.remove_prefix(name.size() - kEnd);
    return name.find('.') != std::string_view::npos;
}

std::string PreviewCopy(std::string_view path, bool edited, int taken) {
    constexpr int kMark = 2;
    const bool isMarked = edited || HasExtension(path);
    const int marks = isMarked ? kMark + taken : taken > 0 ? kMark - 1 + taken : 0;
    std::string copy(path);
    copy.insert(NameAt(path), static_cast<std::size_t>(marks), '$');
    if (!HasExtension(path)) copy += ".htm";
    return copy;
}

}  // namespace authoring
