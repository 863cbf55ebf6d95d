// Conversion between the tests' UTF-8 and the system's UTF-16.
#pragma once

#include <string>
#include <string_view>

#include "win/core/utf.h"

inline std::wstring Wide(std::string_view utf8) {
    const std::u16string text = win::Utf16FromUtf8(utf8);
    return {text.begin(), text.end()};
}

inline std::string Narrow(std::wstring_view wide) {
    return win::Utf8FromUtf16(std::u16string(wide.begin(), wide.end()));
}
