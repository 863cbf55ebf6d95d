// Pages decoded and encoded again in every encoding. An input is the system's code page, the place of an
// edit, and the page, which is used as bytes and as text.
#include "../core/iconv_code_pages.h"
#include "check.h"
#include "document/core/codec.h"
#include "document/core/encoding.h"

using document::Encoding;
using document::kUtf16;
using document::kUtf16BigEndian;
using document::kUtf8;

namespace {

constexpr unsigned kCodePages[] = {1252, 1251, 932, 936, 950, 54936, kUtf8, kUtf16, kUtf16BigEndian};

bool IsHigh(char16_t unit) {
    return (unit & 0xFC00) == 0xD800;
}

// Whether there are raw bytes in it; there must be no other lone surrogates.
bool HasRaw(std::u16string_view text) {
    bool raw = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (IsHigh(text[i])) {
            Check(i + 1 < text.size() && (text[i + 1] & 0xFC00) == 0xDC00);
            ++i;
        } else if ((text[i] & 0xFC00) == 0xDC00) {
            Check(text[i] <= 0xDCFF);
            raw = true;
        }
    }
    return raw;
}

void CheckBytes(const Encoding& encoding, const std::string& bytes, std::size_t place,
                const document::CodePages& pages) {
    const std::u16string text = Decode(encoding, bytes, pages);
    HasRaw(text);
    Check(Encode(encoding, text, pages) == bytes);
    Check(WithReferences(encoding, text, pages) == text);

    // An edit leaves the bytes before it and behind it alone.
    const Encoding plain{encoding.codePage};
    place %= text.size() + 1;
    if (place > 0 && IsHigh(text[place - 1])) --place;
    const std::string before = Encode(encoding, text.substr(0, place), pages);
    const std::string after = Encode(plain, text.substr(place), pages);
    if (encoding.codePage == kUtf16 || encoding.codePage == kUtf16BigEndian) {
        if (before.size() % 2 != 0) return;
    } else {
        Check(Encode(encoding, text.substr(0, place) + u"<i>" + text.substr(place), pages) ==
              before + "<i>" + after);
    }
    Check(before + after == bytes);
}

void CheckText(const Encoding& current, const std::u16string& text, const document::CodePages& pages,
               const document::CodePages& others) {
    const Encoding encoding = EncodingToSave(text, current, pages);
    const std::u16string held = WithReferences(encoding, text, pages);
    Check(WithReferences(encoding, held, pages) == held);
    const std::string bytes = Encode(encoding, held, pages);
    Encode(encoding, text, pages);
    if (!HasRaw(held)) Check(Decode(encoding, bytes, pages) == held);

    // Where the page declares its encoding, it is read back in that on every system.
    const auto says = [&](const std::string& page) {
        const Encoding read = EncodingOf(page, pages);
        return read == EncodingOf(page, others) && !(read == Encoding{kUtf8});
    };
    if (says(bytes) || says(Encode(current, WithReferences(current, text, pages), pages)))
        Check(EncodingOf(bytes, pages) == encoding && EncodingOf(bytes, others) == encoding);
}

}  // namespace

void Try(std::string_view input) {
    if (input.size() < 2) return;
    const unsigned system = TakeByte(input);
    static const IconvCodePages systems[] = {IconvCodePages(1252), IconvCodePages(1251),
                                             IconvCodePages(932),  IconvCodePages(936),
                                             IconvCodePages(950),  IconvCodePages(kUtf8)};
    const IconvCodePages& pages = systems[system % 6];
    const IconvCodePages& others = systems[(system + 1) % 6];
    const std::size_t place = TakeByte(input);
    const std::string bytes(input);

    const Encoding own = EncodingOf(bytes, pages);
    const std::u16string text = Decode(own, bytes, pages);
    Check(EncodingToSave(text, own, pages) == own);
    CheckBytes(own, bytes, place, pages);
    for (const unsigned codePage : kCodePages) {
        CheckBytes({codePage}, bytes, place, pages);
        if (codePage == kUtf16 || codePage == kUtf16BigEndian) continue;  // never without a mark
        CheckText({codePage}, text, pages, others);
        std::u16string units;
        for (std::size_t i = 0; i + 1 < bytes.size(); i += 2)
            units += static_cast<char16_t>((bytes[i] & 0xFF) | (bytes[i + 1] & 0xFF) << 8);
        CheckText({codePage}, units, pages, others);
    }
}
