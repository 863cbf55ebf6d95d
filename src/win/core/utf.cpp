#include "win/core/utf.h"

namespace win {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

unsigned Value(char byte) {
    return static_cast<unsigned char>(byte);
}

char Byte(char32_t value) {
    return static_cast<char>(value & 0xFFU);
}

}  // namespace

Character FirstOfUtf16(std::u16string_view text) {
    const char32_t first = text[0];
    if (!IsHighSurrogate(first) || text.size() == 1 || (text[1] & 0xFC00U) != 0xDC00) return {first, 1};
    return {0x10000 + ((first - 0xD800) << 10U) + (text[1] - 0xDC00U), 2};
}

Character FirstOfUtf8(std::string_view text) {
    const unsigned lead = Value(text[0]);
    if (lead < 0x80) return {lead, 1};
    const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || text.size() < length) return {};
    char32_t value = lead & (0x7FU >> length);
    for (const char c : text.substr(1, length - 1)) {
        if ((Value(c) & 0xC0U) != 0x80) return {};
        value = value << 6U | (Value(c) & 0x3FU);
    }
    if (length == 3 && value < 0x800) return {};
    if (length == 4 && (value < 0x10000 || value > 0x10FFFF)) return {};
    return {value, length};
}

void AppendUtf16(std::u16string& text, char32_t character) {
    if (character >= 0x10000) {
        text += static_cast<char16_t>(0xD800 + ((character - 0x10000) >> 10U));
        character = 0xDC00 + (character & 0x3FFU);
    }
    text += static_cast<char16_t>(character);
}

void AppendUtf8(std::string& text, char32_t character) {
    if (character < 0x80) {
        text += Byte(character);
        return;
    }
    const unsigned more = character < 0x800 ? 1 : character < 0x10000 ? 2 : 3;
    text += Byte(0xF00U >> (more + 1) | character >> 6 * more);
    for (unsigned i = more; i-- > 0;) text += Byte(0x80U | (character >> 6 * i & 0x3FU));
}

std::string Utf8FromUtf16(std::u16string_view text) {
    std::string result;
    result.reserve(text.size());
    while (!text.empty()) {
        const Character character = FirstOfUtf16(text);
        AppendUtf8(result, character.value);
        text.remove_prefix(character.length);
    }
    return result;
}

std::u16string Utf16FromUtf8(std::string_view text) {
    std::u16string result;
    result.reserve(text.size());
    while (!text.empty()) {
        const Character character = FirstOfUtf8(text);
        const bool isNone = character.length == 0;
        AppendUtf16(result, isNone ? kReplacement : character.value);
        text.remove_prefix(isNone ? 1 : character.length);
    }
    return result;
}

}  // namespace win
