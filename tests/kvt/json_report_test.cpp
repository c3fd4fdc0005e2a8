// Tests of the JSON's shape: names, texts, numbers, and arrays cut to their used length.
#include "kvt/json_report.hpp"

#include "app/program.hpp"
#include "base/number_text.hpp"
#include "core/entries.hpp"
#include "kvt/kvt_run.hpp"

#include <limits>

namespace kvt {
namespace {

TEST(json_report, gives_every_entry_of_the_three_input_forms) {
    const json boxes = calc_engine_oil({}).report()["entries"];
    std::size_t expected = 0;
    for (const entry_field& field : entry_fields()) {
        const bool input =
            field.form == "Form1" || field.form == "portdes" || field.form == "Perffrm";
        EXPECT_EQ(boxes.contains(std::string(field.name)), input) << field.name;
        expected += input ? 1 : 0;
    }
    EXPECT_EQ(boxes.size(), expected);
    EXPECT_EQ(boxes["volumereqd"], "7.5");
    EXPECT_EQ(boxes["metering_groove"], "1");
    EXPECT_EQ(boxes["inlet_double_sided"], "0");
    EXPECT_EQ(boxes["Face_area_value"], "100");
}

TEST(json_report, gives_the_labels_as_the_forms_show_them) {
    const json labels = calc_engine_oil({}).report()["labels"];
    EXPECT_EQ(labels.size(), 13U);  // Form1's six, the six of perf_res, and the angle
    EXPECT_EQ(calc_engine_oil({"--stage", "ports"}).report()["labels"].size(), 7U);
    EXPECT_EQ(labels["units_label"], "Lit/Min/1000rpm");
    EXPECT_EQ(labels["unittype"], "Lit/Min/1000rpm");
    EXPECT_EQ(labels["rotated_angle"], "0");
    EXPECT_TRUE(labels["area_ratio"].get<std::string>().ends_with(" %"));
    EXPECT_TRUE(labels["max_chamb_vol"].get<std::string>().ends_with(" mm3"));
    EXPECT_TRUE(labels["min_chamb_vol"].get<std::string>().ends_with(" mm3"));
}

TEST(json_report, gives_the_inputs_in_millimetres) {
    const json design = calc_engine_oil({}).report()["design_params"];
    EXPECT_EQ(design, json({{"numlobes", 8},
                            {"ecc", 2.6},
                            {"radouter", 6.8},
                            {"radinnroot", 17.0},
                            {"clearn_half", 0.05},
                            {"thick", 12.0},
                            {"shaftdiameter", 28.0},
                            {"minmaterial", 3.0},
                            {"maxdiameter", 58.0},
                            {"axial_clear", 0.06},
                            {"radial_clear", 0.15},
                            {"fillet", 1.2},
                            {"outer_root", 25.0},
                            {"coarseness", 1}}));
}

TEST(json_report, gives_the_capacity_as_its_exact_text) {
    const json report = calc_engine_oil({}).report();
    EXPECT_EQ(report["rotor_profiles"]["capacity"], report["labels"]["capacity"]);
    EXPECT_EQ(val(report["labels"]["capacity"].get<std::string>()),
              report["rotor_profiles"]["capacity_cc"]);
}

TEST(json_report, gives_no_arrays_unless_asked_for_the_full_form) {
    const json report = calc_engine_oil({}).report();
    EXPECT_EQ(report["rotor_profiles"].size(), 16U);
    for (const auto& item : report["rotor_profiles"].items()) {
        EXPECT_FALSE(item.value().is_array()) << item.key();
    }
    EXPECT_FALSE(report.contains("view"));
}

std::size_t length(const json& rotors, const char* name) {
    return rotors.at(name).size();
}

TEST(json_report, cuts_the_arrays_to_their_used_length) {
    const json rotors =
        calc_engine_oil({"--full", "--stage", "profiles"}).report()["rotor_profiles"];
    EXPECT_EQ(rotors["profile_points"], 3600.0);
    EXPECT_EQ(length(rotors, "troch_x"), 3601U);
    EXPECT_EQ(length(rotors, "troch_y"), 3601U);
    EXPECT_EQ(length(rotors, "troch_angle"), 3600U);
    EXPECT_EQ(length(rotors, "troch_slope"), 3600U);
    EXPECT_EQ(length(rotors, "troch_xy"), 7202U);
    EXPECT_EQ(length(rotors, "inner_x"), 3600U);
    EXPECT_EQ(length(rotors, "inner_y"), 3600U);
    EXPECT_EQ(length(rotors, "inner_plot_xy"), 7202U);
    EXPECT_EQ(length(rotors, "outer_xy"), rotors["outer_xy_last"].get<std::size_t>() + 1);
    EXPECT_EQ(length(rotors, "outer_x"), rotors["outer_last"].get<std::size_t>() + 1);
    EXPECT_EQ(length(rotors, "outer_y"), rotors["outer_last"].get<std::size_t>() + 1);
    EXPECT_EQ(length(rotors, "fillet_x"), 101U);
    EXPECT_EQ(length(rotors, "fillet_r"), 101U);
}

TEST(json_report, gives_no_fillet_points_for_a_design_without_fillets) {
    const json rotors = calc_engine_oil({"--full", "--stage", "profiles", "--set", "fillet=0"})
                            .report()["rotor_profiles"];
    EXPECT_EQ(length(rotors, "fillet_x"), 0U);
    EXPECT_EQ(length(rotors, "fillet_y"), 0U);
    EXPECT_EQ(length(rotors, "fillet_r"), 0U);
}

TEST(json_report, gives_the_outlines_of_the_ports_up_to_their_last_point) {
    const json report = calc_engine_oil({"--full", "--stage", "ports"}).report();
    const json& ports = report["port_params"];
    EXPECT_EQ(report["report_lines"].size(), 24U);
    for (const std::string port : {"inlet_port", "outlet_port", "groove"}) {
        const std::size_t count = ports[port + "_last"].get<std::size_t>() + 1;
        EXPECT_GT(count, 100U) << port;
        EXPECT_EQ(length(ports, (port + "_x").c_str()), count) << port;
        EXPECT_EQ(length(ports, (port + "_y").c_str()), count) << port;
    }
    EXPECT_FALSE(calc_engine_oil({}).report()["port_params"].contains("inlet_port_x"));
}

TEST(json_report, gives_the_plotted_points_of_a_coarser_drawing) {
    const json rotors = calc_engine_oil({"--full", "--stage", "profiles", "--set", "coarseness=9"})
                            .report()["rotor_profiles"];
    EXPECT_EQ(length(rotors, "inner_plot_xy"), 802U);  // 400 points and the closing one
}

TEST(json_report, gives_the_outer_profile_twice_in_the_same_numbers) {
    const json rotors =
        calc_engine_oil({"--full", "--stage", "profiles"}).report()["rotor_profiles"];
    for (std::size_t i = 0; i < length(rotors, "outer_x"); ++i) {
        ASSERT_EQ(rotors["outer_x"][i], rotors["outer_xy"][2 * i]) << i;
        ASSERT_EQ(rotors["outer_y"][i], rotors["outer_xy"][2 * i + 1]) << i;
    }
}

TEST(json_report, gives_the_lines_and_arcs_of_the_design_view) {
    const json view = calc_engine_oil({"--full", "--stage", "ports"}).report()["view"];
    EXPECT_EQ(view["Line1"].size(), 3601U);  // 3600 pairs of neighbours and the closing line
    EXPECT_EQ(view["Picture1"].size(),
              8U * 4U);  // two fillets, the lobe and the root of each of 8 lobes
    EXPECT_EQ(view["Shape1"]["visible"], true);
    EXPECT_GT(view["inlet_portline"].size(), 100U);
    EXPECT_EQ(calc_engine_oil({"--full", "--stage", "profiles"}).report()["view"]["inlet_portline"],
              json::array());
    for (const char* field : {"x1", "y1", "x2", "y2"}) {
        EXPECT_TRUE(view["Line1"][0][field].is_number()) << field;
    }
    for (const char* field : {"x", "y", "radius", "start_angle", "end_angle"}) {
        EXPECT_TRUE(view["Picture1"][0][field].is_number()) << field;
    }
}

/// Each text of a result is its number, shortened by the rule of its label.
TEST(json_report, gives_the_number_behind_each_text_of_a_result) {
    const json report = calc_engine_oil({}).report();
    const json& numbers = report["numbers"];
    const json& labels = report["labels"];
    EXPECT_EQ(numbers.size(), 9U);
    const std::map<std::string, std::pair<std::string, double>> rules = {
        {"capacity", {"capacity", 0.0}},
        {"area_ratio", {"area_ratio", 0.01}},
        {"max_chamb_vol", {"max_chamb_vol", 1.0}},
        {"min_chamb_vol", {"min_chamb_vol", 1.0}},
        {"max_speed", {"max_speed", 1.0}},
        {"max_shaft_side_load", {"max_shaft_side_load", 0.01}},
        {"side_load_direction", {"side_load_direction", 0.01}},
        {"max_cutter_inner", {"max_cutter_inner", 0.0}}};
    for (const auto& [number, rule] : rules) {
        const double shown = val(labels.at(rule.first).get<std::string>());
        const double value = numbers.at(number);
        EXPECT_GE(value, shown) << number;
        EXPECT_LE(value, shown + rule.second) << number;
    }
    EXPECT_EQ(numbers["ripple_percent"], report["perf_results"]["ripple_percent"]);
    EXPECT_EQ(numbers["max_shaft_side_load"], report["perf_results"]["side_load"][5][5]);
}

TEST(json_report, gives_no_number_for_a_result_without_text) {
    EXPECT_EQ(calc_engine_oil({"--stage", "ports"}).report()["numbers"].size(), 4U);
    const json refused = calc_engine_oil({"--set", "shaftdiameter=0"}).report();
    EXPECT_EQ(refused["numbers"].size(), 1U) << "the capacity that the project holds";
    EXPECT_FALSE(calc_engine_oil({}).report()["perf_results"].contains("max_speed_rpm"));
}

TEST(json_report, gives_the_hints_apart_from_the_messages) {
    program kavetta;
    add_hint(kavetta.hints, "look here");
    add_hint(kavetta.hints, "and there", hint_weight::scraps_part);
    const json report = json::parse(json_report(kavetta, {"told"}, {}, false));
    EXPECT_EQ(report["messages"], json::array({"told"}));
    EXPECT_EQ(report["hints"], json::array({"look here", "and there"}));
    EXPECT_EQ(json::parse(json_report(program(), {}, {}, false))["hints"], json::array());
}

TEST(json_report, keeps_every_bit_of_a_number) {
    program kavetta;
    kavetta.design_params.ecc = 0.1 + 0.2;
    kavetta.design_params.fillet = std::numeric_limits<double>::denorm_min();
    kavetta.design_params.thick = 1.0 / 3.0;
    const json design =
        json::parse(json_report(kavetta, {}, {.profiles_reached = true}, false))["design_params"];
    EXPECT_EQ(design["ecc"].get<double>(), 0.1 + 0.2);
    EXPECT_EQ(design["fillet"].get<double>(), std::numeric_limits<double>::denorm_min());
    EXPECT_EQ(design["thick"].get<double>(), 1.0 / 3.0);
}

TEST(json_report, replaces_bytes_that_are_no_utf8) {
    program kavetta;
    kavetta.entries.friction = "0.1\xFF";
    const json report = json::parse(json_report(kavetta, {"\xE4"}, {}, false));
    EXPECT_EQ(report["entries"]["friction"], "0.1\xEF\xBF\xBD");
    EXPECT_EQ(report["messages"][0], "\xEF\xBF\xBD");
}

TEST(json_report, shows_umlauts_of_a_file_as_utf8) {
    const temporary_folder folder;
    const std::string project = changed_project(folder, {{36, "860 f\xC3\xBCr \xC3\x96l"}});
    EXPECT_EQ(split_lines(read_file(project))[35], "860 f\xFCr \xD6l");
    const json report = run_kvt({"calc", project, "--json", "-"}).report();
    EXPECT_EQ(report["entries"]["fluid_density"], "860 f\xC3\xBCr \xC3\x96l");
}

}  // namespace
}  // namespace kvt
