#include "win/letters.h"

#include "win/windows.h"

namespace win {
namespace {

std::u16string Mapped(std::u16string_view text, DWORD mapping) {
    std::u16string mapped(text);
    if (mapped.empty()) return mapped;
    auto* units = reinterpret_cast<wchar_t*>(mapped.data());
    const auto count = static_cast<int>(mapped.size());
    ::LCMapStringW(LOCALE_INVARIANT, mapping, units, count, units, count);
    return mapped;
}

}  // namespace

std::u16string LowerCase(std::u16string_view text) {
    return Mapped(text, LCMAP_LOWERCASE);
}

std::u16string UpperCase(std::u16string_view text) {
    return Mapped(text, LCMAP_UPPERCASE);
}

}  // namespace win
