#include "help/core/links.h"

namespace help {

std::string LinkTarget(std::string_view caption) {
    if (caption.find('@') == std::string_view::npos) return std::string(caption);
    const std::size_t first = caption.find_first_not_of(' ');
    const std::size_t last = caption.find_last_not_of(' ');
    return "mailto:" + std::string(caption.substr(first, last - first + 1));
}

}  // namespace help
