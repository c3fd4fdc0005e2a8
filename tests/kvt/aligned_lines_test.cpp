// Tests of columns in a summary.
#include "kvt/aligned_lines.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

TEST(aligned_lines, starts_all_values_in_one_column) {
    EXPECT_EQ(aligned_lines({{"Länge", "1"}, {"a", "22"}}), "Länge  1\na      22\n");
}

TEST(aligned_table, puts_every_column_but_the_first_flush_right) {
    EXPECT_EQ(aligned_table({{"rpm", "1", "10"}, {"600", "72.5", "3"}}),
              "rpm     1  10\n600  72.5   3\n");
}

TEST(aligned_table, counts_characters_and_allows_short_rows) {
    EXPECT_EQ(aligned_table({{"Tiefe", "1°", "2"}, {"ä"}, {"b", "12°"}}),
              "Tiefe   1°  2\nä\nb      12°\n");
}

TEST(aligned_table, is_empty_without_rows) {
    EXPECT_EQ(aligned_table({}), "");
}

}  // namespace
}  // namespace kvt
