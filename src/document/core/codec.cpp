#include "document/core/codec.h"

#include <algorithm>
#include <utility>

#include "win/core/utf.h"

namespace document {
namespace {

using win::AppendUtf16;
using win::AppendUtf8;
using win::Character;
using win::FirstOfUtf16;
using win::IsSurrogate;

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view kUtf16Mark = "\xFF\xFE";
constexpr std::string_view kUtf16BigEndianMark = "\xFE\xFF";
constexpr char16_t kFirstRaw = 0xDC00;
constexpr char16_t kReplacement = 0xFFFD;

// Legacy text is converted and compared as a whole, in blocks where that does not come back as it was, in
// parts of those, and only then by the character.
constexpr std::size_t kBlock = 4096;
constexpr std::size_t kFiner = 64;

constexpr unsigned Value(char byte) {
    return static_cast<unsigned char>(byte);
}

constexpr bool IsAscii(char32_t c) {
    return c < 0x80;
}

constexpr bool IsRaw(char32_t c) {
    return c >= kFirstRaw && c <= kFirstRaw + 0xFF;
}

constexpr char16_t RawByte(unsigned byte) {
    return static_cast<char16_t>(kFirstRaw + byte);
}

constexpr char Byte(unsigned value) {
    return static_cast<char>(value & 0xFF);
}

constexpr bool IsUnicode(const Encoding& encoding) {
    return encoding.codePage == kUtf8 || encoding.codePage == kUtf16 || encoding.codePage == kUtf16BigEndian;
}

constexpr std::string_view MarkOf(const Encoding& encoding) {
    if (!encoding.mark) return {};
    if (encoding.codePage == kUtf8) return kUtf8Mark;
    if (encoding.codePage == kUtf16) return kUtf16Mark;
    return encoding.codePage == kUtf16BigEndian ? kUtf16BigEndianMark : std::string_view();
}

std::size_t FirstSurrogate(std::u16string_view text) {
    return static_cast<std::size_t>(std::find_if(text.begin(), text.end(), IsSurrogate) - text.begin());
}

// The characters up to the first lone surrogate.
std::u16string_view WithoutLone(std::u16string_view text) {
    std::size_t at = 0;
    for (;;) {
        at += FirstSurrogate(text.substr(at));
        if (at == text.size()) return text;
        const Character character = FirstOfUtf16(text.substr(at));
        if (character.length == 1) return text.substr(0, at);
        at += character.length;
    }
}

// The character that UTF-8 starts with; of length 0 where that is none.
Character FirstStrictly(std::string_view bytes) {
    const Character character = win::FirstOfUtf8(bytes);
    return IsSurrogate(character.value) ? Character{} : character;
}

std::u16string DecodeUtf8(std::string_view bytes) {
    std::u16string text;
    text.reserve(bytes.size());
    while (!bytes.empty()) {
        const Character character = FirstStrictly(bytes);
        if (character.length == 0) {
            text += RawByte(Value(bytes[0]));
            bytes.remove_prefix(1);
        } else {
            AppendUtf16(text, character.value);
            bytes.remove_prefix(character.length);
        }
    }
    return text;
}

void EncodeUtf8(std::string& bytes, std::u16string_view text) {
    bytes.reserve(bytes.size() + text.size() + text.size() / 4);
    while (!text.empty()) {
        const Character character = FirstOfUtf16(text);
        text.remove_prefix(character.length);
        if (IsRaw(character.value)) {
            bytes += Byte(character.value);
        } else {
            AppendUtf8(bytes, IsSurrogate(character.value) ? kReplacement : character.value);
        }
    }
}

std::u16string DecodeUtf16(std::string_view bytes, bool bigEndian) {
    const std::size_t low = bigEndian ? 1 : 0;
    std::u16string units(bytes.size() / 2, u'\0');
    for (std::size_t i = 0; i < units.size(); ++i)
        units[i] = static_cast<char16_t>(Value(bytes[2 * i + low]) | Value(bytes[2 * i + 1 - low]) << 8);

    std::u16string text;
    text.reserve(units.size() + 1);
    for (std::u16string_view rest = units;;) {
        const std::u16string_view whole = WithoutLone(rest);
        text += whole;
        if (whole.size() == rest.size()) break;
        rest.remove_prefix(whole.size() + 1);
        const std::size_t at = 2 * (units.size() - rest.size() - 1);
        for (const char c : bytes.substr(at, 2)) text += RawByte(Value(c));
    }
    if (bytes.size() % 2 != 0) text += RawByte(Value(bytes.back()));
    return text;
}

// Half a unit can stand at the end only. Where text follows it after an edit, it becomes the unit of its
// value, or every unit behind it would be read half a unit too early.
void CompleteUnit(std::string& bytes, bool bigEndian) {
    bytes.insert(bigEndian ? bytes.size() - 1 : bytes.size(), 1, '\0');
}

void EncodeUtf16(std::string& bytes, std::u16string_view text, bool bigEndian) {
    bytes.reserve(bytes.size() + 2 * text.size());
    const auto append = [&](unsigned unit) {
        bytes += Byte(bigEndian ? unit >> 8 : unit);
        bytes += Byte(bigEndian ? unit : unit >> 8);
    };
    bool half = false;
    while (!text.empty()) {
        const Character character = FirstOfUtf16(text);
        if (IsRaw(character.value)) {
            bytes += Byte(character.value);
            half = !half;
        } else {
            if (half) CompleteUnit(bytes, bigEndian);
            half = false;
            append(IsSurrogate(character.value) ? kReplacement : text[0]);
            if (character.length == 2) append(text[1]);
        }
        text.remove_prefix(character.length);
    }
}

void EncodeLegacy(std::string& bytes, std::u16string_view text, unsigned codePage, const CodePages& pages) {
    while (!text.empty()) {
        const std::u16string_view whole = WithoutLone(text);
        if (!whole.empty()) bytes += pages.fromUnicode(codePage, whole);
        text.remove_prefix(whole.size());
        if (text.empty()) return;
        if (IsRaw(text[0])) {
            bytes += Byte(text[0]);
        } else {
            bytes += pages.fromUnicode(codePage, {&kReplacement, 1});
        }
        text.remove_prefix(1);
    }
}

class LegacyDecoder {
 public:
    LegacyDecoder(unsigned codePage, const CodePages& pages) : codePage_(codePage), pages_(pages) {}

    // False, and nothing is taken, where the bytes do not come back as they are.
    bool takeWhole(std::string_view bytes) {
        const std::u16string text = pages_.toUnicode(codePage_, bytes);
        if (WithoutLone(text).size() != text.size() || pages_.fromUnicode(codePage_, text) != bytes)
            return false;
        text_ += text;
        return true;
    }

    void takePieces(std::string_view bytes, std::size_t limit) {
        while (!bytes.empty()) {
            const std::string_view piece = bytes.substr(0, cut(bytes, limit));
            if (!takeWhole(piece)) {
                if (limit > kFiner) {
                    takePieces(piece, kFiner);
                } else {
                    takeCharacters(piece);
                }
            }
            bytes.remove_prefix(piece.size());
        }
    }

    std::u16string text() && { return std::move(text_); }

 private:
    void takeCharacters(std::string_view bytes) {
        while (!bytes.empty()) {
            std::size_t length = characterLength(bytes);
            if (IsAscii(Value(bytes[0]))) {
                text_ += static_cast<char16_t>(bytes[0]);
            } else if (!takeWhole(bytes.substr(0, length))) {
                length = takeRaw(bytes.substr(0, length));
            }
            bytes.remove_prefix(length);
        }
    }

    // Returns how many bytes. A lead byte that belongs to nothing must not take the quote, the blank or the
    // tag behind it with it: below 0x40 a byte ends a character in GB 18030 only, and there it is a digit.
    std::size_t takeRaw(std::string_view character) {
        std::size_t length = 0;
        do {
            text_ += RawByte(Value(character[length++]));
        } while (length < character.size() && Value(character[length]) >= 0x40);
        return length;
    }

    // A place near the limit where a character ends: behind a byte that is in no longer character, or else
    // counted from the start.
    std::size_t cut(std::string_view bytes, std::size_t limit) const {
        if (bytes.size() <= limit) return bytes.size();
        for (std::size_t at = limit; at > limit / 2; --at)
            if (Value(bytes[at - 1]) < 0x30) return at;
        std::size_t at = 0;
        while (at < limit) at += characterLength(bytes.substr(at));
        return at;
    }

    std::size_t characterLength(std::string_view bytes) const {
        return IsAscii(Value(bytes[0])) ? 1 : pages_.characterLength(codePage_, bytes);
    }

    unsigned codePage_;
    const CodePages& pages_;
    std::u16string text_;
};

std::u16string DecodeLegacy(unsigned codePage, std::string_view bytes, const CodePages& pages) {
    LegacyDecoder decoder(codePage, pages);
    if (decoder.takeWhole(bytes)) return std::move(decoder).text();
    decoder.takePieces(bytes, kBlock);
    std::u16string text = std::move(decoder).text();

    // Each piece comes back alone but not all together: the system converts by more than one character. Then
    // only ASCII is certain.
    if (Encode({codePage, false}, text, pages) == bytes) return text;
    text.clear();
    for (const char c : bytes) text += IsAscii(Value(c)) ? static_cast<char16_t>(c) : RawByte(Value(c));
    return text;
}

// Whether the text has no lone surrogates, and comes back from the encoding as it is.
bool HoldsWhole(const Encoding& encoding, std::u16string_view text, const CodePages& pages) {
    if (WithoutLone(text).size() != text.size()) return false;
    return IsUnicode(encoding) ||
           pages.toUnicode(encoding.codePage, pages.fromUnicode(encoding.codePage, text)) == text;
}

void AppendReference(std::u16string& text, char32_t character) {
    text += u"&#";
    for (const char digit : std::to_string(static_cast<unsigned>(character)))
        text += static_cast<char16_t>(digit);
    text += u';';
}

void AppendHeld(std::u16string& result, const Encoding& encoding, std::u16string_view text,
                const CodePages& pages) {
    while (!text.empty()) {
        Character character = FirstOfUtf16(text);
        text.remove_prefix(character.length);
        if (IsSurrogate(character.value) && !IsRaw(character.value)) character.value = kReplacement;
        if (IsAscii(character.value) || Holds(encoding, character.value, pages)) {
            AppendUtf16(result, character.value);
        } else {
            AppendReference(result, character.value);
        }
    }
}

}  // namespace

std::u16string Decode(const Encoding& encoding, std::string_view bytes, const CodePages& pages) {
    const std::string_view mark = MarkOf(encoding);
    if (bytes.starts_with(mark)) bytes.remove_prefix(mark.size());
    switch (encoding.codePage) {
        case kUtf8:
            return DecodeUtf8(bytes);
        case kUtf16:
        case kUtf16BigEndian:
            return DecodeUtf16(bytes, encoding.codePage == kUtf16BigEndian);
        default:
            return DecodeLegacy(encoding.codePage, bytes, pages);
    }
}

std::string Encode(const Encoding& encoding, std::u16string_view text, const CodePages& pages) {
    std::string bytes(MarkOf(encoding));
    switch (encoding.codePage) {
        case kUtf8:
            EncodeUtf8(bytes, text);
            break;
        case kUtf16:
        case kUtf16BigEndian:
            EncodeUtf16(bytes, text, encoding.codePage == kUtf16BigEndian);
            break;
        default:
            EncodeLegacy(bytes, text, encoding.codePage, pages);
    }
    return bytes;
}

bool Holds(const Encoding& encoding, char32_t character, const CodePages& pages) {
    if (IsSurrogate(character) || character > 0x10FFFF) return IsRaw(character);
    std::u16string text;
    AppendUtf16(text, character);
    return HoldsWhole(encoding, text, pages);
}

std::u16string WithReferences(const Encoding& encoding, std::u16string_view text, const CodePages& pages) {
    if (std::all_of(text.begin(), text.end(), IsAscii) || HoldsWhole(encoding, text, pages))
        return std::u16string(text);
    std::u16string result;
    result.reserve(text.size());
    while (!text.empty()) {
        std::size_t length = std::min(kFiner, text.size());
        length += FirstOfUtf16(text.substr(length - 1)).length - 1;
        const std::u16string_view piece = text.substr(0, length);
        text.remove_prefix(length);
        if (HoldsWhole(encoding, piece, pages)) {
            result += piece;
        } else {
            AppendHeld(result, encoding, piece, pages);
        }
    }
    return result;
}

bool IsUtf8(std::string_view bytes) {
    while (!bytes.empty()) {
        const std::size_t length = FirstStrictly(bytes).length;
        if (length == 0) return false;
        bytes.remove_prefix(length);
    }
    return true;
}

}  // namespace document
