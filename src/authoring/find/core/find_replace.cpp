#include "authoring/find/core/find_replace.h"

namespace authoring {
namespace {

std::optional<int> Count(std::u16string_view text, std::u16string_view find, std::size_t from,
                         std::size_t step) {
    int count = 0;
    for (std::size_t at = FindFrom(text, find, from); at != kNotFound; at = FindFrom(text, find, at + step)) {
        if (++count > kMaxMatches) return std::nullopt;
    }
    return count;
}

}  // namespace

std::optional<int> CountMatches(std::u16string_view text, std::u16string_view find) {
    return Count(text, find, 0, 1);
}

std::optional<int> CountFromFirst(std::u16string_view text, std::u16string_view find, std::size_t first) {
    if (first == 0 || first == kNotFound) return 0;
    return Count(text, find, first, find.size());
}

}  // namespace authoring
