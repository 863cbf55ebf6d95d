#include "authoring/find/core/find_replace.h"

#include <gtest/gtest.h>

namespace {

using authoring::CountFromFirst;
using authoring::CountMatches;
using authoring::kMaxMatches;

TEST(Find, ThereIsNoCountBeyondTheLimit) {
    const std::u16string full(kMaxMatches, u'a');
    EXPECT_EQ(CountFromFirst(u"x" + full, u"a", 1), kMaxMatches);
    EXPECT_EQ(CountFromFirst(u"xa" + full, u"a", 1), std::nullopt);
    EXPECT_EQ(CountMatches(full, u"a"), kMaxMatches);
    EXPECT_EQ(CountMatches(full + u"a", u"a"), std::nullopt);
}

TEST(Replace, OverlapsAreCountedButNotReplaced) {
    EXPECT_EQ(CountMatches(u"aaaa", u"aa"), 3);
    EXPECT_EQ(authoring::ReplaceText<char16_t>(u"aaaaa", u"aa", u"x"), u"xxa");
    EXPECT_EQ(authoring::ReplaceText<char16_t>(u"aa", u"", u"x"), u"aa") << "an empty text occurs nowhere";
}

}  // namespace
