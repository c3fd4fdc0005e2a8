// Tests of the columns of the printed report.
#include "output/report/columned_line.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

TEST(columned_line, puts_column_n_behind_n_less_1_characters) {
    EXPECT_EQ(columned_line({{1, "a"}, {4, "b"}}), "a  b");
    EXPECT_EQ(columned_line({{5, "Länge"}, {12, "7"}, {15, "mm"}}), "    Länge  7  mm");
    EXPECT_EQ(columned_line({}), "");
}

TEST(columned_line, keeps_one_blank_behind_a_text_that_reaches_the_column) {
    const std::string ends_in_38(34, 'x');
    EXPECT_EQ(columned_line({{5, ends_in_38}, {40, "1"}}), "    " + ends_in_38 + " 1");
    EXPECT_EQ(columned_line({{5, ends_in_38 + "x"}, {40, "1"}}), "    " + ends_in_38 + "x 1");
    EXPECT_EQ(columned_line({{5, "OUTLET PORT - Start angle Inner Radius"}, {40, "16"}}),
              "    OUTLET PORT - Start angle Inner Radius 16");
}

TEST(columned_line, leaves_nothing_behind_for_an_empty_text) {
    EXPECT_EQ(columned_line({{5, "label"}, {40, ""}}), "    label");
    EXPECT_EQ(columned_line({{5, ""}}), "");
    EXPECT_EQ(columned_line({{5, "label"}, {12, ""}, {12, "unit"}}), "    label  unit");
}

TEST(columned_line, stays_one_line) {
    EXPECT_EQ(columned_line({{1, "a\r\nb\tc"}}), "a??b?c");
}

}  // namespace
}  // namespace kvt
