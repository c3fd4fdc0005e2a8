// Tests of the rows of the printed report: where a value is not that of its label, and what is left
// out.
#include "output/report/report_rows.hpp"

#include "app/desk/unit_commands.hpp"
#include "output/report/report_design.hpp"

#include <algorithm>
#include <gtest/gtest.h>

namespace kvt {
namespace {

/// A program whose results were typed in by hand.
program with_results() {
    program kavetta;
    kavetta.performance_valid = true;
    kavetta.results_shown = true;
    return kavetta;
}

const report_row& row_named(std::string_view name) {
    return *std::ranges::find(report_rows(), name, &report_row::name);
}

std::string value_of(program& kavetta, std::string_view name) {
    return row_named(name).value(report_source_of(kavetta));
}

std::string label_of(program& kavetta, std::string_view name) {
    return label_text(row_named(name), report_source_of(kavetta));
}

bool is_printed(program& kavetta, std::string_view name) {
    return row_named(name).is_printed(report_source_of(kavetta));
}

TEST(report_rows, give_the_radial_clearance_for_the_axial_one_in_english) {
    program kavetta;
    kavetta.entries.axial_clear = "0,06";
    kavetta.entries.radial_clear = "0.15";
    EXPECT_EQ(value_of(kavetta, "axial_clear"), "0.15");
    kavetta.app_state.language = GERMAN;
    EXPECT_EQ(value_of(kavetta, "axial_clear"), "0,06");
}

TEST(report_rows, give_psi_below_the_label_ksi) {
    program kavetta = with_results();
    kavetta.app_state.drawing_units = INCHES;
    kavetta.perf_results.hertz_max = 203.4;
    EXPECT_EQ(value_of(kavetta, "max_stress_ksi"), " 29501");  // 203.4 * 145.04 = 29501.136
}

TEST(report_rows, cut_power_down_to_a_tenth_of_a_horsepower_or_a_hundredth_of_a_watt) {
    program kavetta = with_results();
    kavetta.perf_results.power_max = 1500.129;
    EXPECT_EQ(value_of(kavetta, "max_power_hp"), " 2");  // 2.0109 hp
    EXPECT_EQ(value_of(kavetta, "max_power_w"), " 1500.12");
}

TEST(report_rows, cut_efficiencies_down_also_below_zero) {
    program kavetta = with_results();
    kavetta.perf_results.vol_eff_max = 0.9399;
    kavetta.perf_results.vol_eff_min = -0.001;
    EXPECT_EQ(value_of(kavetta, "vol_eff_max"), " 93");
    EXPECT_EQ(value_of(kavetta, "vol_eff_min"), "-1");
}

TEST(report_rows, print_hp_and_ksi_with_inches_and_w_and_mpa_otherwise) {
    program kavetta;
    EXPECT_TRUE(is_printed(kavetta, "max_power_w") && is_printed(kavetta, "max_stress_mpa"));
    EXPECT_FALSE(is_printed(kavetta, "max_power_hp") || is_printed(kavetta, "max_stress_ksi"));
    kavetta.app_state.drawing_units = INCHES;
    EXPECT_FALSE(is_printed(kavetta, "max_power_w") || is_printed(kavetta, "max_stress_mpa"));
    EXPECT_TRUE(is_printed(kavetta, "max_power_hp") && is_printed(kavetta, "max_stress_ksi"));
    EXPECT_EQ(value_of(kavetta, "drawing_units"), "Inches");
}

TEST(report_rows, call_a_double_sided_port_so_whatever_the_shadow_ports) {
    program kavetta;
    EXPECT_EQ(value_of(kavetta, "porting_inner"), "Single Sided");
    kavetta.entries.inlet_double_sided = "1";
    kavetta.entries.shadow_ports = "1";
    EXPECT_EQ(value_of(kavetta, "porting_inner"), "Double Sided");
    EXPECT_EQ(value_of(kavetta, "porting_outer"), "With Shadow Port");
    kavetta.app_state.language = GERMAN;
    EXPECT_EQ(value_of(kavetta, "porting_inner"), "Verdoppeln Sie Hat Unterstützt");
}

TEST(report_rows, put_the_caption_of_the_port_behind_the_german_label) {
    program kavetta;
    EXPECT_EQ(label_of(kavetta, "outlet_end_outer"), "OUTLET PORT - End angle Outer Radius");
    kavetta.app_state.language = GERMAN;
    set_captions(kavetta);
    EXPECT_EQ(label_of(kavetta, "outlet_end_outer"), "AUSLAUF HAFEN - Endwinkel Äußer Radius");
    EXPECT_EQ(label_of(kavetta, "Outlet_inner_radius"), "AUSLAUF HAFEN - Innerer Radius");
}

TEST(report_rows, of_results_are_empty_until_there_are_some) {
    program kavetta;
    kavetta.labels.capacity = "6.0137";
    kavetta.labels.max_speed = " 7403 RPM";
    for (const char* name : {"capacity", "max_speed", "max_power_w", "vol_eff_max"}) {
        EXPECT_EQ(value_of(kavetta, name), "") << name;
    }
}

TEST(report_rows, lose_the_labels_of_perf_res_with_that_form_and_keep_the_numbers) {
    program kavetta = with_results();
    kavetta.results_shown = false;
    kavetta.labels.max_speed = " 7403 RPM";
    kavetta.labels.capacity = "6.0137";
    EXPECT_EQ(value_of(kavetta, "max_speed"), "");
    EXPECT_EQ(value_of(kavetta, "max_power_w"), " 0");
    EXPECT_EQ(value_of(kavetta, "capacity"), "6.0137");
}

}  // namespace
}  // namespace kvt
