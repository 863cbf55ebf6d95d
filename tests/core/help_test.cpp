#include <gtest/gtest.h>

#include "help/core/links.h"

namespace {

TEST(Links, AnAddressWithAnAtSignIsWrittenToAndAnyOtherOpened) {
    EXPECT_EQ(help::LinkTarget("http://www.example.com/"), "http://www.example.com/");
    EXPECT_EQ(help::LinkTarget("  me@example.com "), "mailto:me@example.com");
}

}  // namespace
