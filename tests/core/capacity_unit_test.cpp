// The capacity units and each factor between them.
#include "core/capacity_unit.hpp"

#include <gtest/gtest.h>

namespace kvt {

namespace {

TEST(capacity_unit_code, counts_the_list_from_one) {
    EXPECT_EQ(capacity_unit_code("Lit/Min/1000rpm"), 1);
    EXPECT_EQ(capacity_unit_code("USGall/Min/1000rpm"), 2);
    EXPECT_EQ(capacity_unit_code("ImpGall/Min/1000rpm"), 3);
    EXPECT_EQ(capacity_unit_code("CC/Rev"), 4);
    EXPECT_EQ(capacity_unit_code("Cu In/Rev"), 5);
}

TEST(capacity_unit_code, is_0_for_a_text_that_is_not_in_the_list) {
    for (const char* text : {"", "cc/rev", "CC/Rev ", "Lit"}) {
        EXPECT_EQ(capacity_unit_code(text), 0) << text;
    }
}

// Rows: the unit before; columns: the unit after.
constexpr double EXPECTED[5][5] = {
    {1, 1 / 3.785, 1 / 4.54, 1, 1 / 16.387},
    {3.785, 1, 1 / 1.1995, 3.785, 0.231},
    {4.54, 1.1995, 1, 4.54, 0.277},
    {1, 1 / 3.785, 1 / 4.54, 1, 1 / 16.387},
    {16.387, 1 / 0.231, 1 / 0.277, 16.387, 1},
};

TEST(capacity_unit_factor, stands_in_the_table_of_units_before_and_after) {
    for (std::int16_t from = 1; from <= 5; ++from) {
        for (std::int16_t to = 1; to <= 5; ++to) {
            EXPECT_EQ(capacity_unit_factor(from, to), EXPECTED[from - 1][to - 1])
                << from << " to " << to;
        }
    }
}

TEST(capacity_unit, has_its_cubic_centimetres_in_its_row) {
    constexpr double CC[] = {1, 3.785, 4.54, 1, 16.387};
    for (std::int16_t code = 1; code <= 5; ++code) {
        EXPECT_EQ(cc_in_capacity_unit(code), CC[code - 1]) << code;
    }
    EXPECT_EQ(cc_in_capacity_unit(0), 1.0);
    EXPECT_EQ(find_capacity_unit(6), nullptr);
    EXPECT_EQ(find_capacity_unit(-1), nullptr);
}

TEST(capacity_unit_factor, undoes_itself_there_and_back) {
    for (std::int16_t from = 1; from <= 5; ++from) {
        for (std::int16_t to = 1; to <= 5; ++to) {
            // One rounding of a reciprocal and one of the product.
            EXPECT_NEAR(capacity_unit_factor(from, to) * capacity_unit_factor(to, from), 1.0,
                        3e-16);
        }
    }
}

// 3.785 / 16.387 is 0.23098: the road over litres differs from the straight one in the fifth
// decimal.
TEST(capacity_unit_factor, is_not_the_product_of_a_road_over_litres) {
    EXPECT_NE(capacity_unit_factor(2, 5), capacity_unit_factor(2, 1) * capacity_unit_factor(1, 5));
}

TEST(capacity_unit_factor, is_1_for_an_unknown_code) {
    EXPECT_EQ(capacity_unit_factor(0, 5), 1.0);
    EXPECT_EQ(capacity_unit_factor(2, 6), 1.0);
    EXPECT_EQ(capacity_unit_factor(-1, -1), 1.0);
}

}  // namespace

}  // namespace kvt
