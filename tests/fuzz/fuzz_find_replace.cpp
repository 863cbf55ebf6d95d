// Searches against ones that are too plain to be wrong. An input is a line to look for, a
// line to put in its place, and the text.
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "authoring/find/core/find_replace.h"
#include "check.h"

using authoring::kNotFound;

namespace {

// By looking at every place.
int PlainCount(std::u16string_view text, std::u16string_view find, bool overlapping) {
    int count = 0;
    for (std::size_t at = 0; at + find.size() <= text.size(); ++at) {
        if (text.substr(at, find.size()) != find) continue;
        ++count;
        if (!overlapping) at += find.size() - 1;
    }
    return count;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const std::u16string find = Units(TakeLine(bytes));
    const std::u16string with = Units(TakeLine(bytes));
    const std::u16string text = Units(bytes);
    const std::u16string result = authoring::ReplaceText<char16_t>(text, find, with);
    if (find.empty()) {
        Check(authoring::CountMatches(text, find) == 0 && result == text);
        return 0;
    }
    const int count = PlainCount(text, find, false);
    Check(authoring::CountMatches(text, find) == PlainCount(text, find, true));
    Check(authoring::ReplaceText<char16_t>(text, find, find) == text);
    Check(result.size() == text.size() + static_cast<std::size_t>(count) * with.size() -
                               static_cast<std::size_t>(count) * find.size());
    const std::size_t first = authoring::FindFrom(text, find, 0);
    const bool counted = first != 0 && first != kNotFound;
    Check(authoring::CountFromFirst(text, find, first) == (counted ? count : 0));
    return 0;
}
