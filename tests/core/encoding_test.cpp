#include "document/core/encoding.h"

#include <gtest/gtest.h>

#include <array>
#include <set>
#include <vector>

#include "core/iconv_code_pages.h"
#include "document/core/codec.h"
#include "files/core/page_lines.h"

namespace {

using document::Encoding;
using document::kUtf16;
using document::kUtf16BigEndian;
using document::kUtf8;
using namespace std::string_literals;

// Has every code page except some, so that labels are tested whatever the machine has.
class AllButSome : public IconvCodePages {
 public:
    explicit AllButSome(std::set<unsigned> missing = {}) : missing_(std::move(missing)) {}
    bool has(unsigned codePage) const override { return missing_.count(codePage) == 0; }
    std::u16string toUnicode(unsigned, std::string_view bytes) const override {
        return {bytes.begin(), bytes.end()};
    }
    std::string fromUnicode(unsigned, std::u16string_view text) const override {
        std::string bytes;
        for (const char16_t unit : text) bytes += static_cast<char>(unit);
        return bytes;
    }

 private:
    std::set<unsigned> missing_;
};

constexpr unsigned kUndeclared = 1252;

unsigned Declared(std::string_view bytes, const document::CodePages& pages = IconvCodePages()) {
    const Encoding encoding = EncodingOf(bytes, pages);
    EXPECT_FALSE(encoding.mark);
    return encoding.codePage;
}

TEST(EncodingOf, TakesTheMarkThenTheDeclarationThenValidUtf8ThenTheSystemsCodePage) {
    const IconvCodePages western, japanese(932), utf8(kUtf8);
    const std::string declares = "<meta charset=windows-1251>";
    EXPECT_EQ(EncodingOf("\xEF\xBB\xBF" + declares, western), (Encoding{kUtf8, true}));
    EXPECT_EQ(EncodingOf("\xFF\xFE" + declares, western), (Encoding{kUtf16, true}));
    EXPECT_EQ(EncodingOf("\xFE\xFF" + declares, western), (Encoding{kUtf16BigEndian, true}));
    EXPECT_EQ(EncodingOf(declares + "\xC3\xA9", western), (Encoding{1251, false}));
    EXPECT_EQ(EncodingOf("caf\xC3\xA9", japanese), (Encoding{kUtf8, false}));
    for (const char* bytes : {"caf\xE9", "cafe", "", "\xC3", "\xC0\xAF", "\xED\xA0\x80", "\xF4\x90\x80\x80",
                              "\xE0\x80\xAF", "\xF0\x8F\xBF\xBF", "\xC3\xA9 \x80"}) {
        EXPECT_EQ(EncodingOf(bytes, western), (Encoding{1252, false})) << bytes;
        EXPECT_EQ(EncodingOf(bytes, japanese), (Encoding{932, false})) << bytes;
    }
    EXPECT_EQ(EncodingOf("caf\xE9", utf8), (Encoding{kUtf8, false}));
}

TEST(EncodingOf, KnowsLabelsAndTakesTheNearestCodePageThatTheSystemHas) {
    const AllButSome all, old({54936, 51932, 10017}), none({932, 949, 54936, 936});
    const auto of = [](const std::string& label, const document::CodePages& pages) {
        return Declared("<meta charset='" + label + "'>", pages);
    };
    for (const auto& [label, codePage] : std::vector<std::pair<const char*, unsigned>>{
             {"UTF-8", kUtf8},
             {"UTF-16", kUtf8},  // a declaration that can be read is not in UTF-16
             {"utf-16be", kUtf8},
             {" ISO-8859-2\n", 28592},
             {"iso-8859-8-i", 38598},
             {"tis-620", 874},
             {"Windows-31J", 932},
             {"EUC-JP", 51932},
             {"gb_2312-80", 936},
             {"gb18030", 54936},
             {"ks_c_5601-1987", 949},
             {"big5-hkscs", 950},
             {"koi8-u", 21866},
             {"866", 866},
             {"x-mac-ukrainian", 10017}})
        EXPECT_EQ(of(label, all), codePage) << label;
    for (const unsigned page : {1250U, 1251U, 1252U, 1253U, 1254U, 1255U, 1256U, 1257U, 1258U})
        EXPECT_EQ(of("windows-" + std::to_string(page), all), page);
    for (const unsigned part : {2U, 3U, 4U, 5U, 6U, 7U, 8U, 13U, 15U})
        EXPECT_EQ(of("iso-8859-" + std::to_string(part), all), 28590 + part);
    EXPECT_EQ(of("gb18030", old), 936u);
    EXPECT_EQ(of("euc-jp", old), 20932u);
    EXPECT_EQ(of("x-mac-cyrillic", old), 10007u);

    // The western labels mean the default code page of the tests, so they are tried under another one.
    const IconvCodePages japanese(932);
    for (const char* label : {"iso-8859-1", "US-ASCII", "latin1", "x-user-defined"})
        EXPECT_EQ(of(label, japanese), 1252u) << label;
    for (const char* label : {"", " ", "-", "utf", "utf-8x", "x-sjis sjis", "iso-2022-jp", "hz-gb-2312",
                              "replacement", "iso-2022-kr", "shift_jis", "gb18030", "euc-kr"})
        EXPECT_EQ(of(label, none), kUndeclared) << label;
}

TEST(EncodingOf, ReadsDeclarationsAsABrowserDoes) {
    for (const char* page :
         {"<META CHARSET=Windows-1251>",
          "<meta\tcharset = \"windows-1251\"/>",
          "<meta/charset='windows-1251'>",
          "<html><head><title a='>'>x</title><meta name=x charset=windows-1251 >",
          "<meta http-equiv=Content-Type content='text/html; charset=windows-1251'>",
          "<meta content=\"CHARSET = 'windows-1251' ;x\" HTTP-EQUIV=\"content-type\">",
          "<meta http-equiv=content-type content='charset charset=windows-1251;q'>",
          "<!-- <meta charset=utf-8> --><meta charset=windows-1251>",
          "<!--><meta charset=windows-1251>-->",
          "<a title='<meta charset=utf-8>'><meta charset=windows-1251>",
          "</a title='<meta charset=utf-8>'><?x <meta ?><!doctype <meta charset=utf-8><meta "
          "charset=windows-1251>",
          "<meta charset=nonsense><meta charset=iso-2022-jp><meta charset=windows-1251><meta charset=utf-8>",
          "<meta charset=windows-1251 charset=utf-8>",
          "<meta http-equiv=content-type content='charset=utf-8' charset=windows-1251>",
          "<metadata charset=utf-8><meta =charset=utf-8><meta charset=windows-1251>",
          "<%@ LANGUAGE=\"VBSCRIPT\" CODEPAGE=\"1251\" %>\r\n<meta charset=utf-8>",
          "<%@codepage=1251%>",
          "<%@ CodePage=99999 %><%@ Page CodePage = 1251 %>",
          "<?xml version='1.0' encoding=\"windows-1251\"?><html>",
          "<?xml version='1.0' encoding='utf-8'?><meta charset=windows-1251>"})
        EXPECT_EQ(Declared(page), 1251u) << page;

    const std::string whole = "<meta charset='utf-8' ";
    for (std::size_t end = 0; end <= whole.size(); ++end)
        EXPECT_EQ(Declared(whole.substr(0, end)), kUndeclared) << end;
    for (const char* page :
         {"<!", "<meta charset=utf-8", "<meta charset='utf-8>", "<meta name=charset content=utf-8>",
          "<meta content='text/html; charset=utf-8'>", "<meta http-equiv=refresh content='charset=utf-8'>",
          "<meta http-equiv=content-type content='charset=\"utf-8'>",
          "<meta http-equiv=content-type content='charset'>", "<!-- <meta charset=utf-8>", "charset=utf-8",
          "<m charset=utf-8>", "<%@ codepage=65001", "<% codepage=65001 %>", " <?xml encoding='utf-8'?>",
          "<?xml encoding='utf-8'", "<?xml encoding=utf-8?>"})
        EXPECT_EQ(Declared(page), kUndeclared) << page;
    for (const std::string codePage : {"", "0", "1", "37", "65000", "4294967296065001"})
        EXPECT_EQ(Declared("<%@ codepage=" + codePage + " %>"), kUndeclared) << codePage;
    EXPECT_EQ(Declared("<%@ codepage=1200 %>"), kUtf8);
    EXPECT_EQ(Declared("<%@ codepage=3 %>", AllButSome()),
              kUndeclared);  // the thread's code page

    const std::string meta = "<meta charset=windows-1251>";
    EXPECT_EQ(Declared(std::string(1024 - meta.size(), ' ') + meta), 1251u);
    EXPECT_EQ(Declared(std::string(1025 - meta.size(), ' ') + meta), kUndeclared);
}

constexpr Encoding kAll[] = {{1252},        {1251},         {932},
                             {936},         {950},          {54936},
                             {kUtf8},       {kUtf16},       {kUtf16BigEndian},
                             {kUtf8, true}, {kUtf16, true}, {kUtf16BigEndian, true}};

TEST(Codec, GivesEveryByteBackInEveryEncoding) {
    const IconvCodePages pages;
    std::string everyByte, everyPair, words;
    for (int i = 0; i < 256; ++i) everyByte += static_cast<char>(i);
    for (int i = 0x8000; i < 0x10000; ++i)
        everyPair += {static_cast<char>(i >> 8), static_cast<char>(i), '\n'};
    for (int i = 0; i < 900; ++i)
        words += "\x83\x65\x83\x58\x83\x67";  // blocks can be cut only where a character ends
    for (const Encoding& encoding : kAll) {
        const std::string mark = Encode(encoding, {}, pages);
        for (const std::string& bytes :
             {""s, everyByte, everyPair, words, words + '\xFD' + words, "\xED\x40\xFA\x5C"s,
              "caf\xC3\xA9 \xC3 \xED\xA0\x80\xF0\x9F\x98\x80\xF4\x90\x80\x80\xF0\x9F\x98"s,
              "\xEF\xBB\xBF\xEF\xBB\xBF"s, "\xFF\xFE\xFF\xFE\x0A"s, "\x3D\xD8\x00\xDE\x3D\xD8\x3D\xD8\x00"s,
              "\xD8\x3D\xDE\x00\xDE\x00\xD8"s, "a\0b\x0C\x0B\r\n\n\r\xE2\x80\xA8"s, "\x81"s,
              "\x81\x30\x81\x30\x84\x31\xA4\x37\x81\x30"s}) {
            const std::u16string text = Decode(encoding, mark + bytes, pages);
            EXPECT_EQ(Encode(encoding, text, pages), mark + bytes) << encoding.codePage;
        }
    }
}

TEST(Codec, KeepsOnlyWhatIsNoCharacterAsRawBytes) {
    const IconvCodePages pages;
    const auto decode = [&](unsigned codePage, const std::string& bytes) {
        return Decode({codePage}, bytes, pages);
    };
    EXPECT_EQ(decode(1252, "\x80\xE9\x81"), u"\u20AC\u00E9\xDC81");
    EXPECT_EQ(decode(932, "\x95\x5C\xED\x40\xFA\x5C"),
              u"\u8868\xDCED\xDC40\u7E8A");  // the codes of NEC and IBM for one letter
    EXPECT_EQ(decode(932, "<b>\xE9</b>\xE9\" \x81"), u"<b>\xDCE9</b>\xDCE9\" \xDC81");
    EXPECT_EQ(decode(936, "\xB1\xED\x81"), u"\u8868\xDC81");
    EXPECT_EQ(decode(950, "\xAA\xED\xFF"), u"\u8868\xDCFF");
    EXPECT_EQ(decode(54936, "\x94\x39\xFC\x36\x81"), u"\U0001F600\xDC81");
    EXPECT_EQ(decode(kUtf8, "\xC3\xA9\xC3.\xED\xA0\x80\xF0\x9F\x98\x80\xF4\x90\x80\x80"),
              u"\u00E9\xDCC3.\xDCED\xDCA0\xDC80\U0001F600\xDCF4\xDC90\xDC80\xDC80");
    EXPECT_EQ(decode(kUtf8, "\0\xEF\xBF\xBD\xE2\x80\xA8\xEF\xBB\xBF"s), u"\0\uFFFD\u2028\uFEFF"s);
    EXPECT_EQ(decode(kUtf16, "\x3D\xD8\x00\xDE\x3D\xD8.\0\x41\xDC\x0A"s),
              u"\U0001F600\xDC3D\xDCD8.\xDC41\xDCDC\xDC0A");
    EXPECT_EQ(decode(kUtf16BigEndian, "\xD8\x3D\xDE\x00\xD8\x3D\0.\xDC"s), u"\U0001F600\xDCD8\xDC3D.\xDCDC");

    // One bad byte in a long page spoils no other, wherever the blocks are cut.
    std::string page;
    for (int i = 0; i < 3000; ++i) page += "\x95\x5C";
    const std::u16string letters(3000, u'\u8868');
    EXPECT_EQ(decode(932, page + '\xFD' + page), letters + u'\xDCFD' + letters);
}

TEST(Codec, KeepsOnlyAsciiAsTextWhereConversionDependsOnMoreThanTheCharacter) {
    class ByTheLength : public AllButSome {
        std::string fromUnicode(unsigned codePage, std::u16string_view text) const override {
            return AllButSome::fromUnicode(codePage, text.substr(0, 5000));
        }
    } const pages;
    std::string bytes;
    for (int i = 0; i < 2000; ++i) bytes += "caf\xE9\n";
    const std::u16string text = Decode({1252}, bytes, pages);
    EXPECT_EQ(text.substr(0, 10), u"caf\xDCE9\ncaf\xDCE9\n");
    EXPECT_EQ(Encode({1252}, text, pages), bytes);
}

TEST(Codec, ChangesOnlyTheBytesOfWhatIsEdited) {
    const IconvCodePages pages;
    for (const unsigned codePage : {932U, 1252U, kUtf8}) {
        const std::string before = "<p>\xC3\xE9\xED\x40\x8F", after = "\n\xFA\x5C\x81</p>\xC3";
        std::u16string text = Decode({codePage}, before + "<i>" + after, pages);
        text.replace(text.find(u"<i>"), 3, u"<b>\r\n");
        EXPECT_EQ(Encode({codePage}, text, pages), before + "<b>\r\n" + after) << codePage;
    }
    // Text that is typed behind half a unit at the end of a file has to stay readable.
    EXPECT_EQ(Encode({kUtf16}, Decode({kUtf16}, "a\0\n"s, pages) + u"bc", pages), "a\0\n\0b\0c\0"s);
    EXPECT_EQ(Encode({kUtf16BigEndian}, Decode({kUtf16BigEndian}, "\0a\n"s, pages) + u"b", pages),
              "\0a\0\n\0b"s);
}

TEST(Codec, WritesALoneSurrogateThatIsNoByteAsAReplacement) {
    const IconvCodePages pages;
    const std::u16string text = u"a\xD83D.\xDD00\xD83D";
    EXPECT_EQ(Encode({kUtf8}, text, pages), "a\xEF\xBF\xBD.\xEF\xBF\xBD\xEF\xBF\xBD");
    EXPECT_EQ(Encode({kUtf16}, text, pages), "a\0\xFD\xFF.\0\xFD\xFF\xFD\xFF"s);
    EXPECT_EQ(Encode({54936}, text, pages), "a\x84\x31\xA4\x37.\x84\x31\xA4\x37\x84\x31\xA4\x37");
    EXPECT_EQ(Encode({1252}, text, pages), "a?.??");
}

TEST(WithReferences, KeepsWhatTheEncodingHoldsAndTheRawBytes) {
    const IconvCodePages pages;
    const auto with = [&](unsigned codePage, std::u16string_view text) {
        return WithReferences({codePage}, text, pages);
    };
    EXPECT_EQ(with(1252, u"Ma\u0142e \u00E9\u20AC \U0001F600\xDC81?"),
              u"Ma&#322;e \u00E9\u20AC &#128512;\xDC81?");
    EXPECT_EQ(with(932, u"\u8868\u00E9\xDCED\xDC40"), u"\u8868&#233;\xDCED\xDC40");
    EXPECT_EQ(with(1252, u"\xD83D\xDD00.\xDD00\xD83D"), u"&#128256;.&#65533;&#65533;");
    for (const unsigned codePage : {54936U, kUtf8, kUtf16})
        EXPECT_EQ(with(codePage, u"\u0142\xD83D\xDCED!\xD83D\xD83D\xDCED.\xDCFF\xDD00"),
                  u"\u0142\xD83D\xDCED!\uFFFD\xD83D\xDCED.\xDCFF\uFFFD");

    // Pairs that lie across the pieces in which a long text is converted.
    std::u16string smiles = u"a", references = u"a";
    for (int i = 0; i < 200; ++i) {
        smiles += i == 100 ? u"\xD83D\xD83D\xDE00" : u"\U0001F600";
        references += i == 100 ? u"&#65533;&#128512;" : u"&#128512;";
    }
    EXPECT_EQ(with(1251, smiles), references);

    EXPECT_TRUE(Holds({1251}, U'\u0416', pages) && Holds({1252}, 0xDC81, pages) &&
                Holds({kUtf8}, 0x10FFFF, pages));
    EXPECT_FALSE(Holds({1252}, U'\u0416', pages) || Holds({kUtf8}, 0xD83D, pages) ||
                 Holds({54936}, 0x110000, pages));
}

TEST(EncodingToSave, KeepsAMarkThenFollowsTheDeclarationThenStays) {
    const IconvCodePages pages;
    const std::u16string utf8 = u"<meta charset=utf-8>\u0416";
    EXPECT_EQ(EncodingToSave(utf8, {1251}, pages), (Encoding{kUtf8}));
    EXPECT_EQ(EncodingToSave(utf8, {kUtf16, true}, pages), (Encoding{kUtf16, true}));
    EXPECT_EQ(EncodingToSave(u"<meta charset=windows-1251>", {kUtf8, true}, pages), (Encoding{kUtf8, true}));
    EXPECT_EQ(EncodingToSave(u"<meta charset=iso-2022-jp>", {1251}, pages), (Encoding{1251}));
    EXPECT_EQ(EncodingToSave(u"<%@ CodePage=932 %>", {kUtf8}, pages), (Encoding{932}));
}

TEST(EncodingToSave, ChoosesWhatThePageIsReadBackIn) {
    const IconvCodePages pages;
    const std::u16string zhe(600, u'\u0416');
    // Behind 600 letters: at byte 622 in 1251, at byte 1,222 in UTF-8, and later where they are references.
    const auto saved = [&](const std::u16string& text, Encoding current) {
        const Encoding encoding = EncodingToSave(text, current, pages);
        const std::u16string written = WithReferences(encoding, text, pages);
        const std::string bytes = Encode(encoding, written, pages);
        EXPECT_EQ(EncodingOf(bytes, pages), encoding);
        EXPECT_EQ(Decode(encoding, bytes, pages), written);
        return encoding;
    };
    EXPECT_EQ(saved(zhe + u"<meta charset=windows-1251>", {1251}), (Encoding{1251}));
    EXPECT_EQ(saved(zhe + u"<meta charset=windows-1251>", {kUtf8}), (Encoding{kUtf8}));
    EXPECT_EQ(saved(zhe + u"<meta charset=utf-8>", {1251}), (Encoding{kUtf8, true}));
    EXPECT_EQ(saved(zhe.substr(300) + u"<meta charset=utf-8>", {1251}), (Encoding{kUtf8}));
    EXPECT_EQ(saved(zhe.substr(300) + u"<meta charset=windows-1252>", {1251}), (Encoding{kUtf8, true}));
    // Texts whose first bytes would be taken for a mark.
    EXPECT_EQ(saved(u"\u00FF\u00FE<meta charset=windows-1252>", {1252}), (Encoding{kUtf8, true}));
    EXPECT_EQ(saved(u"\u00EF\u00BB\u00BF", {1252}), (Encoding{kUtf8, true}));
    EXPECT_EQ(saved(u"\uFEFF<meta charset=utf-8>", {1252}), (Encoding{kUtf8, true}));
}

TEST(PageLines, EndWithCrLfWhateverLineBreakTheyHad) {
    const files::TerminatedLines lines = files::TerminateLines(u"a\r\nb\r\r\nc\rd\n\ne\r\r");
    EXPECT_EQ(lines.text, u"a\r\nb\r\nc\r\nd\r\n\r\ne\r\n\r\n\r\n");
    EXPECT_EQ(lines.count, 8U);
}

}  // namespace
