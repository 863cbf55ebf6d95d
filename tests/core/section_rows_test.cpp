#include "settings/core/section_rows.h"

#include <gtest/gtest.h>

namespace {

using settings::Row;

std::string KeysInOrder(std::vector<Row> rows) {
    settings::SortRows(rows);
    std::string keys;
    for (const Row& row : rows) keys += row.key + " ";
    return keys;
}

TEST(SectionRows, NumbersComeInNumericOrderAndBeforeEverythingElse) {
    EXPECT_EQ(KeysInOrder({{"10", ""}, {"2", ""}, {"1", ""}, {"99", ""}}), "1 2 10 99 ");
    EXPECT_EQ(KeysInOrder({{"zeta", ""}, {"7", ""}, {"", ""}, {"-1", ""}, {"alpha", ""}}),
              "7 zeta  -1 alpha ");
}

TEST(SectionRows, ANumberTooLargeToReadIsNoNumber) {
    EXPECT_EQ(KeysInOrder({{"99999999999999999999999", ""}, {"5", ""}}), "5 99999999999999999999999 ");
}

}  // namespace
