// Tests of the command Design Ports, of Clear Values, and of the ports after Calculate Profiles.
#include "app/stages/design_ports.hpp"

#include "app/stages/calculate_profiles.hpp"
#include "app/stages/porting_type.hpp"
#include "base/text_file.hpp"
#include "support/expect_failure.hpp"
#include "support/open_design.hpp"
#include "support/temporary_folder.hpp"
#include "views/port_lines.hpp"

#include <algorithm>
#include <gtest/gtest.h>

namespace kvt {
namespace {

using log_lines = std::vector<std::string>;

class design_ports_test : public testing::Test {
  protected:
    design_ports_test() : kavetta(opened_design("n07_engine_oil_groove")) {
        EXPECT_EQ(calculate_profiles(kavetta, person), run_end::ok);
        person.log.clear();
    }

    int count(const std::string& line) const {
        return static_cast<int>(std::count(person.log.begin(), person.log.end(), line));
    }

    program kavetta;
    scripted_user person;
};

constexpr ports_designed ALL = {true, true, true};

TEST_F(design_ports_test, closes_the_results_and_opens_the_performance_step) {
    kavetta.enabling.GT_Sim_Button = kavetta.enabling.create_charts = kavetta.enabling.mnudataperf =
        true;
    EXPECT_EQ(design_ports(kavetta, person), ALL);
    EXPECT_EQ(person.log, (log_lines{"unload perf_res", "unload result_tables",
                                     "unload FLOW_graphview2", "unload LOAD_graphview2",
                                     "unload HERTZ_graphview2", "unload PRESS_RIP_graphview2",
                                     "unload VE_graphview2", "unload EFFIC_graphview2",
                                     "unload OVREFF_graphview2", "busy", "not busy"}));
    EXPECT_TRUE(kavetta.enabling.calc_perf);
    EXPECT_TRUE(kavetta.enabling.mnudxfinletport && kavetta.enabling.mnudxfoutletport);
    EXPECT_TRUE(kavetta.enabling.mnumodelporting);
    EXPECT_FALSE(kavetta.enabling.GT_Sim_Button || kavetta.enabling.create_charts ||
                 kavetta.enabling.mnudataperf);
}

TEST_F(design_ports_test, draws_every_segment_of_the_outlines) {
    design_ports(kavetta, person);
    const port_params& ports = kavetta.port_params;
    const design_view& view = kavetta.design_view;
    const auto segments = [](int last) { return static_cast<std::size_t>(last); };
    EXPECT_EQ(view.inlet_portline.elements.size(), segments(ports.inlet.last));
    EXPECT_EQ(view.outlet_portline.elements.size(), segments(ports.outlet.last));
    EXPECT_EQ(view.metering_groove_portline.elements.size(), segments(ports.groove_main_last));
    EXPECT_EQ(view.metering_groove_extraline.elements.size(),
              segments(ports.groove_last - ports.groove_main_last));
    EXPECT_EQ(view.angleline.elements.size(), 4U);
    EXPECT_EQ(view.anglelineout.elements.size(), 4U);
    EXPECT_TRUE(view.inlet_portline.element0_visible);
}

TEST_F(design_ports_test, takes_decimal_commas_in_all_sixteen_entries) {
    kavetta.entries.inlet_start_inner = "14,5";
    kavetta.entries.groove_depth = "1,25";
    kavetta.entries.Outlet_outer_radius = "22,15";
    EXPECT_EQ(design_ports(kavetta, person), ALL);
    EXPECT_EQ(kavetta.entries.inlet_start_inner, "14.5");
    EXPECT_EQ(kavetta.port_params.groove_depth_mm, 1.25);
    EXPECT_EQ(kavetta.port_params.outlet.outer_r, 22.15);
}

TEST_F(design_ports_test, tells_the_first_groove_entry_that_is_zero_in_both_languages) {
    struct row {
        std::string entries::*box;
        std::string control, english, german;
    };
    const row rows[] = {{&entries::groove_depth, "groove_depth",
                         "Enter a value for the depth of the Metering Groove",
                         "Tragen Sie einen Wert für die DEPTH der Messenden Rille ein"},
                        {&entries::groove_width, "groove_width",
                         "Enter a value for the width of the Metering Groove",
                         "Geben Sie einen Wert für die Breite der Messrille ein"},
                        {&entries::groove_length, "groove_length",
                         "Enter a value for the length of the Metering Groove",
                         "Geben Sie einen Wert für die Länge der Messrille ein"}};
    design_ports(kavetta, person);
    const port_params old = kavetta.port_params;
    kavetta.entries.port_radii = "1";
    for (const auto& [box, control, english, german] : rows) {
        for (const std::int16_t language : {ENGLISH, GERMAN}) {
            kavetta.app_state.language = language;
            kavetta.entries.*box = "0.0";
            person.log.clear();
            person.messages.clear();
            EXPECT_EQ(design_ports(kavetta, person), ports_designed{});
            EXPECT_EQ(person.messages, log_lines{language == GERMAN ? german : english});
            EXPECT_EQ(person.log.back(), "focus " + control);
            EXPECT_EQ(kavetta.entries.*box, "");
        }
    }
    EXPECT_EQ(kavetta.port_params.inlet.x, old.inlet.x) << "the old outlines remain";
    EXPECT_EQ(kavetta.port_params.port_radius, old.port_radius);
}

TEST_F(design_ports_test, closes_the_results_also_when_a_groove_entry_stops_it) {
    design_ports(kavetta, person);
    kavetta.enabling.create_charts = kavetta.enabling.mnudataperf = true;
    kavetta.enabling.calc_perf = false;
    kavetta.entries.groove_length = "0";
    person.log.clear();
    EXPECT_EQ(design_ports(kavetta, person), ports_designed{});
    EXPECT_EQ(
        person.log,
        (log_lines{
            "unload perf_res", "unload result_tables", "unload FLOW_graphview2",
            "unload LOAD_graphview2", "unload HERTZ_graphview2", "unload PRESS_RIP_graphview2",
            "unload VE_graphview2", "unload EFFIC_graphview2", "unload OVREFF_graphview2",
            "message Enter a value for the length of the Metering Groove", "focus groove_length"}))
        << "the results are closed before the entry is looked at, and nothing is built";
    EXPECT_TRUE(kavetta.enabling.calc_perf);
    EXPECT_FALSE(kavetta.enabling.create_charts || kavetta.enabling.mnudataperf);
}

TEST_F(design_ports_test, closes_the_results_also_when_the_groove_is_refused) {
    kavetta.enabling.create_charts = true;
    kavetta.enabling.calc_perf = false;
    kavetta.entries.groove_length = "200";
    EXPECT_EQ(design_ports(kavetta, person), (ports_designed{true, true, false}));
    EXPECT_EQ(count("unload perf_res"), 1);
    EXPECT_EQ(person.log[person.log.size() - 3], "focus groove_length");
    EXPECT_TRUE(kavetta.enabling.calc_perf);
    EXPECT_FALSE(kavetta.enabling.create_charts);
}

TEST_F(design_ports_test, lets_a_negative_groove_entry_pass) {
    kavetta.entries.groove_depth = "-1";
    EXPECT_EQ(design_ports(kavetta, person), ALL);
    EXPECT_EQ(kavetta.port_params.groove_depth_mm, -1.0);
}

TEST_F(design_ports_test, goes_on_with_the_outlet_after_a_refused_inlet) {
    kavetta.entries.inlet_end_inner = "190";
    kavetta.entries.inlet_end_outer = "188";
    EXPECT_EQ(design_ports(kavetta, person), (ports_designed{false, true, true}));
    EXPECT_EQ(person.messages, log_lines{"Port extends too far into 'Outlet' region of pump"});
    const log_lines end(person.log.end() - 4, person.log.end());
    EXPECT_EQ(end, (log_lines{"busy", "message " + person.messages[0], "not busy", "not busy"}))
        << "a refused step gives the pointer back at once";
    EXPECT_FALSE(shows_outline(kavetta.design_view.inlet_portline));
    EXPECT_TRUE(shows_outline(kavetta.design_view.outlet_portline));
}

TEST_F(design_ports_test, counts_an_inlet_that_the_outlet_builds_again_with_success) {
    entries& boxes = kavetta.entries;
    boxes.metering_groove = "0";
    boxes.inlet_start_inner = "47.22";
    boxes.inlet_start_outer = "8.95";
    boxes.inlet_end_inner = "127.71";
    boxes.inlet_end_outer = "173.46";
    boxes.outlet_start_inner = "22.79";
    boxes.outlet_start_outer = "45.78";
    boxes.outlet_end_inner = "156.30";
    boxes.outlet_end_outer = "128.08";
    boxes.port_radii = "4";
    const ports_designed done = design_ports(kavetta, person);
    EXPECT_TRUE(done.inlet && done.outlet);
    EXPECT_TRUE(done.inlet_rebuilt) << "its own search had run out, and that was told";
    ASSERT_TRUE(shows_outline(kavetta.design_view.inlet_portline));
    EXPECT_EQ(kavetta.design_view.inlet_portline.elements.size(),
              static_cast<std::size_t>(kavetta.port_params.inlet.last));
    person.log.clear();
    calculate_profiles(kavetta, person);
    EXPECT_EQ(count("unload perf_res"), 2) << "Calculate Profiles designs the ports again";
}

TEST_F(design_ports_test, takes_the_groove_lines_away_when_the_groove_is_off) {
    design_ports(kavetta, person);
    set_porting_check(kavetta, &entries::metering_groove, "0");
    EXPECT_EQ(design_ports(kavetta, person), (ports_designed{true, true, false}));
    EXPECT_FALSE(shows_outline(kavetta.design_view.metering_groove_portline));
    EXPECT_FALSE(shows_outline(kavetta.design_view.metering_groove_extraline));
}

TEST_F(design_ports_test, applies_the_shadow_rule_to_boxes_that_no_click_checked) {
    kavetta.entries.inlet_double_sided = kavetta.entries.outlet_double_sided = "1";
    kavetta.entries.shadow_ports = "1";
    design_ports(kavetta, person);
    EXPECT_EQ(kavetta.entries.shadow_ports, "0");
    EXPECT_FALSE(kavetta.enabling.shadow_ports);
    EXPECT_TRUE(kavetta.enabling.calc_perf);
}

TEST_F(design_ports_test, check_boxes_never_change_the_outlines) {
    design_ports(kavetta, person);
    const port_params old = kavetta.port_params;
    kavetta.entries.inlet_double_sided = "1";
    kavetta.entries.shadow_ports = "0";
    design_ports(kavetta, person);
    EXPECT_EQ(kavetta.port_params.inlet.x, old.inlet.x);
    EXPECT_EQ(kavetta.port_params.outlet.y, old.outlet.y);
}

TEST_F(design_ports_test, converts_the_groove_depth_from_inches) {
    kavetta = opened_design("n07_inch_hydraulic");
    calculate_profiles(kavetta, person);
    kavetta.entries.metering_groove = "1";
    kavetta.entries.groove_length = "10";
    kavetta.entries.groove_width = "0.06";
    kavetta.entries.groove_depth = "0.04";
    EXPECT_EQ(design_ports(kavetta, person), ALL);
    EXPECT_EQ(kavetta.port_params.groove_depth_mm, 0.04 * 25.4);
    EXPECT_EQ(kavetta.port_params.groove_width_mm, 0.06 * 25.4);
    EXPECT_EQ(kavetta.port_params.groove_length_deg, 10.0);
}

TEST_F(design_ports_test, runs_again_after_calculate_profiles_when_an_inlet_is_on_display) {
    EXPECT_EQ(kavetta.port_params.inlet.last, 0) << "the first run found no inlet on display";
    design_ports(kavetta, person);
    const double old_end_deg = kavetta.port_params.inlet.corners[END_INNER].t_deg;
    kavetta.entries.inlet_end_inner = "149";
    kavetta.view_state.view_size = 6000;
    ASSERT_EQ(calculate_profiles(kavetta, person), run_end::ok);
    EXPECT_LT(kavetta.port_params.inlet.corners[END_INNER].t_deg, old_end_deg - 0.5)
        << "the new entry counts";
    const drawn_line& first = kavetta.design_view.inlet_portline.elements.front();
    const double scale = kavetta.view_state.view_scale;
    EXPECT_FLOAT_EQ(first.x1, float(scale * kavetta.port_params.inlet.x[0] + 3000.0 + scale * 2.85))
        << "in the new scale";
    EXPECT_TRUE(kavetta.enabling.calc_perf) << "a plain repeat does the whole first step";
    EXPECT_EQ(kavetta.app_state.recalc_quiet, 0);
}

TEST_F(design_ports_test, zoom_all_keeps_the_results) {
    design_ports(kavetta, person);
    kavetta.enabling.create_charts = true;
    kavetta.enabling.calc_perf = false;
    kavetta.app_state.zoom_all_requested = -1;
    person.log.clear();
    ASSERT_EQ(calculate_profiles(kavetta, person), run_end::ok);
    EXPECT_EQ(count("unload perf_res"), 0);
    EXPECT_TRUE(kavetta.enabling.create_charts);
    EXPECT_FALSE(kavetta.enabling.calc_perf);
    EXPECT_EQ(kavetta.app_state.recalc_quiet, 0);
    EXPECT_EQ(kavetta.app_state.zoom_all_requested, 0);
}

TEST_F(design_ports_test, a_quiet_run_that_a_groove_entry_stops_is_not_quiet_for_ever) {
    design_ports(kavetta, person);
    kavetta.entries.groove_width = "";
    kavetta.app_state.zoom_all_requested = -1;
    calculate_profiles(kavetta, person);
    EXPECT_EQ(kavetta.app_state.recalc_quiet, 0);
}

/// So wide that the end side of the outlet does not meet the inner path circle.
constexpr const char* GROOVE_TOO_WIDE = "36";

TEST_F(design_ports_test, a_run_time_failure_has_no_handler_of_its_own) {
    kavetta.entries.groove_width = GROOVE_TOO_WIDE;
    EXPECT_FAILURE(design_ports(kavetta, person), failure::invalid_procedure_call);
}

TEST_F(design_ports_test, a_failure_after_calculate_profiles_is_told_twice_and_ends_the_run) {
    design_ports(kavetta, person);
    kavetta.entries.groove_width = GROOVE_TOO_WIDE;
    kavetta.app_state.zoom_all_requested = -1;
    person.messages.clear();
    EXPECT_EQ(calculate_profiles(kavetta, person), run_end::error);
    const std::string told = "The value of Radius Outer Lobes is too small, enter a larger value";
    EXPECT_EQ(person.messages, (log_lines{told, told}));
    EXPECT_EQ(person.log.back(), "not busy");
    EXPECT_EQ(kavetta.app_state.recalc_quiet, 0);
    EXPECT_EQ(kavetta.app_state.zoom_all_requested, 0);
}

TEST_F(design_ports_test, new_rotors_leave_the_last_good_radius) {
    design_ports(kavetta, person);
    calculate_profiles(kavetta, person);
    EXPECT_EQ(kavetta.port_params.last_good_port_radius, 1.5);
}

TEST_F(design_ports_test, clear_values_empties_the_form_and_the_view_but_not_the_outlines) {
    design_ports(kavetta, person);
    const port_params old = kavetta.port_params;
    kavetta.enabling.mnudxf = kavetta.enabling.mnustep = false;
    clear_ports(kavetta, person);
    for (const entry_field& field : entry_fields()) {
        if (field.form == "portdes") {
            EXPECT_EQ(kavetta.entries.*field.member, field.kind == entry_kind::check ? "0" : "")
                << field.name;
        }
    }
    EXPECT_FALSE(kavetta.enabling.calc_perf);
    EXPECT_TRUE(kavetta.enabling.mnudxf && kavetta.enabling.mnustep);
    EXPECT_TRUE(kavetta.enabling.rotate_rotors_ccw && kavetta.enabling.rotate_rotors_cw);
    EXPECT_TRUE(kavetta.enabling.design_ports);
    const design_view& view = kavetta.design_view;
    for (const line_array* lines :
         {&view.inlet_portline, &view.outlet_portline, &view.angleline, &view.anglelineout,
          &view.metering_groove_portline, &view.metering_groove_extraline}) {
        EXPECT_EQ(lines->elements.size(), 1U);
        EXPECT_FALSE(lines->element0_visible);
    }
    EXPECT_EQ(kavetta.port_params.inlet.x, old.inlet.x);
    EXPECT_EQ(kavetta.port_params.groove_last, old.groove_last);
}

TEST_F(design_ports_test, clear_values_without_profiles_disables_the_button) {
    kavetta.app_state.profiles_calculated = 0;
    kavetta.enabling.design_ports = true;
    clear_ports(kavetta, person);
    EXPECT_FALSE(kavetta.enabling.design_ports);
}

}  // namespace
}  // namespace kvt
