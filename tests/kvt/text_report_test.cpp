// Tests of the summary on standard output.
#include "base/text_file.hpp"
#include "kvt/kvt_run.hpp"

#include <algorithm>

namespace kvt {
namespace {

/// Captions without their values: a caption ends where the blanks before the column of the values
/// begin.
std::vector<std::string> captions_of(const std::string& report) {
    std::vector<std::string> found;
    for (const std::string& line : split_lines(report)) {
        found.push_back(line.substr(0, line.find("  ")));
    }
    return found;
}

std::string value_of(const std::string& report, const std::string& caption) {
    for (const std::string& line : split_lines(report)) {
        if (line.starts_with(caption + "  ")) {
            return line.substr(line.find_first_not_of(' ', caption.size()));
        }
    }
    return "(no line " + caption + ")";
}

TEST(text_report, shows_entries_with_units_and_the_results) {
    const std::string report = run_kvt({"calc", example("engine_oil"), "--stage", "profiles"}).out;
    EXPECT_EQ(captions_of(report),
              (std::vector<std::string>{
                  "No. Outer Lobes", "Eccentricity", "Radius Outer Lobes", "Radius Inner Root",
                  "Rotor Thickness", "Outer Rotor Fillet Radii", "Outer Rotor Root Radius",
                  "Approx. Capacity", "Area Ratio", "Max Chamber Volume", "Min Chamber Volume",
                  "Trochoid Ratio", "Base Circle Radius", "Rolling Circle Radius", "Ended"}));
    EXPECT_EQ(value_of(report, "No. Outer Lobes"), "8");
    EXPECT_EQ(value_of(report, "Eccentricity"), "2.6 mm");
    EXPECT_EQ(value_of(report, "Outer Rotor Root Radius"), "25 mm");
    EXPECT_EQ(value_of(report, "Trochoid Ratio"), "1.2668");  // (6.8 + 17 + 2.6 - 0.05) / (8 * 2.6)
    EXPECT_EQ(value_of(report, "Base Circle Radius"), "23.1 mm");    // 26.4 * 7 / 8
    EXPECT_EQ(value_of(report, "Rolling Circle Radius"), "3.3 mm");  // 26.4 / 8
    EXPECT_EQ(value_of(report, "Ended"), "ok");
}

TEST(text_report, shows_what_the_labels_show) {
    const std::string report = run_kvt({"calc", example("engine_oil")}).out;
    const json labels = calc_engine_oil({}).report()["labels"];
    EXPECT_EQ(value_of(report, "Approx. Capacity"),
              labels["capacity"].get<std::string>() + " Lit/Min/1000rpm");
    EXPECT_EQ(value_of(report, "Area Ratio"), labels["area_ratio"]);
    EXPECT_EQ(value_of(report, "Max Chamber Volume"), labels["max_chamb_vol"]);
    EXPECT_EQ(value_of(report, "Min Chamber Volume"), labels["min_chamb_vol"]);
}

TEST(text_report, shows_inches_for_a_design_in_inches) {
    const std::string report = run_kvt({"calc", example("inch_hydraulic")}).out;
    EXPECT_EQ(value_of(report, "Eccentricity"), "0.15 in");
    EXPECT_EQ(value_of(report, "Base Circle Radius"), "0.856 in");     // 1.07 * 4 / 5
    EXPECT_EQ(value_of(report, "Rolling Circle Radius"), "0.214 in");  // 1.07 / 5
}

TEST(text_report, puts_all_values_in_one_column_in_german_too) {
    const kvt_run run =
        run_kvt({"calc", example("engine_oil"), "--language", "2", "--stage", "profiles"});
    const std::vector<std::string> lines = split_lines(run.out);
    ASSERT_EQ(lines.size(), 15U);
    EXPECT_TRUE(lines[0].starts_with("Äußere Läppchen ")) << lines[0];
    const auto column = [](const std::string& line) {
        const std::string before = line.substr(0, line.rfind("  "));
        return std::ranges::count_if(
            before, [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; });
    };
    for (const std::string& line : lines) {
        EXPECT_EQ(column(line), column(lines[0])) << line;
    }
}

TEST(text_report, shows_no_results_of_a_run_that_was_stopped) {
    const std::string report =
        run_kvt({"calc", example("engine_oil"), "--set", "shaftdiameter=33"}).out;
    EXPECT_EQ(value_of(report, "Eccentricity"), "2.6 mm");
    EXPECT_EQ(value_of(report, "Ended"), "failure");
    EXPECT_EQ(report.find("Trochoid Ratio"), std::string::npos);
}

TEST(text_report, shows_the_end_alone_for_a_file_that_could_not_be_read) {
    const temporary_folder folder;
    EXPECT_EQ(run_kvt({"calc", folder.file("none.KVT")}).out, "Ended  read_error\n");
}

TEST(text_report, ends_with_the_ports_when_the_performance_was_refused) {
    const std::string report = run_kvt({"calc", example("engine_oil"), "--set", "friction=0"}).out;
    EXPECT_NE(report.find("Port Fillet Radii"), std::string::npos);
    EXPECT_EQ(report.find("Volumetric Efficiency"), std::string::npos);
}

}  // namespace
}  // namespace kvt
