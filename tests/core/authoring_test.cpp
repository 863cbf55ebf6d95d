#include <gtest/gtest.h>

#include <set>

#include "authoring/core/preview_path.h"
#include "authoring/core/spell_text.h"
#include "authoring/core/web_colors.h"

namespace {

using authoring::SwatchColor;
using authoring::SwatchPlace;

TEST(WebColors, EachColorOnceInItsBox) {
    EXPECT_EQ(authoring::ColorOfSwatch(0), (SwatchColor{0, 0, 0}));
    EXPECT_EQ(authoring::ColorOfSwatch(11), (SwatchColor{0x33, 0, 0xFF}));
    EXPECT_EQ(authoring::ColorOfSwatch(6 * 12), (SwatchColor{0x66, 0, 0}));
    EXPECT_EQ(authoring::ColorOfSwatch(215), (SwatchColor{0xFF, 0xFF, 0xFF}));
    EXPECT_EQ(authoring::TextOfSwatch(0), "\"#000000\"");
    EXPECT_EQ(authoring::TextOfSwatch(204), "\"#CCFF00\"");
    EXPECT_EQ(authoring::PlaceOfSwatch(0), (SwatchPlace{0, 15, 285}));
    EXPECT_EQ(authoring::PlaceOfSwatch(11), (SwatchPlace{3465, 15, 285}));
    EXPECT_EQ(authoring::PlaceOfSwatch(204), (SwatchPlace{0, 5115, 285}));
    std::set<std::string> texts;
    for (int index = 0; index < authoring::kSwatchCount; ++index)
        texts.insert(authoring::TextOfSwatch(index));
    EXPECT_EQ(texts.size(), 216U) << "a colour comes twice";
}

std::string Shown(std::string_view path, bool changed, const std::string& existing = "") {
    return authoring::PreviewFile(path, changed, [&](const std::string& file) { return file == existing; });
}

TEST(Preview, AnEditedPageIsShownFromACopyBesideIt) {
    EXPECT_EQ(Shown("C:\\site\\index.htm", true), "C:\\site\\$$index.htm");
    EXPECT_EQ(Shown("C:\\site\\index.htm", false), "C:\\site\\index.htm");
    EXPECT_EQ(Shown("C:\\index.htm\\index.htm", true), "C:\\index.htm\\$$index.htm");
    EXPECT_EQ(Shown("C:\\a\\a", true), "C:\\a\\$$a.htm");
    EXPECT_EQ(Shown("C:/site/index.htm", true), "C:/site/$$index.htm");
    EXPECT_EQ(Shown("C:index.htm", true), "C:$$index.htm");
    EXPECT_EQ(Shown("index.htm", true), "$$index.htm");
    for (const bool changed : {false, true}) EXPECT_EQ(Shown("", changed), "");
}

TEST(Preview, ANameWithoutADotInItsLastFiveCharactersGetsOne) {
    EXPECT_EQ(Shown("C:\\my.site\\readme", true), "C:\\my.site\\$$readme.htm");
    EXPECT_EQ(Shown("C:\\my.site\\ab", false), "C:\\my.site\\ab.htm");
    EXPECT_EQ(Shown("C:\\a.html", false), "C:\\a.html");
    EXPECT_EQ(Shown("C:\\a.xhtml", false), "C:\\a.xhtml.htm");
}

TEST(Preview, APageOfTheUsersIsNeverTheCopy) {
    EXPECT_EQ(Shown("C:\\site\\readme", false, "C:\\site\\readme.htm"), "C:\\site\\$$readme.htm");
}

TEST(Preview, InternetExplorerIsKnownByItsExactName) {
    EXPECT_TRUE(authoring::IsInternetExplorer("C:\\Program Files\\Internet Explorer\\iexplore.exe"));
    EXPECT_FALSE(authoring::IsInternetExplorer("C:\\Program Files\\Internet Explorer\\IEXPLORE.EXE"));
    EXPECT_FALSE(authoring::IsInternetExplorer(""));
}

TEST(Spell, ParagraphMarksBecomeLineEndsAndTheLastOneGoes) {
    EXPECT_EQ(authoring::TextFromWordProcessor("one\rtwo\r"), "one\r\ntwo");
    EXPECT_EQ(authoring::TextFromWordProcessor("one\r\ntwo\r\n"), "one\r\ntwo");
    EXPECT_EQ(authoring::TextFromWordProcessor("one\r\r\r"), "one\r\n\r\n");
    EXPECT_EQ(authoring::TextFromWordProcessor("one"), "o");
    for (const char* text : {"", "x", "\r", "\r\n"}) EXPECT_EQ(authoring::TextFromWordProcessor(text), "");
}

}  // namespace
