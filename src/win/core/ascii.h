// Text as far as it is ASCII: letters whatever their case, blanks at the ends. Other characters stand for
// themselves.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <type_traits>

namespace win {

template <typename Char>
constexpr Char LowerAscii(Char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<Char>(c - 'A' + 'a') : c;
}

template <typename Char>
constexpr bool IsAsciiLetter(Char c) {
    return LowerAscii(c) >= 'a' && LowerAscii(c) <= 'z';
}

// Both are the same but for the case of letters.
template <typename Char>
constexpr bool SameName(std::basic_string_view<Char> one,
                        std::type_identity_t<std::basic_string_view<Char>> other) {
    return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                      [](Char a, Char b) { return LowerAscii(a) == LowerAscii(b); });
}

// Where `name` first occurs at or after `from`, in any case; npos where it does not.
template <typename Char>
constexpr std::size_t FindName(std::basic_string_view<Char> text,
                               std::type_identity_t<std::basic_string_view<Char>> name,
                               std::size_t from = 0) {
    for (; from + name.size() <= text.size(); ++from) {
        if (SameName(text.substr(from, name.size()), name)) return from;
    }
    return text.npos;
}

// Without the blanks, given as a set of characters, at both ends.
constexpr std::string_view Trimmed(std::string_view text, std::string_view blanks = " ") {
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == text.npos) return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

}  // namespace win
