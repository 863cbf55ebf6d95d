// Names within Windows paths, as text.
#pragma once

#include <string_view>

namespace modPubFuncs {

// What follows the last "\", or the whole path when there is none.
inline std::string_view FileNameFromPath(std::string_view path) {
    return path.substr(path.rfind('\\') + 1);
}

}  // namespace modPubFuncs
