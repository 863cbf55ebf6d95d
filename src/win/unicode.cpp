#include "win/unicode.h"

namespace win {

static_assert(sizeof(wchar_t) == sizeof(char16_t));

std::wstring ToWide(std::string_view utf8) {
    return std::wstring(AsWide(Utf16FromUtf8(utf8)));
}

std::string ToUtf8(std::wstring_view wide) {
    return Utf8FromUtf16(AsUtf16(wide));
}

}  // namespace win
