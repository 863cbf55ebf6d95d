// Text between UTF-8, in which the program holds names, paths, captions and settings, and UTF-16.
#pragma once

#include <string>
#include <string_view>

namespace win {

// A lone surrogate, which the name of a Windows file may hold, stands in the UTF-8 as the three bytes that
// its code point would have (WTF-8), so that every name comes back as it was.
std::string Utf8FromUtf16(std::u16string_view text);

// Bytes that are no UTF-8 become U+FFFD, one for each.
std::u16string Utf16FromUtf8(std::string_view text);

}  // namespace win
