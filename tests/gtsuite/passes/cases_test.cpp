#include "gtsuite/pass_case.hpp"
#include "support/expect_failure.hpp"

#include <algorithm>

namespace kvt {
namespace {

const model_lines TABLE = {"    <parameter_table>", "old", "    </parameter_table>", "x"};

model_lines passed_lines(const pump_values& pump = hand_made_pump()) {
    return run_pass(add_parameters_and_cases, TABLE, pump).lines;
}

/// The eighteen items of a case, 0 .. 35.
model_lines items_of(const model_lines& lines, int number) {
    auto at = lines.begin();
    for (int i = 0; i <= number; ++i) {
        at = std::find_if(at, lines.end(), [](const std::string& line) {
            return line.starts_with("        <case");
        });
        ++at;
    }
    return {at, at + 18};
}

std::string item(const std::string& name, const std::string& text) {
    return "            <item parameter=\"" + name + "\" text=\"" + text + "\"/>";
}

TEST(add_parameters_and_cases, writes_eighteen_parameters_behind_the_table) {
    const passed done = run_pass(add_parameters_and_cases, TABLE);
    const model_lines& lines = done.lines;
    EXPECT_EQ(lines[1],
              "        <parameter folder=\"1\" name=\"DesiredPressureDrop-bar\" order=\"-1\" "
              "unitID=\"25\">");
    EXPECT_EQ(lines[2], "            <aa id=\"9\"/>");
    EXPECT_EQ(lines[3], "        </parameter>");
    EXPECT_EQ(lines[13],
              "        <parameter folder=\"1\" name=\"FLUID\" order=\"0\" unitID=\"0\">");
    EXPECT_EQ(lines[52],
              "        <parameter desc=\"Shadow Port ON = 1; Shadow Port OFF =0\" folder=\"1\" "
              "name=\"Shadow_Port_Enable\" order=\"5\" unitID=\"0\">");
    EXPECT_EQ(lines[55], "old");
    EXPECT_EQ(lines[56], "    </parameter_table>");
    EXPECT_EQ(lines[57], "    <cases>");
    EXPECT_EQ(lines[lines.size() - 2], "    </cases>");
    EXPECT_EQ(lines.back(), "x");
    expect_count(done, 54, 54 + 2 + 36 * 20);
}

TEST(add_parameters_and_cases, writes_one_item_a_parameter_into_a_case) {
    EXPECT_EQ(
        items_of(passed_lines(), 0),
        (model_lines{item("DesiredPressureDrop-bar", "2"),
                     item("ExpectedFlow-LPM",
                          "=((2154.25-35.5)*[Rotor_Width]/12.5)/1000*5*[rpm]/1000$$UNITS:RPM=139"),
                     item("OutletRestrictArea",
                          "=[ExpectedFlow-LPM]/60000/sqrt(2*[desiredpressuredrop-bar]*101300/"
                          "[fluid_density])*1e6"),
                     item("RPM", "1000"), item("FLUID", "oil_A"), item("Tip_Clearance", "100"),
                     item("TEMP", "303"), item("WALLTEMP", "303"), item("Fluid_Density", "860"),
                     item("Fluid_Viscosity", "32"), item("Axial_Clearance_Each_Side", "25"),
                     item("Radial_Clearance", "150"), item("Rotor_Width", "12.5"),
                     item("Rotor_Diameter", "80"), item("Shaft_Bearing_Length", "16"),
                     item("Shaft_Bearing_Clearance", "17"), item("Coefficient_Friction", "0.05"),
                     item("Shadow_Port_Enable", "0")}));
}

TEST(add_parameters_and_cases, goes_through_the_pressures_of_one_speed_after_the_other) {
    const model_lines lines = passed_lines();
    EXPECT_EQ(std::ranges::count(
                  lines, "        <case label=\"[rpm] RPM : [desiredpressuredrop-bar] bar\">"),
              36);
    for (int i = 0; i < 6; ++i) {
        for (int j = 0; j < 6; ++j) {
            const model_lines items = items_of(lines, i * 6 + j);
            EXPECT_EQ(items[3], item("RPM", std::to_string(1000 + 100 * i)));
            EXPECT_EQ(items[0], item("DesiredPressureDrop-bar",
                                     std::to_string(2 + j / 2) + (j % 2 == 0 ? "" : ".5")));
        }
    }
}

TEST(add_parameters_and_cases, switches_the_shadow_ports_on_for_shadow_ports_alone) {
    pump_values pump = hand_made_pump();
    pump.shadow_ports = true;
    EXPECT_EQ(items_of(passed_lines(pump), 35)[17], item("Shadow_Port_Enable", "1"));
}

TEST(add_parameters_and_cases, needs_both_ends_of_the_table) {
    EXPECT_FAILURE(run_pass(add_parameters_and_cases, {"    <parameter_table>"}),
                   failure::input_past_end);
    EXPECT_FAILURE(run_pass(add_parameters_and_cases, {"    </parameter_table>"}),
                   failure::input_past_end);
}

}  // namespace
}  // namespace kvt
