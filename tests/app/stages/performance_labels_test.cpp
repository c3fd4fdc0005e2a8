// The texts of perf_res.
#include "app/stages/performance_labels.hpp"

#include "core/app_state.hpp"
#include "support/performance_case.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

app_state in(std::int16_t language, std::int16_t unit = MILLIMETRES) {
    app_state state;
    state.language = language;
    state.drawing_units = unit;
    return state;
}

class sample_labels_test : public testing::TestWithParam<const char*> {};

TEST_P(sample_labels_test, read_as_the_reference) {
    performance_case sample = load_performance_case(GetParam());
    sample.run();
    labels texts;
    for (const perf_step step : {perf_step::speed_limits, perf_step::contact, perf_step::ripple}) {
        set_performance_labels(sample.perf_results, step, sample.state(), texts);
    }
    int compared = 0;
    for (const label_field& field : label_fields()) {
        if (field.form == "perf_res") {
            EXPECT_EQ(texts.*field.member, sample.expected_label(field.name));
            ++compared;
        }
    }
    EXPECT_EQ(compared, 6);
}

INSTANTIATE_TEST_SUITE_P(samples, sample_labels_test, testing::ValuesIn(SAMPLES),
                         [](const auto& name) { return std::string(name.param); });

TEST(performance_labels, name_the_lower_speed_limit) {
    perf_results results;
    labels texts;
    results.tip_speed_rpm = 7403.9;
    results.port_speed_rpm = 8000.0;
    set_performance_labels(results, perf_step::speed_limits, in(ENGLISH), texts);
    EXPECT_EQ(texts.max_speed, " 7403 RPM");
    EXPECT_EQ(texts.Label5, "This speed is limited by: Rotor Tip Velocity");
    set_performance_labels(results, perf_step::speed_limits, in(GERMAN), texts);
    EXPECT_EQ(texts.Label5, "Tempolimit: Rotor Spitze Geschwindigkeit");
    results.port_speed_rpm = 500.25;
    set_performance_labels(results, perf_step::speed_limits, in(ENGLISH), texts);
    EXPECT_EQ(texts.max_speed, " 500 RPM");
    EXPECT_EQ(texts.Label5, "This speed is limited by: Port Fluid Velocity");
    set_performance_labels(results, perf_step::speed_limits, in(GERMAN), texts);
    EXPECT_EQ(texts.Label5, "Tempolimit: Flüssige Geschwindigkeit");
}

TEST(performance_labels, keep_the_speed_when_both_limits_are_equal) {
    perf_results results;
    results.tip_speed_rpm = results.port_speed_rpm = 3000.0;
    labels texts;
    texts.max_speed = " 1 RPM";
    texts.Label5 = "x";
    set_performance_labels(results, perf_step::speed_limits, in(ENGLISH), texts);
    EXPECT_EQ(texts.max_speed, " 1 RPM");
    EXPECT_EQ(texts.Label5, "x");
}

/// A right angle reads as 45 degrees, the number cut and without a leading blank.
TEST(performance_labels, give_half_of_the_load_angle) {
    perf_results results;
    results.side_load_angle[5][5] = 1.5707963;
    results.side_load_angle[0][0] = 9.0;
    labels texts;
    set_performance_labels(results, perf_step::contact, in(ENGLISH), texts);
    EXPECT_EQ(texts.side_load_direction, "44.99 °") << "the divisor is a little above a full turn";
    results.side_load_angle[5][5] = -1.0;
    set_performance_labels(results, perf_step::contact, in(ENGLISH), texts);
    EXPECT_EQ(texts.side_load_direction, "-28.65 °");
}

/// 98.1 N are 98.1 * 2.2 / 9.81 = 22 lbsf; a radius of -12.7 mm is one inch of cutter.
TEST(performance_labels, give_load_and_cutter_in_both_unit_systems) {
    perf_results results;
    results.side_load[5][5] = 98.126;
    results.cutter_r = -12.7;
    labels texts;
    set_performance_labels(results, perf_step::contact, in(ENGLISH), texts);
    EXPECT_EQ(texts.max_shaft_side_load, "98.12 N");
    EXPECT_EQ(texts.max_cutter_inner, "25.4 mm");
    set_performance_labels(results, perf_step::contact, in(ENGLISH, INCHES), texts);
    EXPECT_EQ(texts.max_shaft_side_load, "22 lbsf");
    EXPECT_EQ(texts.max_cutter_inner, "1 inches");
}

TEST(performance_labels, show_the_ripple_behind_24_blanks) {
    perf_results results;
    results.ripple_percent = 0.5;
    labels texts;
    for (const std::int16_t language : {ENGLISH, GERMAN}) {
        set_performance_labels(results, perf_step::ripple, in(language), texts);
        EXPECT_EQ(texts.Label1, "Pressure Ripple:" + std::string(24, ' ') + " 0.5 %");
    }
}

}  // namespace
}  // namespace kvt
