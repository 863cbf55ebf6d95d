#include "authoring/templates/core/template_list.h"

#include <gtest/gtest.h>

namespace {

using namespace authoring;

TemplateList FullList() {
    TemplateList list;
    for (std::size_t i = 0; i < kTemplateSlots; ++i)
        list[i] = {"t" + std::to_string(i) + ".htm", "Template " + std::to_string(i)};
    return list;
}

TEST(Templates, EntriesWithoutAFileAreHiddenAndDroppedWhenTheMenuIsRebuilt) {
    const auto isThere = [](const std::string& name) { return name != "gone"; };
    // An empty name would be the folder itself, which exists. A name is dropped only directly after itself.
    const TemplateList list = {Template{"a", "1"}, {"gone", "2"}, {"a", "3"}, {"no ID", ""},
                               {"b", "4"},         {"", "5"},     {"a", "6"}, {"c", "7"}};
    EXPECT_EQ(ShownTemplates(list, isThere),
              (TemplateList{list[0], {}, {}, {}, list[4], {}, list[6], list[7]}));
    EXPECT_EQ(RebuiltTemplates(list, isThere), (TemplateList{list[0], list[4], list[6], list[7]}));
    EXPECT_EQ(OfferedSlots(list), (std::vector<std::size_t>{0, 1, 2, 4, 5, 6, 7}));
}

TEST(Templates, WhatIsMissingOrInUseIsReported) {
    const std::string goBack =
        "\r\nPlease go back and enter a new name,\r\nor delete the template with that name\r\nunder the "
        "ORGANIZE TEMPLATES menu.";
    const TemplateList list = FullList();
    EXPECT_EQ(NewTemplateProblem(list, "", ""), "Please enter a filename for the template.");
    EXPECT_EQ(NewTemplateProblem(list, "new.htm", ""), "Please enter a ID for the template.");
    EXPECT_EQ(NewTemplateProblem(list, "t8.htm", "Template 0"),
              "That template file is already in use." + goBack);
    EXPECT_EQ(NewTemplateProblem(list, "new.htm", "Template 8"),
              "That template name is already in use." + goBack);
    EXPECT_EQ(NewTemplateProblem(list, "T8.htm", "TEMPLATE 8"), "");
    EXPECT_NE(NewTemplateProblem({}, "..\\new.htm", "New"), "");
    const auto always = [](const std::string&, const std::string&) { return true; };
    EXPECT_EQ(TemplateOfSameFile(list, "t0.htm", always), &list[1]) << "the first under another name";
}

TEST(Templates, OnlyPlainFileNamesPass) {
    for (const char* name :
         {"template1.htm", "My Page", " leading.htm", "a..b", ".htaccess", "CONSOLE.htm", "COM", "COM0",
          "COM10.htm", "COM\u2074", "lpt0.txt", "CLOCK$", "xCON", "NULL", "Gr\u00FC\u00DF.htm"}) {
        EXPECT_EQ(FileNameProblem(name), "") << name;
    }
    for (const char* name :
         {"..\\x.htm", "x/y.htm",   "C:x.htm",     "x.htm:stream", "*.*",         "a?.htm", "a\"b",
          "a<",        "a>",        "a|b",         "a\tb",         ".",           "..",     "a.htm.",
          "a.htm ",    " ",         "CON",         "nul.htm",      "Aux .txt",    "com1",   "LPT9.a.b",
          "lpt\u00B2", "lpt\u00B9", "COM\u00B3.a", "CONIN$",       "Aux .tar.gz", "conout$"}) {
        EXPECT_NE(FileNameProblem(name), "") << name;
    }
}

}  // namespace
