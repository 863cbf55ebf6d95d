#include "document/core/encoding.h"

#include <algorithm>
#include <charconv>
#include <numeric>
#include <optional>
#include <string>

#include "document/core/codec.h"
#include "win/core/ascii.h"

namespace document {
namespace {

constexpr std::size_t kDeclared = 1024;  // bytes; WHATWG HTML, "determining the character encoding"
constexpr std::string_view kSpace = "\t\n\f\r ";

// WHATWG Encoding, "names and labels", without the stateful encodings and those that Windows has not. What is
// named in two rows is the first that the system has.
struct Row {
    unsigned short codePage;
    const char* labels;
};
constexpr Row kLabels[] = {
    {kUtf8,
     "unicode-1-1-utf-8 unicode11utf8 unicode20utf8 utf-8 utf8 x-unicode20utf8 "
     "unicodefffe utf-16be csunicode iso-10646-ucs-2 ucs-2 unicode unicodefeff utf-16 utf-16le"},
    {866, "866 cp866 csibm866 ibm866"},
    {874, "dos-874 iso-8859-11 iso8859-11 iso885911 tis-620 windows-874"},
    {932, "csshiftjis ms932 ms_kanji shift-jis shift_jis sjis windows-31j x-sjis"},
    {54936, "gb18030"},
    {936, "chinese csgb2312 csiso58gb231280 gb18030 gb2312 gb_2312 gb_2312-80 gbk iso-ir-58 x-gbk"},
    {949,
     "cseuckr csksc56011987 euc-kr iso-ir-149 korean ks_c_5601-1987 ks_c_5601-1989 ksc5601 ksc_5601 "
     "windows-949"},
    {950, "big5 big5-hkscs cn-big5 csbig5 x-x-big5"},
    {1250, "cp1250 windows-1250 x-cp1250"},
    {1251, "cp1251 windows-1251 x-cp1251"},
    {1252,
     "ansi_x3.4-1968 ascii cp1252 cp819 csisolatin1 ibm819 iso-8859-1 iso-ir-100 iso8859-1 iso88591 "
     "iso_8859-1 "
     "iso_8859-1:1987 l1 latin1 us-ascii windows-1252 x-cp1252 x-user-defined"},
    {1253, "cp1253 windows-1253 x-cp1253"},
    {1254,
     "cp1254 csisolatin5 iso-8859-9 iso-ir-148 iso8859-9 iso88599 iso_8859-9 iso_8859-9:1989 l5 latin5 "
     "windows-1254 x-cp1254"},
    {1255, "cp1255 windows-1255 x-cp1255"},
    {1256, "cp1256 windows-1256 x-cp1256"},
    {1257, "cp1257 windows-1257 x-cp1257"},
    {1258, "cp1258 windows-1258 x-cp1258"},
    {10000, "csmacintosh mac macintosh x-mac-roman"},
    {10017, "x-mac-cyrillic x-mac-ukrainian"},
    {10007, "x-mac-cyrillic x-mac-ukrainian"},
    {20866, "cskoi8r koi koi8 koi8-r koi8_r"},
    {21866, "koi8-ru koi8-u"},
    {28592, "csisolatin2 iso-8859-2 iso-ir-101 iso8859-2 iso88592 iso_8859-2 iso_8859-2:1987 l2 latin2"},
    {28593, "csisolatin3 iso-8859-3 iso-ir-109 iso8859-3 iso88593 iso_8859-3 iso_8859-3:1988 l3 latin3"},
    {28594, "csisolatin4 iso-8859-4 iso-ir-110 iso8859-4 iso88594 iso_8859-4 iso_8859-4:1988 l4 latin4"},
    {28595,
     "csisolatincyrillic cyrillic iso-8859-5 iso-ir-144 iso8859-5 iso88595 iso_8859-5 iso_8859-5:1988"},
    {28596,
     "arabic asmo-708 csiso88596e csiso88596i csisolatinarabic ecma-114 iso-8859-6 iso-8859-6-e iso-8859-6-i "
     "iso-ir-127 iso8859-6 iso88596 iso_8859-6 iso_8859-6:1987"},
    {28597,
     "csisolatingreek ecma-118 elot_928 greek greek8 iso-8859-7 iso-ir-126 iso8859-7 iso88597 iso_8859-7 "
     "iso_8859-7:1987 sun_eu_greek"},
    {28598,
     "csiso88598e csisolatinhebrew hebrew iso-8859-8 iso-8859-8-e iso-ir-138 iso8859-8 iso88598 iso_8859-8 "
     "iso_8859-8:1988 visual"},
    {38598, "csiso88598i iso-8859-8-i logical"},
    {28603, "iso-8859-13 iso8859-13 iso885913"},
    {28605, "csisolatin9 iso-8859-15 iso8859-15 iso885915 iso_8859-15 l9"},
    {51932, "cseucpkdfmtjapanese euc-jp x-euc-jp"},
    {20932, "cseucpkdfmtjapanese euc-jp x-euc-jp"},
};

constexpr bool IsSpace(char c) {
    return kSpace.find(c) != kSpace.npos;
}

bool HasLabel(std::string_view labels, std::string_view label) {
    for (;;) {
        const std::size_t end = labels.find(' ');
        if (win::SameName(labels.substr(0, end), label)) return true;
        if (end == labels.npos) return false;
        labels.remove_prefix(end + 1);
    }
}

// Whether pages can be in it: what they declare must read the same in it, which rules out EBCDIC.
bool IsForPages(unsigned codePage, const CodePages& pages) {
    if (codePage == kUtf8) return true;
    if (!pages.has(codePage)) return false;
    std::string ascii('~' - '\t' + 1, '\0');
    std::iota(ascii.begin(), ascii.end(), '\t');
    const std::u16string text(ascii.begin(), ascii.end());
    return pages.toUnicode(codePage, ascii) == text && pages.fromUnicode(codePage, text) == ascii;
}

// The code page that a label means; 0 for what counts as no declaration.
unsigned CodePageOfLabel(std::string_view label, const CodePages& pages) {
    const std::string_view name = win::Trimmed(label, kSpace);
    for (const Row& row : kLabels)
        if (HasLabel(row.labels, name) && IsForPages(row.codePage, pages)) return row.codePage;
    return 0;
}

// The code page that ASP's directive names by its number. Below 37 are not code pages but names for the
// system's.
unsigned CodePageOfNumber(std::string_view digits, const CodePages& pages) {
    unsigned number = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (number == kUtf16 || number == kUtf16BigEndian) return kUtf8;
    return number >= 37 && IsForPages(number, pages) ? number : 0;
}

std::string_view WithoutLeadingSpace(std::string_view text) {
    return text.substr(std::min(text.find_first_not_of(kSpace), text.size()));
}

// WHATWG HTML, "extracting a character encoding from a meta element".
std::string_view CharsetOfContent(std::string_view content) {
    constexpr std::string_view kCharset = "charset";
    do {
        const std::size_t at = win::FindName(content, kCharset);
        if (at == content.npos) return {};
        content = WithoutLeadingSpace(content.substr(at + kCharset.size()));
    } while (!content.starts_with('='));
    content = WithoutLeadingSpace(content.substr(1));
    if (!content.starts_with('"') && !content.starts_with('\''))
        return content.substr(0, content.find_first_of("\t\n\f\r ;"));
    const std::size_t end = content.find(content[0], 1);
    return end == content.npos ? std::string_view() : content.substr(1, end - 1);
}

struct Attribute {
    std::string_view name, value;
};

// WHATWG HTML, "prescan a byte stream to determine its encoding"; ASP's directive is one more thing to find.
class Prescan {
 public:
    Prescan(std::string_view bytes, const CodePages& pages) : bytes_(bytes), pages_(pages) {}

    // 0 where nothing is declared.
    unsigned codePage() {
        for (; !atEnd(); ++at_) {
            at_ = std::min(bytes_.find('<', at_), bytes_.size());
            if (const unsigned found = markup()) return found;
        }
        return xmlDeclaration();
    }

 private:
    bool atEnd() const { return at_ >= bytes_.size(); }

    bool startsWith(std::string_view name) const {
        return win::SameName(bytes_.substr(at_, name.size()), name);
    }

    char byteAt(std::size_t offset) const {
        return at_ + offset < bytes_.size() ? bytes_[at_ + offset] : '\0';
    }

    void skipTo(std::size_t place) { at_ = std::min(place, bytes_.size()); }

    // Leaves the place at the last byte of what starts here.
    unsigned markup() {
        if (startsWith("<!--")) {
            const std::size_t end = bytes_.find("-->", at_ + 2);
            skipTo(end == bytes_.npos ? end : end + 2);
            return 0;
        }
        if (startsWith("<meta") && (IsSpace(byteAt(5)) || byteAt(5) == '/')) {
            at_ += 5;
            return meta();
        }
        if (startsWith("<%@")) {
            at_ += 3;
            return directive();
        }
        if (win::IsAsciiLetter(byteAt(byteAt(1) == '/' ? 2 : 1))) {
            skipTo(bytes_.find_first_of("\t\n\f\r >", at_));
            while (attribute()) {}
        } else if (startsWith("<!") || startsWith("</") || startsWith("<?")) {
            skipTo(bytes_.find('>', at_));
        }
        return 0;
    }

    unsigned meta() {
        std::optional<std::string_view> pragma, content, charset;
        while (const auto found = attribute()) {
            if (!pragma && win::SameName(found->name, "http-equiv")) pragma = found->value;
            if (!content && win::SameName(found->name, "content")) content = found->value;
            if (!charset && win::SameName(found->name, "charset")) charset = found->value;
        }
        if (atEnd()) return 0;  // it may go on in another way
        if (charset) return CodePageOfLabel(*charset, pages_);
        if (!content || !pragma || !win::SameName(*pragma, "content-type")) return 0;
        return CodePageOfLabel(CharsetOfContent(*content), pages_);
    }

    unsigned directive() {
        std::optional<std::string_view> number;
        while (const auto found = attribute())
            if (!number && win::SameName(found->name, "codepage")) number = found->value;
        return number && !atEnd() ? CodePageOfNumber(*number, pages_) : 0;
    }

    // "get an attribute"; none too where the bytes end within it
    std::optional<Attribute> attribute() {
        while (IsSpace(byteAt(0)) || byteAt(0) == '/') ++at_;
        const std::size_t start = at_;
        if (byteAt(0) == '=') ++at_;
        skipTo(bytes_.find_first_of("\t\n\f\r />=", at_));
        Attribute result{bytes_.substr(start, at_ - start), {}};
        if (result.name.empty()) return std::nullopt;
        skipSpace();
        if (byteAt(0) == '=') {
            ++at_;
            skipSpace();
            result.value = attributeValue();
        }
        if (atEnd()) return std::nullopt;
        return result;
    }

    void skipSpace() { skipTo(bytes_.find_first_not_of(kSpace, at_)); }

    std::string_view attributeValue() {
        const char quote = byteAt(0);
        if (quote != '"' && quote != '\'') {
            const std::size_t start = at_;
            skipTo(bytes_.find_first_of("\t\n\f\r >", at_));
            return bytes_.substr(start, at_ - start);
        }
        const std::size_t start = ++at_;
        skipTo(bytes_.find(quote, at_));
        const std::size_t end = at_;
        skipTo(end + 1);
        return bytes_.substr(start, end - start);
    }

    // "get an XML encoding", for pages of XHTML that say it nowhere else
    unsigned xmlDeclaration() const {
        if (!bytes_.starts_with("<?xml")) return 0;
        std::string_view rest = bytes_.substr(0, bytes_.find('>'));
        if (rest.size() == bytes_.size()) return 0;
        constexpr std::string_view kName = "encoding";
        const std::size_t name = rest.find(kName);
        if (name == rest.npos) return 0;
        rest = WithoutLeadingSpace(rest.substr(name + kName.size()));
        if (!rest.starts_with('=')) return 0;
        rest = WithoutLeadingSpace(rest.substr(1));
        if (!rest.starts_with('"') && !rest.starts_with('\'')) return 0;
        const std::size_t end = rest.find(rest[0], 1);
        return end == rest.npos ? 0 : CodePageOfLabel(rest.substr(1, end - 1), pages_);
    }

    std::string_view bytes_;
    const CodePages& pages_;
    std::size_t at_ = 0;
};

// What the page says itself, by a mark or in words.
std::optional<Encoding> Said(std::string_view bytes, const CodePages& pages) {
    for (const unsigned codePage : {kUtf8, kUtf16, kUtf16BigEndian}) {
        const Encoding marked{codePage, true};
        if (bytes.starts_with(Encode(marked, {}, pages))) return marked;
    }
    const unsigned declared = Prescan(bytes.substr(0, kDeclared), pages).codePage();
    if (declared == 0) return std::nullopt;
    return Encoding{declared, false};
}

}  // namespace

Encoding EncodingOf(std::string_view bytes, const CodePages& pages) {
    if (const auto said = Said(bytes, pages)) return *said;
    const bool ascii = std::all_of(bytes.begin(), bytes.end(), [](char c) { return (c & 0x80) == 0; });
    return {!ascii && IsUtf8(bytes) ? kUtf8 : pages.ansi(), false};
}

Encoding EncodingToSave(std::u16string_view text, const Encoding& current, const CodePages& pages) {
    if (current.mark) return current;
    // No encoding takes less than a byte for a unit. One more, as the cut may halve a pair.
    const std::u16string_view head = text.substr(0, kDeclared + 1);
    const auto readBack = [&](const Encoding& encoding) {
        return Said(Encode(encoding, WithReferences(encoding, head, pages), pages), pages);
    };
    const std::optional<Encoding> said = readBack(current);
    if (!said || *said == current) return current;
    return !said->mark && readBack(*said) == said ? *said : Encoding{kUtf8, true};
}

}  // namespace document
