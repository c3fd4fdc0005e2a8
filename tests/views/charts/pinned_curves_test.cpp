// Tests of another design's curves in a chart: by their pressures, on an axis that spans both.
#include "views/charts/pinned_curves.hpp"

#include "core/app_state.hpp"
#include "views/charts/chart_drawing.hpp"
#include "views/charts/chart_results.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

constexpr const char* NOTE = "Dashed: other";

result_chart chart_of(chart_kind kind, const perf_results& results) {
    return make_chart(kind, results, ENGLISH, unit_system::metric);
}

result_chart beside(chart_kind kind, const perf_results& other) {
    return with_pinned_curves(chart_of(kind, chart_results()), chart_of(kind, other), NOTE);
}

/// Pressures from `first` bar on, `step` bar apart.
perf_results results_at_pressures(double first, double step) {
    perf_results results = chart_results();
    for (std::size_t j = 0; j < GRID_SIZE; ++j) {
        results.press_pa[j] = 101300.0 * (first + step * static_cast<double>(j));
    }
    return results;
}

void expect_steps(const std::vector<double>& steps, const std::vector<double>& expected) {
    ASSERT_EQ(steps.size(), expected.size());
    for (std::size_t k = 0; k < steps.size(); ++k) {
        EXPECT_NEAR(steps[k], expected[k], 1e-12) << k;
    }
}

// The chart has the pressures 1 .. 6 bar at its steps 0 .. 5.
TEST(with_pinned_curves, stand_at_their_own_pressures) {
    const result_chart chart = beside(chart_kind::flow, results_at_pressures(2.0, 0.5));
    ASSERT_EQ(chart.pinned.size(), 5U);
    expect_steps(chart.pinned[0].steps, {1.0, 1.5, 2.0, 2.5, 3.0, 3.5});
    EXPECT_EQ(chart.pinned[2].series, 3);
    EXPECT_EQ(chart.pinned[2].values, chart.curves[2].values);
    EXPECT_EQ(chart.pinned_note, NOTE);
    expect_steps(beside(chart_kind::flow, results_at_pressures(0.0, 3.0)).pinned[0].steps,
                 {-1.0, 2.0, 5.0, 8.0, 11.0, 14.0});
}

TEST(with_pinned_curves, stand_at_the_same_angles) {
    const result_chart stress = beside(chart_kind::stress, chart_results());
    EXPECT_NEAR(stress.pinned[0].steps.front(), 1.0, 1e-12);
    EXPECT_NEAR(stress.pinned[0].steps.back(), 179.0, 1e-10);
    const result_chart ripple = beside(chart_kind::ripple, chart_results());
    ASSERT_EQ(ripple.pinned.size(), 1U);
    EXPECT_EQ(ripple.pinned[0].steps.front(), 0.0);
    EXPECT_NEAR(ripple.pinned[0].steps.back(), 3600.0, 1e-9);
}

TEST(with_pinned_curves, widen_the_axis_to_both_results) {
    perf_results higher = chart_results();
    higher.flow_min = -5.0 / 60000.0;
    higher.flow_max = 75.0 / 60000.0;
    const result_chart wide = beside(chart_kind::flow, higher);
    EXPECT_NEAR(wide.minimum, -5.0, 1e-12);
    EXPECT_NEAR(wide.maximum, 75.0, 1e-12);
    EXPECT_EQ(wide.y_marks.front().value, wide.minimum);
    EXPECT_EQ(wide.y_marks.back().value, wide.maximum);
    higher.flow_min = 1.0 / 60000.0;
    higher.flow_max = 2.0 / 60000.0;
    const result_chart own = beside(chart_kind::flow, higher);
    EXPECT_EQ(own.minimum, 0.0);
    EXPECT_NEAR(own.maximum, 55.0, 1e-12);
}

TEST(with_pinned_curves, leave_the_axis_of_efficiencies) {
    const result_chart chart = beside(chart_kind::ve, chart_results());
    EXPECT_EQ(chart.minimum, 0.0);
    EXPECT_EQ(chart.maximum, 1.0);
    EXPECT_EQ(chart.y_marks.back().text, "100");
}

TEST(with_pinned_curves, are_none_on_an_axis_without_a_length) {
    const result_chart one = chart_of(chart_kind::flow, results_at_pressures(3.0, 0.0));
    const result_chart chart =
        with_pinned_curves(one, chart_of(chart_kind::flow, chart_results()), NOTE);
    EXPECT_TRUE(chart.pinned.empty());
    EXPECT_EQ(chart.pinned_note, "");
}

TEST(with_pinned_curves, are_drawn_as_the_curves_of_the_chart_are) {
    const chart_drawing drawing = draw_chart(beside(chart_kind::flow, chart_results()), {});
    ASSERT_EQ(drawing.pinned_line.size(), drawing.graph_line.size());
    for (std::size_t k = 0; k < drawing.graph_line.size(); ++k) {
        EXPECT_EQ(drawing.pinned_line[k].series, drawing.graph_line[k].series);
        EXPECT_NEAR(drawing.pinned_line[k].x2, drawing.graph_line[k].x2, 1e-9);
        EXPECT_NEAR(drawing.pinned_line[k].y2, drawing.graph_line[k].y2, 1e-9);
    }
    const chart_box& note = drawing.pinned_note.box;
    EXPECT_EQ(drawing.pinned_note.text, NOTE);
    EXPECT_GT(note.left, drawing.Picture1.left);
    EXPECT_LT(note.top + note.height, drawing.Picture1.top + drawing.Picture1.height);
    EXPECT_TRUE(draw_chart(chart_of(chart_kind::flow, chart_results()), {}).pinned_line.empty());
}

// Pressures 0, 3, 6, 9 .. bar beside those from 1 to 6: from -1 to 2, to 5, and beyond it.
TEST(with_pinned_curves, are_cut_at_the_ends_of_the_axis) {
    const chart_drawing drawing =
        draw_chart(beside(chart_kind::flow, results_at_pressures(0.0, 3.0)), {});
    ASSERT_EQ(drawing.pinned_line.size(), 2U * 5U);
    const chart_segment& first = drawing.pinned_line[0];
    const chart_segment& last = drawing.pinned_line[1];
    EXPECT_EQ(first.x1, drawing.X_axis.x1);
    EXPECT_NEAR(last.x2, drawing.X_axis.x2, 1e-9);
    // Curve 1 rises from 10 by one a point: 10 1/3 where it meets the axis.
    const double a_litre = (drawing.Y_axis.y2 - drawing.Y_axis.y1) / 55.0;
    EXPECT_NEAR(first.y1, drawing.Y_axis.y2 - (10.0 + 1.0 / 3.0) * a_litre, 1e-9);
    EXPECT_NEAR(first.y2, drawing.Y_axis.y2 - 11.0 * a_litre, 1e-9);
    const auto far = draw_chart(beside(chart_kind::flow, results_at_pressures(20.0, 1.0)), {});
    EXPECT_TRUE(far.pinned_line.empty());
}

}  // namespace
}  // namespace kvt
