#include <gtest/gtest.h>

#include "authoring/tags/core/modScripts.h"
#include "authoring/tags/core/tag_fragments.h"
#include "core/kept_files.h"

namespace {

using authoring::TagMenu;

// In the order of TagMenu.
const char* const kMenus[] = {"Basic", "BodyInc", "Mod",  "Font",  "Img", "Href", "Rule", "Align",  "Table",
                              "FSet",  "Frame",   "Form", "Input", "Ls",  "Ol",   "DLs",  "Special"};

// A text below its name, with an arrow for each CR; nothing for an empty text.
std::string Listed(const std::string& name, std::string_view text) {
    std::string shown = "== " + name + "\n";
    for (const char c : text) shown += c == '\r' ? "\xE2\x86\xB5" : std::string(1, c);
    return text.empty() ? "" : shown + "\n";
}

TEST(TagFragments, AreExactlyThoseListed) {
    std::string made;
    for (int menu = 0; menu <= static_cast<int>(TagMenu::Special); ++menu) {
        for (int index = -2; index < 20; ++index) {
            made += Listed(kMenus[menu] + (" " + std::to_string(index)),
                           authoring::TagFragment(static_cast<TagMenu>(menu), index));
        }
    }
    EXPECT_EQ(made, kept::Read("core/data/tag_fragments.txt"));
}

TEST(TagFragments, FontSizeIsCheckedByItsFirstCharacterAndUsedWhole) {
    for (const char* reply : {"1", "7", "75", "3px", "12"}) EXPECT_TRUE(authoring::IsFontSizeReply(reply));
    for (const char* reply : {"", "0", "8", "x", " 3", "-1"}) EXPECT_FALSE(authoring::IsFontSizeReply(reply));
    EXPECT_EQ(authoring::FontSizeFragment("3px"), "<FONT size=3px></FONT>");
}

TEST(TagFragments, TheDayOfADateHasTwoDigits) {
    EXPECT_EQ(authoring::DateFragment("November", 5, 2026), "November 05, 2026");
    EXPECT_EQ(authoring::DateFragment("M\xE4rz", 31, 987), "M\xE4rz 31, 0987");
}

TEST(Scripts, BlocksAndMenusAreExactlyThoseListed) {
    std::string made;
    std::string menus;
    for (int index = -2; index < 10; ++index) {
        const std::string keyword(modScripts::DropMenuKeyword(index));
        made += Listed("script " + std::to_string(index), modScripts::ScriptBlock(index));
        menus += Listed(keyword, modScripts::MakeDropMenu(keyword));
    }
    EXPECT_EQ(made + menus, kept::Read("core/data/scripts.txt"));
    for (const char* keyword : {"", "Drop", "drop ", "dcbo", "wnd"}) {
        EXPECT_EQ(modScripts::MakeDropMenu(keyword), "");
    }
}

}  // namespace
