#include "shell/core/command_line.h"

#include <gtest/gtest.h>

#include "shell/core/wildcard.h"

namespace {

using shell::MatchesWildcard;
using shell::TextAfterProgramName;

TEST(CommandLine, IsOnePathWithoutTheBlanksAroundIt) {
    const std::pair<const char*, const char*> lines[] = {
        {"\"C:\\My Programs\\Quillon.exe\" \t C:\\a b\\\"c\".htm \t", "C:\\a b\\\"c\".htm"},
        {"\"\"page.htm", "page.htm"},
        {"Quillon.exe\tpage.htm", "page.htm"},
        {"Quillon.exe \"page.htm\"", "\"page.htm\""},
        {"\"Quillon.exe", ""},
        {"Quillon.exe", ""},
        {"Quillon.exe  ", ""},
        {"", ""},
    };
    for (const auto& [line, path] : lines) EXPECT_EQ(TextAfterProgramName(line), path) << line;
}

TEST(Wildcard, StarQuestionMarkAndNumberSignMatchTextCharacterAndDigit) {
    for (const char* text : {"Quillon", "Quillon - [page.htm]", "My Quillon", "QQuillonn"})
        EXPECT_TRUE(MatchesWildcard(text, "*Quillon*")) << text;
    for (const char* text : {"", "Quillo", "quillon", "Quil lon"})
        EXPECT_FALSE(MatchesWildcard(text, "*Quillon*")) << text;
    EXPECT_TRUE(MatchesWildcard("", "*") && MatchesWildcard("", "") && MatchesWildcard("a", "**"));
    EXPECT_FALSE(MatchesWildcard("a", "") || MatchesWildcard("", "?") || MatchesWildcard("ab", "a"));
    EXPECT_TRUE(MatchesWildcard("a0b9", "?#?#"));
    for (const char* text : {"a/b9", "a:b9", "a0b", "a0b99"}) EXPECT_FALSE(MatchesWildcard(text, "?#?#"));
    EXPECT_TRUE(MatchesWildcard("aab aab", "*ab")) << "the last of them will do";
    EXPECT_TRUE(MatchesWildcard("abcbcd", "a*bc?"));
    EXPECT_FALSE(MatchesWildcard("abcbcdd", "a*bc?"));
}

}  // namespace
