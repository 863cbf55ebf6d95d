#include "authoring/core/find_replace.h"

#include <gtest/gtest.h>

namespace {

using authoring::CountFromFirst;
using authoring::CountMatches;
using authoring::FindExact;
using authoring::FindIgnoringCase;
using authoring::kAsciiFold;
using authoring::kMaxMatches;
using authoring::kNotFound;

TEST(Find, LettersBeyondAsciiMatchByTheFoldOfTheCodePage) {
    authoring::FoldTable codePage = kAsciiFold;
    codePage[0xC4] = 0xE4;
    EXPECT_EQ(FindIgnoringCase("k\xC4se", "K\xE4S", 0, codePage), 0U);
    EXPECT_EQ(FindIgnoringCase("k\xC4se", "K\xE4S", 0, kAsciiFold), kNotFound);
}

TEST(Find, CountsAreZeroForAMatchAtTheTopAndNoneBeyondTheLimit) {
    const std::string full(kMaxMatches, 'a');
    EXPECT_EQ(CountFromFirst("abxxab", "ab", 0, kAsciiFold), 0);
    EXPECT_EQ(CountFromFirst("xaaaaa", "aa", 1, kAsciiFold), 2);
    EXPECT_EQ(CountFromFirst("x" + full, "A", 1, kAsciiFold), kMaxMatches);
    EXPECT_EQ(CountFromFirst("xa" + full, "A", 1, kAsciiFold), std::nullopt);
    EXPECT_EQ(CountMatches("ababa", "aba"), 2);
    EXPECT_EQ(CountMatches(full, "a"), kMaxMatches);
    EXPECT_EQ(CountMatches(full + "a", "a"), std::nullopt);
}

TEST(Find, FindNextStepsOverWhatFollowsDirectly) {
    const std::string text = "aaaaaa";
    const std::size_t start = authoring::NextStartAfterFind(FindIgnoringCase(text, "aa", 0, kAsciiFold), 2);
    const std::size_t next = FindIgnoringCase(text, "aa", start, kAsciiFold);
    EXPECT_EQ(next, 2U);
    EXPECT_EQ(FindIgnoringCase(text, "aa", authoring::NextStartAfterFindNext(next, 2), kAsciiFold),
              kNotFound);
}

TEST(Replace, APageFullOfNearMatchesTakesNoLongerThanAnyOther) {
    // A search that starts again after each mismatch compares some 10^11 bytes here.
    const std::string text(1'000'000, 'a');
    const std::string find = std::string(100'000, 'a') + "b" + std::string(100'000, 'a');
    EXPECT_EQ(FindExact(text, find), kNotFound);
    EXPECT_EQ(CountMatches(text, find), 0);
    EXPECT_EQ(authoring::ReplaceText(text + find, find, "x"), text + "x");
}

}  // namespace
