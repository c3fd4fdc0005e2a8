// Tests of the charts of the exact figures: their axes, curves and texts.
#include "views/exact/exact_charts.hpp"

#include "app/program.hpp"
#include "app/stages/calculate_performance.hpp"
#include "support/all_exact_results.hpp"
#include "support/cnc_design.hpp"
#include "views/charts/chart_drawing.hpp"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

namespace kvt {
namespace {

class exact_charts_test : public testing::Test {
  protected:
    exact_charts_test() {
        scripted_user person;
        calculate_performance(kavetta, person);
        update_exact_record(kavetta);
        kavetta.exact_record.results = all_exact_results(*kavetta.exact_record.source);
    }
    std::optional<result_chart> chart(std::string_view name) const {
        const auto row = std::ranges::find(exact_chart_rows(), name, &exact_chart_row::name);
        return make_exact_chart(*row, *kavetta.exact_record.source, kavetta.exact_record.results,
                                present_manner(kavetta));
    }
    const port_timing& timing() const { return kavetta.exact_record.results.timing; }

    program kavetta = design_with_ports("n07_engine_oil_groove");
};

TEST_F(exact_charts_test, every_chart_can_be_drawn) {
    for (const exact_chart_row& row : exact_chart_rows()) {
        const result_chart made = *chart(row.name);
        EXPECT_FALSE(made.title.empty());
        EXPECT_EQ(made.steps + 1, static_cast<int>(made.x_values.size()));
        for (const chart_curve& curve : made.curves) {
            EXPECT_EQ(curve.values.size(), made.x_values.size()) << row.name;
            for (const double value : curve.values) {
                EXPECT_TRUE(value >= made.minimum && value <= made.maximum) << row.name;
            }
        }
        EXPECT_EQ(draw_chart(made, {}).graph_line.size(),
                  made.curves.size() * (made.x_values.size() - 1));
    }
}

TEST_F(exact_charts_test, the_volume_stands_over_the_life_of_a_chamber) {
    const result_chart made = *chart("volume_chart");
    EXPECT_NEAR(made.x_values.back(), 420.0, 1e-9) << "360 degrees N / (N - 1)";
    EXPECT_EQ(made.x_marks[1].text, "84");
    EXPECT_NEAR(made.maximum, kavetta.exact_record.results.rotors.chamber.largest, 1e-6);
}

TEST_F(exact_charts_test, the_areas_are_those_of_the_port_timing) {
    const result_chart made = *chart("area_chart");
    ASSERT_EQ(made.curves.size(), 3U) << "inlet, outlet, groove";
    EXPECT_EQ(made.curves[0].values[100], timing().life[100].inlet);
    EXPECT_EQ(made.curves[2].values[200], timing().life[200].groove);
    EXPECT_NEAR(made.x_values[100], timing().life[100].place * 180.0 / 3.14159265358979, 1e-9);
    EXPECT_EQ(made.curves[1].values.front(), made.curves[1].values.back());
}

TEST_F(exact_charts_test, the_oil_speed_is_that_of_the_highest_speed) {
    const double rpm = kavetta.perf_inputs.speed_hi;
    const result_chart made = *chart("speed_chart");
    EXPECT_NEAR(std::ranges::max(made.curves[2].values),
                timing().inlet_speed.speed * rpm * 3.14159265358979 / 30.0 / 1000.0, 1e-9);
    EXPECT_EQ(made.y_unit, "m/s");
    kavetta.app_state.drawing_units = INCHES;
    EXPECT_NEAR(chart("speed_chart")->maximum, made.maximum * 1000.0 / 304.8, 1e-9);
}

TEST_F(exact_charts_test, the_gap_stands_in_the_unit_of_length) {
    EXPECT_EQ(chart("gap_chart")->y_unit, "mm");
    kavetta.app_state.drawing_units = INCHES;
    EXPECT_NEAR(chart("gap_chart")->curves[0].values[7],
                kavetta.exact_record.results.gap.gap[7] / 25.4, 1e-15);
}

TEST_F(exact_charts_test, there_is_none_of_a_part_that_is_missing) {
    kavetta.exact_record.results.states = {};
    for (const exact_chart_row& row : exact_chart_rows()) {
        EXPECT_FALSE(chart(row.name).has_value());
    }
}

}  // namespace
}  // namespace kvt
