#include "authoring/core/find_replace.h"

#include <gtest/gtest.h>

namespace {

using authoring::CountFromFirst;
using authoring::CountMatches;
using authoring::kAsciiFold;
using authoring::kMaxMatches;

TEST(Find, ThereIsNoCountBeyondTheLimit) {
    const std::string full(kMaxMatches, 'a');
    EXPECT_EQ(CountFromFirst("x" + full, "A", 1, kAsciiFold), kMaxMatches);
    EXPECT_EQ(CountFromFirst("xa" + full, "A", 1, kAsciiFold), std::nullopt);
    EXPECT_EQ(CountMatches(full, "a"), kMaxMatches);
    EXPECT_EQ(CountMatches(full + "a", "a"), std::nullopt);
}

TEST(Replace, APageFullOfNearMatchesTakesNoLongerThanAnyOther) {
    // A search that starts again after each mismatch compares some 10^11 bytes here.
    const std::string text(1'000'000, 'a');
    const std::string find = std::string(100'000, 'a') + "b" + std::string(100'000, 'a');
    EXPECT_EQ(authoring::FindExact(text, find), authoring::kNotFound);
    EXPECT_EQ(CountMatches(text, find), 0);
    EXPECT_EQ(authoring::ReplaceText(text + find, find, "x"), text + "x");
}

}  // namespace
