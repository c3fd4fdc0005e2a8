// Tests of the summaries of the ports and of the performance: their values, units and languages.
#include "base/text_file.hpp"
#include "kvt/kvt_run.hpp"

#include <sstream>

namespace kvt {
namespace {

/// The words of the first line that begins with a text, after that text.
std::vector<std::string> words_after(const std::string& report, const std::string& beginning) {
    for (const std::string& line : split_lines(report)) {
        if (line.starts_with(beginning)) {
            std::istringstream rest(line.substr(beginning.size()));
            return {std::istream_iterator<std::string>(rest), {}};
        }
    }
    return {};
}

using words = std::vector<std::string>;

/// The lines of a table below its caption: the axis and six speeds.
std::vector<std::string> table_lines(const std::string& report, const std::string& caption) {
    const std::vector<std::string> lines = split_lines(report);
    const auto found = std::find(lines.begin(), lines.end(), caption);
    return lines.end() - found < 8 ? std::vector<std::string>()
                                   : std::vector<std::string>(found + 1, found + 8);
}

std::string summary_of(const std::string& design, const std::vector<std::string>& options = {}) {
    std::vector<std::string> arguments = {"calc", example(design)};
    arguments.insert(arguments.end(), options.begin(), options.end());
    return run_kvt(arguments).out;
}

TEST(port_summary, shows_both_ports_with_the_inlet_below_the_axis) {
    const std::string report = summary_of("engine_oil");
    const json ports = calc_engine_oil({}).report()["port_params"];
    const words corner = words_after(report, "Corner Centre 1");
    ASSERT_EQ(corner.size(), 12U);
    EXPECT_NEAR(std::stod(corner[1]), ports["inlet_c1_x"], 0.0001);
    EXPECT_NEAR(std::stod(corner[4]), -ports["inlet_c1_y"].get<double>(), 0.0001);
    EXPECT_NEAR(std::stod(corner[7]), ports["outlet_c1_x"], 0.0001);
    EXPECT_NEAR(std::stod(corner[10]), ports["outlet_c1_y"], 0.0001);
    EXPECT_EQ(corner[2], "mm");
}

TEST(port_summary, shows_the_groove_of_a_design_that_has_one) {
    EXPECT_NE(summary_of("engine_oil").find("Nose Corner Radius"), std::string::npos);
    EXPECT_EQ(summary_of("engine_oil", {"--set", "metering_groove=0"}).find("Nose Corner Radius"),
              std::string::npos);
}

TEST(port_summary, shows_inches_for_a_design_in_inches) {
    const words radius = words_after(summary_of("inch_hydraulic"), "Port Fillet Radii");
    ASSERT_EQ(radius.size(), 4U);
    EXPECT_EQ(radius[1], "in");
    EXPECT_LT(std::stod(radius[0]), 1.0);
}

TEST(performance_summary, shows_a_table_over_speeds_and_pressures) {
    const std::vector<std::string> table =
        table_lines(summary_of("engine_oil"), "Pump Flow (Lit/min)");
    ASSERT_EQ(table.size(), 7U);
    const json results = calc_engine_oil({}).report()["perf_results"];
    const words last = words_after(table[6], "");
    ASSERT_EQ(last.size(), 7U);
    EXPECT_NEAR(std::stod(last[0]), results["speed_rpm"][5], 0.001);
    EXPECT_NEAR(std::stod(last[6]), results["flow_m3s"][5][5].get<double>() * 60000.0, 0.001);
}

TEST(performance_summary, shows_seven_tables_in_either_language_and_unit) {
    for (const std::string caption :
         {"Pump Flow (USGall/min)", "Volumetric Efficiency (%)", "Mechanical Efficiency (%)",
          "Overall Efficiency (%)", "Pump Drive Power (HP)", "Maximum Hertz (Contact) Stress (Ksi)",
          "Shaft Side Load (lbsf)"}) {
        EXPECT_EQ(table_lines(summary_of("inch_hydraulic"), caption).size(), 7U) << caption;
    }
    for (const std::string caption :
         {"Pumpen Sie Ablauf (Lit/min)", "Volumetric Wirkungsgrad (%)",
          "Mechanischer Wirkungsgrad (%)", "Gesamtwirkungsgrad (%)", "Pumpen Sie Antriebkraft (KW)",
          "Größte Hertz (Kontakt) Spannung (MPa)", "Wellenseitenkraft (N)"}) {
        EXPECT_EQ(table_lines(summary_of("engine_oil", {"--language", "2"}), caption).size(), 7U)
            << caption;
    }
}

/// 746 watts are one horsepower.
TEST(performance_summary, shows_horsepower_beside_inches) {
    const std::vector<std::string> table =
        table_lines(summary_of("inch_hydraulic"), "Pump Drive Power (HP)");
    ASSERT_EQ(table.size(), 7U);
    const json report = run_kvt({"calc", example("inch_hydraulic"), "--json", "-"}).report();
    const double watts = report["perf_results"]["drive_power"][5][5];
    EXPECT_NEAR(std::stod(words_after(table[6], "").at(6)), watts / 746.0, 0.0005001);
    EXPECT_GT(watts / 745.7 - watts / 746.0, 0.001) << "else the factor would not show";
}

TEST(performance_summary, shows_the_headline_results_as_perf_res_does) {
    const json labels = calc_engine_oil({}).report()["labels"];
    const std::string report = summary_of("engine_oil");
    for (const char* label :
         {"max_speed", "max_shaft_side_load", "max_cutter_inner", "Label5", "Label1"}) {
        EXPECT_NE(report.find(labels[label].get<std::string>()), std::string::npos) << label;
    }
}

}  // namespace
}  // namespace kvt
