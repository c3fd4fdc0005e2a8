// Tests of the Calculate Profiles run: its order, exits, messages, write-backs and enablings.
#include "app/stages/calculate_profiles.hpp"

#include "app/program.hpp"
#include "base/number_text.hpp"
#include "core/text_table.hpp"
#include "support/expect_failure.hpp"
#include "support/sample_design.hpp"
#include "support/scripted_user.hpp"

#include <algorithm>
#include <gtest/gtest.h>

namespace kvt {

namespace {

using texts = std::vector<std::string>;

const std::string MINIMUM_22_7 = "Minimum value for Outer Rotor Root Radius is 22.7";
const std::string SMALL_LOBES =
    "The value of Radius Outer Lobes is too small, enter a larger value";

struct profiles_run : testing::Test {
    program kavetta;
    scripted_user person;

    profiles_run() { kavetta.entries = sample_entries(); }

    entries& boxes() { return kavetta.entries; }

    /// What Open leaves in the record, so that the first run keeps the typed root radius.
    void keep_root_radius() {
        kavetta.design_params.ecc = val(boxes().ecc);
        kavetta.design_params.radinnroot = val(boxes().radinnroot);
    }

    run_end run() {
        person.messages.clear();
        person.log.clear();
        return calculate_profiles(kavetta, person);
    }

    bool view_is_empty() const {
        const design_view& view = kavetta.design_view;
        return view.Line1.elements.size() == 1 && !view.Line1.element0_visible &&
               !view.Shape1.visible && view.Picture1.empty();
    }

    bool logged(const std::string& line) const {
        return std::find(person.log.begin(), person.log.end(), line) != person.log.end();
    }
};

}  // namespace

TEST_F(profiles_run, of_a_sound_design_ends_ok_and_shows_the_pair) {
    keep_root_radius();
    EXPECT_EQ(run(), run_end::ok);
    EXPECT_TRUE(person.messages.empty());
    EXPECT_EQ(kavetta.labels.capacity, "6.0137");
    EXPECT_EQ(kavetta.labels.area_ratio, "28.65 %");
    EXPECT_EQ(kavetta.labels.max_chamb_vol, "1038 mm3");
    EXPECT_EQ(kavetta.labels.min_chamb_vol, "32.77 mm3");
    EXPECT_NEAR(kavetta.rotor_profiles.area_ratio, 28.655, 0.005);
    EXPECT_NEAR(kavetta.rotor_profiles.max_chamber_volume, 1038.655, 0.001);
    EXPECT_NEAR(kavetta.rotor_profiles.min_chamber_volume, 32.777, 0.005);
    EXPECT_EQ(kavetta.design_view.Line1.elements.size(), 3601U);
    EXPECT_EQ(kavetta.design_view.Picture1.size(), 28U);
    EXPECT_TRUE(kavetta.design_view.Shape1.visible);
}

TEST_F(profiles_run, unloads_the_result_forms_before_anything_else) {
    run();
    const texts unloaded = {
        "unload perf_res",        "unload result_tables",    "unload FLOW_graphview2",
        "unload LOAD_graphview2", "unload HERTZ_graphview2", "unload PRESS_RIP_graphview2",
        "unload VE_graphview2",   "unload EFFIC_graphview2", "unload OVREFF_graphview2"};
    ASSERT_GE(person.log.size(), unloaded.size());
    EXPECT_EQ(texts(person.log.begin(), person.log.begin() + 9), unloaded);
}

TEST_F(profiles_run, changes_the_enablings_although_a_message_stops_it) {
    boxes() = entries{};
    kavetta.enabling.calc_perf = true;
    kavetta.enabling.mnudataperf = true;
    EXPECT_EQ(run(), run_end::validation);
    const enabling& state = kavetta.enabling;
    EXPECT_TRUE(state.design_ports && state.rotate_rotors_ccw && state.rotate_rotors_cw);
    EXPECT_TRUE(state.mnudxf && state.mnustep && state.mnumodel && state.mnudata);
    EXPECT_FALSE(state.calc_perf || state.mnudataperf || state.GT_Sim_Button ||
                 state.create_charts);
    EXPECT_EQ(kavetta.app_state.profiles_calculated, -1);
}

TEST_F(profiles_run, of_a_new_program_asks_for_the_shaft_and_stops_at_once) {
    boxes() = entries{};
    EXPECT_EQ(run(), run_end::validation);
    EXPECT_EQ(person.messages, texts{"Input a value for the diameter of the shaft"});
    EXPECT_FALSE(logged("busy"));
    EXPECT_EQ(kavetta.rotor_profiles.troch_xy.size(), 7202U);
}

TEST_F(profiles_run, moves_the_focus_to_an_eccentricity_of_0) {
    boxes().ecc = "0";
    EXPECT_EQ(run(), run_end::validation);
    EXPECT_EQ(person.messages, texts{"The Eccentricity cannot be equal to zero!!"});
    EXPECT_EQ(person.log.back(), "focus ecc");
}

TEST_F(profiles_run, tells_clean_up_and_validation_in_one_go) {
    boxes().thick = "";
    boxes().numlobes = "2";
    boxes().radial_clear = "-1";
    EXPECT_EQ(run(), run_end::validation);
    ASSERT_EQ(person.messages.size(), 3U);
    EXPECT_EQ(person.messages[2], "Input the radial clearance of the rotor set");
    EXPECT_EQ(boxes().thick, "1");
    EXPECT_EQ(boxes().numlobes, "3");
}

TEST_F(profiles_run, reads_a_decimal_comma) {
    boxes().ecc = "2,85";
    boxes().radinnroot = "14,15";
    boxes().fillet = "1,5";
    EXPECT_EQ(run(), run_end::ok);
    EXPECT_EQ(boxes().ecc, "2.85");
    EXPECT_EQ(kavetta.design_params.ecc, 2.85);
    EXPECT_EQ(kavetta.design_params.fillet, 1.5);
}

TEST_F(profiles_run, fails_for_lobes_that_are_no_number) {
    boxes().numlobes = "seven";
    EXPECT_FAILURE(run(), failure::type_mismatch);
}

TEST_F(profiles_run, fails_for_an_eccentricity_of_0_0_which_the_validation_lets_pass) {
    boxes().ecc = "0.0";
    EXPECT_FAILURE(run(), failure::division_by_zero);
}

TEST_F(profiles_run, stops_at_the_shaft_check_with_an_empty_view) {
    run();
    boxes().shaftdiameter = "26";  // 2 * 14.15 < 26 + 2.5
    EXPECT_EQ(run(), run_end::failure);
    EXPECT_EQ(person.messages,
              texts{"The material thickness between the drive shaft and the Radius of Inner Root "
                    "is less than "
                    "specified. Reduce the shaft size or increase the Inner Root size."});
    EXPECT_TRUE(view_is_empty());
    EXPECT_EQ(person.log.back(), "not busy");
    EXPECT_EQ(kavetta.design_params.shaftdiameter, 26.0) << "what was read stays";
}

TEST_F(profiles_run, ends_at_the_curvature_check_through_the_closing_steps) {
    boxes().radouter = "30";
    kavetta.app_state.zoom_all_requested = -1;
    kavetta.view_state.view_zoom = 4.0;
    EXPECT_EQ(run(), run_end::closing);
    EXPECT_EQ(person.messages,
              texts{std::string(message_text(message::inner_rotor_errors, ENGLISH))});
    EXPECT_EQ(kavetta.app_state.zoom_all_requested, 0);
    EXPECT_EQ(kavetta.view_state.view_zoom, 1.0);
    EXPECT_EQ(person.log.back(), "not busy");
}

TEST_F(profiles_run, refuses_a_negative_eccentricity_by_its_curvature) {
    boxes().ecc = "-2.85";
    EXPECT_EQ(run(), run_end::closing);
    EXPECT_EQ(person.messages,
              texts{std::string(message_text(message::inner_rotor_errors, ENGLISH))});
}

TEST_F(profiles_run, warns_of_lobes_that_do_not_fit_and_goes_on) {
    boxes().numlobes = "3";
    boxes().ecc = "2.16";
    boxes().radouter = "7.56";
    boxes().radinnroot = "0.79";
    boxes().clearn = "0.04";
    boxes().shaftdiameter = "0.5";
    boxes().minmaterial = "0.5";
    boxes().fillet = "0";
    run();
    ASSERT_EQ(person.messages.size(), 2U);
    EXPECT_EQ(person.messages[0],
              "This design creates an inner rotor shape with errors. Try reducing the radius of "
              "the outer lobes.");
    EXPECT_EQ(person.messages[1].substr(0, 45), "Minimum value for Outer Rotor Root Radius is ");
    EXPECT_TRUE(kavetta.design_view.Shape1.visible);
}

TEST_F(profiles_run, stops_when_the_rotor_does_not_fit_the_maximum_diameter) {
    boxes().maxdiameter = "50";  // 25 < 22.7 + 2.5
    EXPECT_EQ(run(), run_end::failure);
    ASSERT_EQ(person.messages.size(), 2U);
    EXPECT_EQ(person.messages[0], MINIMUM_22_7);
    EXPECT_EQ(
        person.messages[1],
        "The rotor design to achieve this Volumetric Capacity will not fit in the maximum diameter "
        "specified. Try "
        "altering the number of lobes (up or down) or increasing the Max Outer Rotor Diameter.");
    EXPECT_TRUE(view_is_empty()) << "the inner rotor, drawn already, is cleared again";
    EXPECT_EQ(kavetta.labels.capacity, "6.0137") << "the capacity was computed before";
    EXPECT_EQ(kavetta.labels.area_ratio, "");
}

TEST_F(profiles_run, stops_when_the_fillets_are_too_large) {
    keep_root_radius();
    boxes().fillet = "8";
    kavetta.app_state.zoom_all_requested = -1;
    EXPECT_EQ(run(), run_end::failure);
    EXPECT_EQ(person.messages,
              texts{"The Outer Rotor Fillet Radii is too large. Select a smaller value."});
    EXPECT_TRUE(view_is_empty());
    EXPECT_EQ(kavetta.app_state.zoom_all_requested, -1) << "only the closing steps reset it";
}

TEST_F(profiles_run, reports_a_lobe_that_does_not_reach_the_root_in_english) {
    for (const std::int16_t language : {ENGLISH, GERMAN}) {
        kavetta.app_state.language = language;
        kavetta.labels.area_ratio = "12 %";
        boxes().radouter = "2";  // the lobe ends at 2 * 2 + 22.85 = 26.85, the root stands at 28.55
        boxes().radinnroot = "20";
        boxes().maxdiameter = "65";
        boxes().fillet = "0";
        boxes().outer_root = "";
        keep_root_radius();
        kavetta.view_state.view_zoom = 4.0;
        EXPECT_EQ(run(), run_end::error);
        ASSERT_FALSE(person.messages.empty());
        EXPECT_EQ(person.messages.back(), SMALL_LOBES);
        EXPECT_EQ(kavetta.labels.area_ratio, "12 %") << "an older label stays";
        EXPECT_EQ(kavetta.view_state.view_zoom, 1.0);
        EXPECT_EQ(person.log.back(), "not busy");
        EXPECT_EQ(kavetta.design_view.Line1.elements.size(), 3601U)
            << "the inner rotor stays on the screen";
    }
}

TEST_F(profiles_run, with_fillets_overflows_from_33_lobes_on) {
    boxes().numlobes = "33";
    boxes().ecc = "1";
    boxes().radouter = "4";
    boxes().radinnroot = "60";
    boxes().maxdiameter = "200";
    boxes().fillet = "0.5";
    EXPECT_EQ(run(), run_end::error);
    EXPECT_EQ(person.messages.back(), SMALL_LOBES);
    boxes().fillet = "0";
    EXPECT_EQ(run(), run_end::ok);
    boxes().numlobes = "32";
    boxes().fillet = "0.5";
    EXPECT_EQ(run(), run_end::ok);
}

TEST_F(profiles_run, keeps_ratio_and_chambers_of_the_run_before_an_error) {
    keep_root_radius();
    ASSERT_EQ(run(), run_end::ok);
    const rotor_profiles before = kavetta.rotor_profiles;
    boxes().numlobes = "33";
    boxes().ecc = "1";
    boxes().radouter = "4";
    boxes().radinnroot = "60";
    boxes().maxdiameter = "200";
    boxes().fillet = "0.5";
    ASSERT_EQ(run(), run_end::error);
    EXPECT_EQ(kavetta.labels.area_ratio, "28.65 %");
    EXPECT_EQ(kavetta.labels.max_chamb_vol, "1038 mm3");
    EXPECT_EQ(kavetta.labels.min_chamb_vol, "32.77 mm3");
    const rotor_profiles& after = kavetta.rotor_profiles;
    EXPECT_EQ(after.area_ratio, before.area_ratio);
    EXPECT_EQ(after.max_chamber_volume, before.max_chamber_volume);
    EXPECT_EQ(after.min_chamber_volume, before.min_chamber_volume);
    EXPECT_GT(after.capacity_cc, 1.0 + before.capacity_cc) << "the capacity comes before the error";
    EXPECT_EQ(kavetta.labels.capacity, after.capacity.text());
}

/// Notes the capacity on display when a message comes.
struct capacity_reader : scripted_user {
    const program& kavetta;
    texts shown;

    explicit capacity_reader(const program& read) : kavetta(read) {}
    void show_message(std::string_view text) override {
        shown.push_back(kavetta.labels.capacity);
        scripted_user::show_message(text);
    }
};

TEST_F(profiles_run, shows_the_capacity_before_it_warns_of_the_lobes) {
    boxes().numlobes = "3";
    boxes().ecc = "2.16";
    boxes().radouter = "7.56";
    boxes().radinnroot = "0.79";
    boxes().clearn = "0.04";
    boxes().shaftdiameter = "0.5";
    boxes().minmaterial = "0.5";
    boxes().fillet = "0";
    capacity_reader reader(kavetta);
    calculate_profiles(kavetta, reader);
    ASSERT_EQ(reader.messages.size(), 2U);
    EXPECT_EQ(reader.messages[0],
              "This design creates an inner rotor shape with errors. Try reducing the radius of "
              "the outer lobes.");
    // Tip 0.79 + 2 * 2.16 - 0.02 = 5.09, root 0.79: (25.9081 - 0.6241) * 3.1415927 * 10 / 1000.
    EXPECT_EQ(reader.shown[0], "0.7943");
}

TEST_F(profiles_run, warns_of_interference_and_ends_ok) {
    boxes().numlobes = "14";
    boxes().ecc = "2.4406";
    boxes().radouter = "9.3192";
    boxes().radinnroot = "34.3309";
    boxes().clearn = "0.0189";
    boxes().fillet = "2.3002";
    boxes().maxdiameter = "100";
    boxes().outer_root = "";
    for (const std::int16_t language : {ENGLISH, GERMAN}) {
        kavetta.app_state.language = language;
        boxes().outer_root = "";
        keep_root_radius();
        EXPECT_EQ(run(), run_end::ok);
        EXPECT_EQ(person.messages, texts{"Interference between 0.0018 and 0.0369mm occurs between "
                                         "Inner Rotor Profile and Outer Rotor "
                                         "Fillet. Choose a smaller value of Fillet Radius."});
    }
    boxes().fillet = "0";
    EXPECT_EQ(run(), run_end::ok);
    EXPECT_TRUE(person.messages.empty()) << "without fillets the check doesn't run";
}

TEST_F(profiles_run, tells_everything_else_in_german_for_language_2) {
    kavetta.app_state.language = GERMAN;
    struct row {
        std::string entries::*entry;
        const char* typed;
        message expected;
    };
    const row rows[] = {
        {&entries::thick, "", message::rotors_need_thickness},
        {&entries::numlobes, "2", message::lobe_number_minimum},
        {&entries::ecc, "0", message::eccentricity_zero},
        {&entries::shaftdiameter, "0", message::input_shaftdiameter},
        {&entries::shaftdiameter, "26", message::shaft_material_too_thin},
        {&entries::radouter, "30", message::inner_rotor_errors},
        {&entries::fillet, "8", message::fillet_too_large},
        {&entries::maxdiameter, "49", message::does_not_fit_diameter},
    };
    for (const row& refused : rows) {
        boxes() = sample_entries();
        boxes().*refused.entry = refused.typed;
        boxes().outer_root = "";
        keep_root_radius();
        run();
        ASSERT_FALSE(person.messages.empty()) << refused.typed;
        EXPECT_EQ(person.messages.front(), message_text(refused.expected, GERMAN));
        EXPECT_NE(person.messages.front(), message_text(refused.expected, ENGLISH));
    }
}

TEST_F(profiles_run, tells_the_new_root_radius_once_after_a_change_of_the_eccentricity) {
    // a = (7.5 + 14.25 + 3.25) / (1/4 + 1) = 20 and b = 5 without rounding, so the minimum
    // 3.25 + 20 + 5 + 3.25 - 7.5 is 24 exactly, and its text reads back as the same number.
    boxes().numlobes = "5";
    boxes().ecc = "3.25";
    boxes().radinnroot = "14.25";
    boxes().maxdiameter = "56";
    EXPECT_EQ(run(), run_end::ok);
    EXPECT_EQ(person.messages, texts{"Minimum value for Outer Rotor Root Radius is 24"});
    EXPECT_EQ(boxes().outer_root, "24");
    EXPECT_EQ(kavetta.design_params.outer_root, 24.0);
    run();
    EXPECT_EQ(person.messages, texts{});
}

TEST_F(profiles_run, tells_a_root_radius_again_whose_text_reads_back_below_it) {
    // a = 24.5 / (1/6 + 1) = 21 and b = 3.5; 2.85 + 21 + 3.5 + 2.85 is 30.200000000000003, and
    // less 7.5 it is one step of a double above 22.7, the number of its 15-digit text.
    EXPECT_EQ(run(), run_end::ok);
    EXPECT_EQ(person.messages, texts{MINIMUM_22_7});
    EXPECT_EQ(boxes().outer_root, "22.7");
    EXPECT_EQ(kavetta.design_params.outer_root, 22.700000000000003);
    run();
    EXPECT_EQ(person.messages, texts{MINIMUM_22_7});
}

TEST_F(profiles_run, keeps_a_root_radius_typed_between_two_runs) {
    run();
    boxes().outer_root = "23.4";
    EXPECT_EQ(run(), run_end::ok);
    EXPECT_EQ(kavetta.design_params.outer_root, 23.4);
    EXPECT_EQ(boxes().outer_root, "23.4");
    EXPECT_TRUE(person.messages.empty());
}

TEST_F(profiles_run, lowers_a_root_radius_typed_too_large) {
    boxes().maxdiameter = "60";
    run();
    boxes().outer_root = "25";
    EXPECT_EQ(run(), run_end::ok);
    EXPECT_EQ(person.messages, texts{"Maximum value for Outer Rotor Root Radius is 24.44"});
    EXPECT_EQ(boxes().outer_root, "24.44");
}

namespace {

struct inch_run : profiles_run {
    inch_run() {
        kavetta.app_state.drawing_units = INCHES;
        boxes().ecc = "0.12";
        boxes().radouter = "0.3";
        boxes().radinnroot = "0.6";
        boxes().clearn = "0.004";
        boxes().thick = "0.5";
        boxes().shaftdiameter = "0.75";
        boxes().minmaterial = "0.12";
        boxes().maxdiameter = "2.25";
        boxes().fillet = "0.06";
    }
};

}  // namespace

TEST_F(inch_run, drops_the_root_radius_on_every_run_and_tells_the_minimum_in_inches) {
    const texts minimum = {"Minimum value for Outer Rotor Root Radius is 0.96"};
    EXPECT_EQ(run(), run_end::ok);
    EXPECT_EQ(person.messages, minimum);
    boxes().outer_root = "1";
    EXPECT_EQ(run(), run_end::ok);
    EXPECT_EQ(person.messages, minimum);
    EXPECT_EQ(boxes().outer_root, "0.96");
    EXPECT_NEAR(kavetta.design_params.outer_root, 24.384, 1e-12);
}

TEST_F(inch_run, after_open_takes_the_file_s_root_radius_as_millimetres) {
    boxes().outer_root = "1";  // 25.4 mm lies within the limits of 24.384 and 25.8572, 1 mm doesn't
    boxes().maxdiameter = "3";
    keep_root_radius();
    EXPECT_EQ(run(), run_end::ok);
    EXPECT_EQ(person.messages, texts{"Minimum value for Outer Rotor Root Radius is 0.96"});
}

TEST_F(profiles_run, takes_the_inches_of_the_option_buttons) {
    run();
    EXPECT_EQ(kavetta.design_params.thick, 10.0);
    kavetta.app_state.drawing_units = INCHES;
    run();
    EXPECT_EQ(kavetta.design_params.thick, 254.0);
    EXPECT_EQ(kavetta.design_params.clearn_half, 0.12 * 12.7);
}

TEST_F(profiles_run, returns_the_rotors_to_their_starting_position) {
    kavetta.view_state.rotation_angle = 33.0;
    boxes().rotated_angle = "33";
    run();
    EXPECT_EQ(kavetta.view_state.rotation_angle, 0.0);
    EXPECT_EQ(boxes().rotated_angle, "0");
}

TEST_F(profiles_run, stopped_by_the_validation_leaves_the_view_and_its_angle) {
    run();
    kavetta.view_state.rotation_angle = 33.0;
    boxes().clearn = "0";
    EXPECT_EQ(run(), run_end::validation);
    EXPECT_EQ(kavetta.view_state.rotation_angle, 33.0);
    EXPECT_EQ(kavetta.design_view.Line1.elements.size(), 3601U);
}

TEST_F(profiles_run, asked_for_by_zoom_all_keeps_results_and_enablings) {
    run();
    kavetta.enabling.calc_perf = true;
    kavetta.app_state.profiles_calculated = 0;
    kavetta.app_state.zoom_all_requested = -1;
    run();
    EXPECT_FALSE(logged("unload perf_res"));
    EXPECT_TRUE(kavetta.enabling.calc_perf);
    EXPECT_EQ(kavetta.app_state.profiles_calculated, 0);
    EXPECT_EQ(kavetta.app_state.zoom_all_requested, 0);
}

TEST_F(profiles_run, sets_the_scale_and_the_centre_of_the_view) {
    kavetta.view_state.view_size = 6000;
    run();
    EXPECT_EQ(kavetta.view_state.view_scale, 6000.0 * 0.95 / 52.0);
    EXPECT_EQ(kavetta.view_state.view_cx, 3000.0);
    EXPECT_EQ(kavetta.view_state.view_cy, 3000.0);
    EXPECT_EQ(kavetta.view_state.view_zoom, 1.0);
}

TEST_F(profiles_run, shows_the_hourglass_from_after_the_validation_to_the_end) {
    run();
    const auto busy = std::find(person.log.begin(), person.log.end(), "busy");
    ASSERT_NE(busy, person.log.end());
    EXPECT_EQ(person.log.back(), "not busy");
}

TEST_F(profiles_run, of_resolution_9_plots_400_points_and_the_closing_one) {
    boxes().coarseness = "9";
    EXPECT_EQ(run(), run_end::ok);
    EXPECT_EQ(kavetta.rotor_profiles.inner_plot_xy.size(), 802U);
    EXPECT_EQ(kavetta.design_view.Line1.elements.size(), 401U);
    EXPECT_EQ(kavetta.rotor_profiles.outer_xy_last, 7001)
        << "the outer profile doesn't depend on it";
}

TEST_F(profiles_run, of_a_resolution_of_7_that_was_not_caught_ends_ok) {
    boxes().coarseness = "7.0";
    EXPECT_EQ(run(), run_end::ok);
    EXPECT_EQ(kavetta.rotor_profiles.inner_plot_xy.size(), 1031U);
    EXPECT_EQ(kavetta.design_view.Line1.elements.size(), 515U);
}

TEST_F(profiles_run, gives_the_same_numbers_each_time) {
    keep_root_radius();
    run();
    const rotor_profiles first = kavetta.rotor_profiles;
    boxes().numlobes = "9";
    run();
    boxes().numlobes = "7";
    boxes().outer_root = "22.9";
    run();
    EXPECT_EQ(kavetta.rotor_profiles.inner_x, first.inner_x);
    EXPECT_EQ(kavetta.rotor_profiles.outer_xy, first.outer_xy);
    EXPECT_EQ(kavetta.labels.area_ratio, "28.65 %");
}

}  // namespace kvt
