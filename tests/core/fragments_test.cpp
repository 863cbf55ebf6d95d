#include <gtest/gtest.h>

#include "authoring/core/modScripts.h"
#include "authoring/core/tag_fragments.h"
#include "core/kept_files.h"

namespace {

using authoring::TagMenu;

const std::map<std::string, TagMenu> kMenus = {
    {"Basic", TagMenu::Basic}, {"BodyInc", TagMenu::BodyInc}, {"Mod", TagMenu::Mod},
    {"Font", TagMenu::Font},   {"Img", TagMenu::Img},         {"Href", TagMenu::Href},
    {"Rule", TagMenu::Rule},   {"Align", TagMenu::Align},     {"Table", TagMenu::Table},
    {"FSet", TagMenu::FSet},   {"Frame", TagMenu::Frame},     {"Form", TagMenu::Form},
    {"Input", TagMenu::Input}, {"Ls", TagMenu::Ls},           {"Ol", TagMenu::Ol},
    {"DLs", TagMenu::DLs},     {"Special", TagMenu::Special},
};

TEST(TagFragments, EveryOneIsAsListedAndNothingElseIsThere) {
    std::map<std::string, std::string> made;
    for (const auto& [name, menu] : kMenus) {
        for (int index = -2; index < 20; ++index) {
            const std::string_view fragment = authoring::TagFragment(menu, index);
            if (!fragment.empty()) made[name + " " + std::to_string(index)] = fragment;
        }
    }
    EXPECT_EQ(made, kept::Listing("core/data/tag_fragments.txt"));
}

TEST(TagFragments, FontSizeIsJudgedByItsFirstCharacterAndTakenWhole) {
    for (const char* reply : {"1", "7", "75", "3px", "12"}) EXPECT_TRUE(authoring::IsFontSizeReply(reply));
    for (const char* reply : {"", "0", "8", "x", " 3", "-1"}) EXPECT_FALSE(authoring::IsFontSizeReply(reply));
    EXPECT_EQ(authoring::FontSizeFragment("3px"), "<FONT size=3px></FONT>");
}

TEST(TagFragments, TheDayOfADateHasTwoDigits) {
    EXPECT_EQ(authoring::DateFragment("November", 5, 2026), "November 05, 2026");
    EXPECT_EQ(authoring::DateFragment("M\xE4rz", 31, 987), "M\xE4rz 31, 0987");
}

TEST(Scripts, BlocksAndMenusAreAsListedAndNothingElseIsThere) {
    std::map<std::string, std::string> made;
    std::string keywords;
    for (int index = -2; index < 10; ++index) {
        const std::string_view block = modScripts::ScriptBlock(index);
        if (!block.empty()) made["script " + std::to_string(index)] = block;
        const std::string keyword(modScripts::DropMenuKeyword(index));
        if (!keyword.empty()) made[keyword] = modScripts::MakeDropMenu(keyword);
        keywords += keyword + " ";
    }
    EXPECT_EQ(made, kept::Listing("core/data/scripts.txt"));
    EXPECT_EQ(keywords, "  drop goBtn Wnd dCbo       ");
    for (const char* keyword : {"", "Drop", "drop ", "dcbo", "wnd"}) {
        EXPECT_EQ(modScripts::MakeDropMenu(keyword), "");
    }
}

}  // namespace
