#include "document/page.h"

#include "document/system_code_pages.h"
#include "win/unicode.h"

namespace document {

namespace {

// Whether the text holds a run of more than some thousand units without any of the separators.
bool HasLongRun(std::u16string_view text, std::u16string_view separators) {
    constexpr std::size_t kLongest = 4000;
    for (std::size_t start = 0; start + kLongest < text.size();) {
        const std::size_t end = text.substr(0, start + kLongest + 1).find_last_of(separators);
        if (end == std::u16string_view::npos || end < start) return true;
        start = end + 1;
    }
    return false;
}

}  // namespace

bool HasLongLine(std::u16string_view text) {
    return HasLongRun(text, u"\r\n");
}

bool HasLongWord(std::u16string_view text) {
    return HasLongRun(text, u"\r\n\t ");
}

Page PageOf(std::string_view bytes) {
    const Encoding encoding = EncodingOf(bytes, SystemCodePages());
    return {Decode(encoding, bytes, SystemCodePages()), encoding};
}

Page NewPage(std::string_view text) {
    return {win::Utf16FromUtf8(text), {SystemCodePages().ansi(), false}};
}

}  // namespace document
