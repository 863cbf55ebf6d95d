#include <gtest/gtest.h>

#include <array>
#include <set>

#include "authoring/core/preview_path.h"
#include "authoring/core/spell_text.h"
#include "authoring/core/web_colors.h"

namespace {

TEST(WebColors, EachColorOnceInItsBox) {
    EXPECT_EQ(authoring::ColorOfSwatch(6 * 12 + 11), (authoring::SwatchColor{0x99, 0, 0xFF}));
    EXPECT_EQ(authoring::TextOfSwatch(204), "\"#CCFF00\"");
    EXPECT_EQ(authoring::PlaceOfSwatch(11), (authoring::SwatchPlace{3465, 15, 285}));
    EXPECT_EQ(authoring::PlaceOfSwatch(204), (authoring::SwatchPlace{0, 5115, 285}));
    std::set<std::string> texts;
    for (int index = 0; index < authoring::kSwatchCount; ++index)
        texts.insert(authoring::TextOfSwatch(index));
    EXPECT_EQ(texts.size(), 216U) << "a colour comes twice";
}

TEST(Preview, AnEditedPageIsShownFromACopyBesideItWhoseNameABrowserKnows) {
    // The page's own file, and what is shown of it when it is edited and when it is not.
    const std::array<const char*, 3> kPages[] = {
        {"C:\\site\\index.htm", "C:\\site\\$$index.htm", "C:\\site\\index.htm"},
        {"C:\\index.htm\\index.htm", "C:\\index.htm\\$$index.htm", "C:\\index.htm\\index.htm"},
        {"C:/site/a.html", "C:/site/$$a.html", "C:/site/a.html"},
        {"C:index.htm", "C:$$index.htm", "C:index.htm"},
        {"C:\\my.site\\ab", "C:\\my.site\\$$ab.htm", "C:\\my.site\\ab.htm"},
        {"C:\\a.xhtml", "C:\\$$a.xhtml.htm", "C:\\a.xhtml.htm"},
        {"", "", ""}};
    const auto nothing = [](const std::string&) { return false; };
    for (const auto& [path, edited, unchanged] : kPages) {
        EXPECT_EQ(authoring::PreviewFile(path, true, nothing), edited);
        EXPECT_EQ(authoring::PreviewFile(path, false, nothing), unchanged);
    }
    const auto users = [](const std::string& file) { return file == "C:\\readme.htm"; };
    EXPECT_EQ(authoring::PreviewFile("C:\\readme", false, users), "C:\\$$readme.htm");
}

TEST(Preview, InternetExplorerIsKnownByItsExactName) {
    EXPECT_TRUE(authoring::IsInternetExplorer("C:\\Program Files\\Internet Explorer\\iexplore.exe"));
    EXPECT_FALSE(authoring::IsInternetExplorer("C:\\Program Files\\Internet Explorer\\IEXPLORE.EXE"));
}

TEST(Spell, ParagraphMarksBecomeLineEndsAndTheLastOneGoes) {
    EXPECT_EQ(authoring::TextFromWordProcessor("one\rtwo\r"), "one\r\ntwo");
    EXPECT_EQ(authoring::TextFromWordProcessor("one\r\ntwo\r\n"), "one\r\ntwo");
    for (const char* text : {"", "x", "\r", "\r\n"}) EXPECT_EQ(authoring::TextFromWordProcessor(text), "");
}

}  // namespace
