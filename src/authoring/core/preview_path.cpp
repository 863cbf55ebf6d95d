#include "authoring/core/preview_path.h"

#include <cstddef>

namespace authoring {
namespace {

constexpr std::string_view kCopyMark = "$$";
constexpr std::size_t kExtensionLength = 5;

bool LacksExtension(std::string_view name) {
    if (name.size() > kExtensionLength) name.remove_prefix(name.size() - kExtensionLength);
    return name.find('.') == std::string_view::npos;
}

}  // namespace

std::string PreviewFile(std::string_view path, bool changed,
                        const std::function<bool(const std::string&)>& exists) {
    if (path.empty()) return {};
    // The page's caption is its file name. It is taken from the end of the path and not searched for in
    // it: a folder of the same name ("C:\index.htm\index.htm") would be found first, and the copy would
    // lie elsewhere.
    const std::size_t separator = path.find_last_of("\\/:");
    const std::size_t nameAt = separator == std::string_view::npos ? 0 : separator + 1;
    const std::string_view name = path.substr(nameAt);

    std::string file(path);
    if (changed) file.insert(nameAt, kCopyMark);
    if (LacksExtension(name)) {
        file += ".htm";
        if (!changed && exists(file)) file.insert(nameAt, kCopyMark);
    }
    return file;
}

bool IsInternetExplorer(std::string_view executable) {
    return executable.find("iexplore.exe") != std::string_view::npos;
}

}  // namespace authoring
