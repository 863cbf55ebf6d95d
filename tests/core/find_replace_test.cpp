#include "authoring/core/find_replace.h"

#include <gtest/gtest.h>

namespace {

using namespace std::string_literals;
using authoring::CountFromFirst;
using authoring::CountMatches;
using authoring::FindExact;
using authoring::FindIgnoringCase;
using authoring::kAsciiFold;
using authoring::kMaxMatches;
using authoring::kNotFound;
using authoring::ReplaceText;

std::string Repeated(const std::string& piece, int count) {
    std::string text;
    for (int i = 0; i < count; ++i) text += piece;
    return text;
}

TEST(Find, CaseCountsOnlyWhereItShould) {
    EXPECT_EQ(FindIgnoringCase("<HTML>\r\n<BODY>", "Body", 0, kAsciiFold), 9U);
    EXPECT_EQ(FindExact("<HTML>\r\n<BODY>", "Body"), kNotFound);
    EXPECT_EQ(FindExact("bob BOB", "BOB"), 4U);

    authoring::FoldTable codePage = kAsciiFold;
    codePage[0xC4] = 0xE4;
    EXPECT_EQ(FindIgnoringCase("k\xC4se", "K\xE4S", 0, codePage), 0U);
    EXPECT_EQ(FindIgnoringCase("k\xC4se", "K\xE4S", 0, kAsciiFold), kNotFound);
}

TEST(Find, StartsWhereItIsToldAndReachesBothEnds) {
    EXPECT_EQ(FindExact("abcab", "ab", 0), 0U);
    EXPECT_EQ(FindExact("abcab", "ab", 1), 3U);
    for (const std::size_t from : {4U, 5U, 6U}) EXPECT_EQ(FindExact("abcab", "ab", from), kNotFound);
    EXPECT_EQ(FindExact("ab", "abc"), kNotFound);
    EXPECT_EQ(FindExact("abc", ""), kNotFound);
    EXPECT_EQ(FindExact("aabaabaaab", "aabaaab"), 3U);
    EXPECT_EQ(FindExact("a\0b\0c"s, "\0c"s), 3U);
}

TEST(Find, TheShownCountRunsFromTheFirstMatchAndIsZeroWhenThatIsAtTheTop) {
    const auto shown = [](std::string_view text, std::string_view find, std::size_t from) {
        return CountFromFirst(text, find, FindIgnoringCase(text, find, from, kAsciiFold), kAsciiFold);
    };
    EXPECT_EQ(shown("xxabyyAB", "ab", 0), 2);
    EXPECT_EQ(shown("xxabyyAB", "ab", 3), 1);
    EXPECT_EQ(shown("abxxab", "ab", 0), 0);
    EXPECT_EQ(shown("abxxab", "zz", 0), 0);
    EXPECT_EQ(shown("xaaaaa", "aa", 0), 2);
    EXPECT_EQ(shown("x" + Repeated("Ab", kMaxMatches), "aB", 0), kMaxMatches);
    EXPECT_EQ(shown("x" + Repeated("Ab", kMaxMatches + 1), "aB", 0), std::nullopt);
}

TEST(Find, FindNextStepsOverWhatFollowsDirectly) {
    const std::string text = "aaaaaa";
    const std::size_t start = authoring::NextStartAfterFind(FindIgnoringCase(text, "aa", 0, kAsciiFold), 2);
    const std::size_t next = FindIgnoringCase(text, "aa", start, kAsciiFold);
    EXPECT_EQ(next, 2U);
    EXPECT_EQ(FindIgnoringCase(text, "aa", authoring::NextStartAfterFindNext(next, 2), kAsciiFold),
              kNotFound);
}

TEST(Replace, CountsOverlapsAndReportsTooMany) {
    EXPECT_EQ(CountMatches("aaa", "aa"), 2);
    EXPECT_EQ(CountMatches("ababa", "aba"), 2);
    EXPECT_EQ(CountMatches("aAa", "aa"), 0);
    EXPECT_EQ(authoring::CountMatchesIgnoringCase("aAa", "Aa", kAsciiFold), 2);
    EXPECT_EQ(CountMatches("abc", ""), 0);
    EXPECT_EQ(CountMatches(std::string(kMaxMatches, 'a'), "a"), kMaxMatches);
    EXPECT_EQ(CountMatches(std::string(40000, 'a'), "a"), std::nullopt);
}

TEST(Replace, FromLeftToRightWithoutLookingAtWhatWasPutIn) {
    EXPECT_EQ(ReplaceText("aaaa", "aa", "x"), "xx");
    EXPECT_EQ(ReplaceText("aaa", "aa", "a"), "aa");
    EXPECT_EQ(ReplaceText("a-a", "a", "aa"), "aa-aa");
    EXPECT_EQ(ReplaceText("abA", "a", "\r\n"), "\r\nbA");
    EXPECT_EQ(ReplaceText("abab", "ab", ""), "");
    EXPECT_EQ(ReplaceText("abc", "", "x"), "abc");
    EXPECT_EQ(ReplaceText("", "a", "x"), "");
}

TEST(Replace, APageFullOfNearMatchesTakesNoLongerThanAnyOther) {
    // A search that starts again after each mismatch compares some 10^11 bytes here.
    const std::string text(1'000'000, 'a');
    const std::string find = std::string(100'000, 'a') + "b" + std::string(100'000, 'a');
    EXPECT_EQ(FindExact(text, find), kNotFound);
    EXPECT_EQ(CountMatches(text, find), 0);
    EXPECT_EQ(ReplaceText(text + find, find, "x"), text + "x");
}

}  // namespace
