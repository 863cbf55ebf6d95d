#include "win/core/utf.h"

#include <cstddef>
#include <cstdint>

namespace win {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

bool IsHigh(char16_t unit) {
    return unit >= 0xD800 && unit <= 0xDBFF;
}
bool IsLow(char16_t unit) {
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

void AppendUtf8(std::string& text, char32_t c) {
    const auto tail = [&text](char32_t bits) { text += static_cast<char>(0x80U | (bits & 0x3FU)); };
    if (c < 0x80) {
        text += static_cast<char>(c);
    } else if (c < 0x800) {
        text += static_cast<char>(0xC0U | c >> 6U);
        tail(c);
    } else if (c < 0x10000) {
        text += static_cast<char>(0xE0U | c >> 12U);
        tail(c >> 6U);
        tail(c);
    } else {
        text += static_cast<char>(0xF0U | c >> 18U);
        tail(c >> 12U);
        tail(c >> 6U);
        tail(c);
    }
}

struct Read {
    char32_t character = kReplacement;
    std::size_t bytes = 1;
};

std::size_t LengthByLead(std::uint8_t lead) {
    if (lead < 0x80) return 1;
    if (lead >= 0xC2 && lead < 0xE0) return 2;
    if (lead >= 0xE0 && lead < 0xF0) return 3;
    return lead >= 0xF0 && lead < 0xF5 ? 4 : 0;
}

Read ReadUtf8(std::string_view text) {
    const auto byte = [text](std::size_t i) { return static_cast<std::uint8_t>(text[i]); };
    const std::size_t length = LengthByLead(byte(0));
    if (length == 1) return {byte(0), 1};
    if (length == 0 || length > text.size()) return {};
    char32_t c = byte(0) & (0x7FU >> length);
    for (std::size_t i = 1; i < length; ++i) {
        if ((byte(i) & 0xC0U) != 0x80) return {};
        c = c << 6U | (byte(i) & 0x3FU);
    }
    constexpr char32_t kSmallest[] = {0, 0, 0x80, 0x800, 0x10000};
    if (c < kSmallest[length] || c > 0x10FFFF) return {};
    return {c, length};
}

}  // namespace

std::string Utf8FromUtf16(std::u16string_view text) {
    std::string result;
    result.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        char32_t c = text[i];
        if (IsHigh(text[i]) && i + 1 < text.size() && IsLow(text[i + 1])) {
            c = 0x10000 + ((c - 0xD800) << 10U) + (static_cast<char32_t>(text[++i]) - 0xDC00);
        }
        AppendUtf8(result, c);
    }
    return result;
}

std::u16string Utf16FromUtf8(std::string_view text) {
    std::u16string result;
    result.reserve(text.size());
    while (!text.empty()) {
        const auto [c, bytes] = ReadUtf8(text);
        if (c >= 0x10000) {
            result += static_cast<char16_t>(0xD800 + ((c - 0x10000) >> 10U));
            result += static_cast<char16_t>(0xDC00 + ((c - 0x10000) & 0x3FFU));
        } else {
            result += static_cast<char16_t>(c);
        }
        text.remove_prefix(bytes);
    }
    return result;
}

}  // namespace win
