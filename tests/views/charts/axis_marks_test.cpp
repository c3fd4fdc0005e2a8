// Tests of the numbers beside the y axis: cases by hand, in their digits.
#include "views/charts/axis_marks.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

using texts = std::vector<std::string>;

texts texts_of(const std::vector<chart_mark>& marks) {
    texts found;
    for (const chart_mark& mark : marks) {
        found.push_back(mark.text);
    }
    return found;
}

texts computed(double minimum, double maximum) {
    return texts_of(computed_marks(minimum, maximum, "bar"));
}

TEST(mark_step, is_the_whole_part_of_a_fifth_or_the_fifth_itself) {
    EXPECT_EQ(mark_step(12.0), 2.0);
    EXPECT_EQ(mark_step(9.99), 1.0);
    EXPECT_EQ(mark_step(5.0), 1.0);
    EXPECT_EQ(mark_step(4.0), 0.8);
}

TEST(mark_decimals, follow_the_step) {
    const std::pair<double, int> rows[] = {{1000.0, 0}, {100.0, 0},  {99.0, 1},    {10.0, 1},
                                           {9.0, 2},    {1.0, 2},    {0.99, 3},    {0.1, 3},
                                           {0.099, 3},  {0.01, 3},   {0.0099, 4},  {0.001, 4},
                                           {5e-7, 8},   {1e-20, 21}, {1e-310, 300}};
    for (const auto& [step, decimals] : rows) {
        EXPECT_EQ(mark_decimals(step), decimals) << step;
    }
}

TEST(rounded_text, rounds_half_to_even_and_drops_zeros) {
    EXPECT_EQ(rounded_text(0.5, 0), "0");
    EXPECT_EQ(rounded_text(1.5, 0), "2");
    EXPECT_EQ(rounded_text(2.5, 0), "2");
    EXPECT_EQ(rounded_text(0.125, 2), "0.12");
    EXPECT_EQ(rounded_text(8.345, 2), "8.34") << "the double is 8.3450000000000006";
    EXPECT_EQ(rounded_text(1.005, 2), "1") << "the double is 1.00499999999999989";
    EXPECT_EQ(rounded_text(1.2999, 2), "1.3");
    EXPECT_EQ(rounded_text(-0.001, 2), "0");
}

/// 8.345 / 5 = 1.669, so the step is 1; 8.345 - 7 is more than half of it, 8.345 - 8 is not.
TEST(computed_marks, leave_out_a_number_that_is_too_near_to_the_largest) {
    EXPECT_EQ(computed(0.0, 8.345), (texts{"0", "1", "2", "3", "4", "5", "6", "7", "8.34"}));
}

TEST(computed_marks, keep_a_number_half_a_step_below_the_largest) {
    EXPECT_EQ(computed(0.0, 5.5), (texts{"0", "1", "2", "3", "4", "5", "5.5"}));
    EXPECT_EQ(computed(0.0, 5.499), (texts{"0", "1", "2", "3", "4", "5.5"}));
}

TEST(computed_marks, are_six_below_a_range_of_five) {
    EXPECT_EQ(computed(0.0, 0.189), (texts{"0", "0.038", "0.076", "0.113", "0.151", "0.189"}));
    EXPECT_EQ(computed(2.0, 3.0), (texts{"2", "2.2", "2.4", "2.6", "2.8", "3"}));
}

TEST(computed_marks, start_at_a_negative_smallest_value) {
    EXPECT_EQ(computed(-2.5, 10.0), (texts{"-2.5", "-0.5", "1.5", "3.5", "5.5", "7.5", "10"}));
}

TEST(computed_marks, have_the_whole_number_behind_a_text_that_cuts_it) {
    const std::vector<chart_mark> marks = computed_marks(0.0, 8.345, "Lit/min");
    EXPECT_EQ(marks.back().exact, "8.345 Lit/min");
    EXPECT_EQ(marks.back().value, 8.345);
    EXPECT_EQ(marks[3].exact, "");
}

/// 100 times 1 - 0.2 * 3 is 39.99999999999999 in doubles.
TEST(percent_marks, are_whole_numbers) {
    EXPECT_EQ(texts_of(percent_marks()), (texts{"0", "20", "40", "60", "80", "100"}));
    EXPECT_EQ(percent_marks()[2].value, 1.0 - 0.2 * 3);
    EXPECT_EQ(percent_marks().back().value, 1.0);
}

}  // namespace
}  // namespace kvt
