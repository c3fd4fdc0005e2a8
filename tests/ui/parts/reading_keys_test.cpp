// Which point of a chart the keys read.
#include "ui/parts/reading_keys.hpp"

#include "ui/sample_chart.hpp"

#include <gtest/gtest.h>

namespace kvt {

namespace {

const std::vector<bool> ALL_SHOWN(5);

std::optional<chart_reading> after(const std::optional<chart_reading>& reading, int key,
                                   const std::vector<bool>& hidden = ALL_SHOWN,
                                   bool with_ctrl = false) {
    return next_reading(sample_chart(), hidden, reading, key, with_ctrl);
}

using reading = std::optional<chart_reading>;

}  // namespace

TEST(reading_keys, the_first_key_reads_the_first_point_of_the_first_curve_shown) {
    EXPECT_EQ(after({}, Qt::Key_Right), reading({0, 0}));
    EXPECT_EQ(after({}, Qt::Key_Up, {true, true, false, false, false}), reading({2, 0}));
}

TEST(reading_keys, left_and_right_go_along_the_curve_and_stay_at_its_ends) {
    EXPECT_EQ(after(chart_reading{1, 2}, Qt::Key_Right), reading({1, 3}));
    EXPECT_EQ(after(chart_reading{1, 2}, Qt::Key_Left), reading({1, 1}));
    EXPECT_EQ(after(chart_reading{1, 5}, Qt::Key_Right), reading({1, 5}));
    EXPECT_EQ(after(chart_reading{1, 0}, Qt::Key_Left), reading({1, 0}));
}

TEST(reading_keys, with_ctrl_they_go_a_tenth_of_the_curve) {
    const result_chart ripple =
        make_chart(chart_kind::ripple, sample_results(), ENGLISH, unit_system::metric);
    ASSERT_EQ(ripple.curves[0].values.size(), 3601U);
    EXPECT_EQ(next_reading(ripple, {false}, chart_reading{0, 0}, Qt::Key_Right, true),
              reading({0, 360}));
    EXPECT_EQ(next_reading(ripple, {false}, chart_reading{0, 100}, Qt::Key_Left, true),
              reading({0, 0}));
    EXPECT_EQ(after(chart_reading{0, 0}, Qt::Key_Right, ALL_SHOWN, true), reading({0, 1}));
}

TEST(reading_keys, up_and_down_go_to_the_next_curve_that_is_shown) {
    const std::vector<bool> hidden = {false, true, false, true, true};
    EXPECT_EQ(after(chart_reading{0, 4}, Qt::Key_Down, hidden), reading({2, 4}));
    EXPECT_EQ(after(chart_reading{2, 4}, Qt::Key_Up, hidden), reading({0, 4}));
    EXPECT_EQ(after(chart_reading{2, 4}, Qt::Key_Down, hidden), reading({2, 4}));
}

TEST(reading_keys, other_keys_and_a_chart_without_curves_read_nothing) {
    EXPECT_EQ(after(chart_reading{0, 0}, Qt::Key_A), reading());
    EXPECT_EQ(after({}, Qt::Key_Right, std::vector<bool>(5, true)), reading());
}

TEST(reading_keys, pass_over_empty_series_and_stay_within_shorter_ones) {
    result_chart chart;
    chart.is_of_dots = true;
    chart.curves.push_back({1, "", "none", {}, {}, {}});
    chart.curves.push_back({2, "", "long", {1.0, 2.0, 3.0}, {1.0, 2.0, 3.0}, {}});
    chart.curves.push_back({3, "", "none", {}, {}, {}});
    chart.curves.push_back({4, "", "short", {1.0}, {1.0}, {}});
    const std::vector<bool> shown(4, false);
    EXPECT_EQ(next_reading(chart, shown, {}, Qt::Key_Right, false), reading({1, 0}));
    EXPECT_EQ(next_reading(chart, shown, chart_reading{1, 2}, Qt::Key_Down, false),
              reading({3, 0}));
    EXPECT_EQ(next_reading(chart, shown, chart_reading{3, 0}, Qt::Key_Up, false), reading({1, 0}));
}

}  // namespace kvt
