// The program's UTF-8 at the edge of the system, whose calls take UTF-16.
#pragma once

#include <string>
#include <string_view>

#include "win/core/utf.h"

namespace win {

std::wstring ToWide(std::string_view utf8);
std::string ToUtf8(std::wstring_view wide);

// The same units: on Windows wchar_t has 16 bits.
inline std::wstring_view AsWide(std::u16string_view text) {
    return {reinterpret_cast<const wchar_t*>(text.data()), text.size()};
}
inline std::u16string_view AsUtf16(std::wstring_view text) {
    return {reinterpret_cast<const char16_t*>(text.data()), text.size()};
}

}  // namespace win
