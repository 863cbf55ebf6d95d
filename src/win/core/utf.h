// Characters in UTF-16 and UTF-8, and text between the two: the program holds names, paths, captions and
// settings in UTF-8, and the system takes UTF-16.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace win {

constexpr bool IsHighSurrogate(char32_t c) {
    return c >= 0xD800 && c < 0xDC00;
}
constexpr bool IsSurrogate(char32_t c) {
    return c >= 0xD800 && c < 0xE000;
}

// A code point and how many units or bytes it takes.
struct Character {
    char32_t value = 0;
    std::size_t length = 0;
};

// The character that a text, which is not empty, starts with: two units, or one, which may be a lone
// surrogate.
Character FirstOfUtf16(std::u16string_view text);

// The same for UTF-8 in its shortest form, up to U+10FFFF, surrogates included. The length is 0 where none
// starts.
Character FirstOfUtf8(std::string_view text);

void AppendUtf16(std::u16string& text, char32_t character);
void AppendUtf8(std::string& text, char32_t character);

// A lone surrogate, which the name of a Windows file may hold, stands in the UTF-8 as the three bytes that
// its code point would have (WTF-8), so that every name comes back as it was.
std::string Utf8FromUtf16(std::u16string_view text);

// Bytes that are no UTF-8 become U+FFFD, one for each.
std::u16string Utf16FromUtf8(std::string_view text);

}  // namespace win
