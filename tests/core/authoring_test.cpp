#include <gtest/gtest.h>

#include <array>
#include <set>

#include "authoring/colours/core/web_colors.h"
#include "authoring/preview/core/preview_path.h"
#include "help/core/help_texts.h"

namespace {

TEST(WebColors, EachColorHasOneBoxAtItsPlace) {
    EXPECT_EQ(authoring::ColorOfSwatch(6 * 12 + 11), (authoring::SwatchColor{0x99, 0, 0xFF}));
    EXPECT_EQ(authoring::TextOfSwatch(204), "\"#CCFF00\"");
    EXPECT_EQ(authoring::PlaceOfSwatch(11), (authoring::SwatchPlace{3465, 15, 285}));
    EXPECT_EQ(authoring::PlaceOfSwatch(204), (authoring::SwatchPlace{0, 5115, 285}));
    std::set<std::string> texts;
    for (int index = 0; index < authoring::kSwatchCount; ++index)
        texts.insert(authoring::TextOfSwatch(index));
    EXPECT_EQ(texts.size(), 216U) << "a colour comes twice";
}

TEST(HelpTexts, TheEditingButtonsShareTheirWordsAndNoOthersDo) {
    std::set<std::string> texts;
    for (std::size_t button = 0; button < 17; ++button) texts.insert(help::ButtonWords(button));
    EXPECT_EQ(texts.size(), 14U);
    for (const std::size_t editing : {5U, 6U, 7U, 8U})
        EXPECT_EQ(help::ButtonWords(editing).substr(0, 7), "Editing");
}

TEST(Preview, ACopyLiesBesideThePageUnderANameThatABrowserKnows) {
    // The page's own file, what is shown of it when it is edited and when it is not, and where that is
    // another's.
    const std::array<const char*, 4> kPages[] = {
        {"C:\\site\\index.htm", "C:\\site\\$$index.htm", "C:\\site\\$$index.htm", "C:\\site\\$$$index.htm"},
        {"C:\\index.htm\\index.htm", "C:\\index.htm\\$$index.htm", "C:\\index.htm\\$$index.htm",
         "C:\\index.htm\\$$$index.htm"},
        {"C:/site/a.html", "C:/site/$$a.html", "C:/site/$$a.html", "C:/site/$$$a.html"},
        {"C:index.htm", "C:$$index.htm", "C:$$index.htm", "C:$$$index.htm"},
        {"C:\\my.site\\ab", "C:\\my.site\\$$ab.htm", "C:\\my.site\\ab.htm", "C:\\my.site\\$$ab.htm"},
        {"C:\\a.xhtml", "C:\\$$a.xhtml.htm", "C:\\a.xhtml.htm", "C:\\$$a.xhtml.htm"}};
    for (const auto& [path, edited, unedited, taken] : kPages) {
        EXPECT_EQ(authoring::PreviewCopy(path, true, 0), edited);
        EXPECT_EQ(authoring::PreviewCopy(path, false, 0), unedited);
        EXPECT_EQ(authoring::PreviewCopy(path, false, 1), taken);
    }
}

}  // namespace
