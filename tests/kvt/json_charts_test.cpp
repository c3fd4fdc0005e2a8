// Tests of the charts as JSON: their shape, and those of two designs against golden files.
#include "kvt/json_charts.hpp"

#include "kvt/kvt_run.hpp"
#include "support/shortened_golden.hpp"

namespace kvt {
namespace {

json charts_of_engine_oil() {
    return calc_engine_oil({"--full"}).report()["charts"];
}

TEST(json_charts, stand_in_the_full_form_of_a_whole_run_only) {
    EXPECT_FALSE(calc_engine_oil({}).report().contains("charts"));
    EXPECT_FALSE(calc_engine_oil({"--full", "--stage", "ports"}).report().contains("charts"));
    std::vector<std::string> names;
    const json charts = charts_of_engine_oil();
    for (const auto& item : charts.items()) {
        names.push_back(item.key());
    }
    EXPECT_EQ(names, (std::vector<std::string>{"flow", "power", "stress", "ripple", "ve", "mech",
                                               "overall"}));
}

TEST(json_charts, leave_the_rest_of_the_report_as_it_is_without_them) {
    json full = calc_engine_oil({"--full"}).report();
    EXPECT_EQ(full.back(), full["charts"]) << "the last part";
    full.erase("charts");
    EXPECT_EQ(full.back(), full["perf_results"]);
}

TEST(json_charts, have_axes_segments_numbers_and_a_legend) {
    const json ve = charts_of_engine_oil()["ve"];
    EXPECT_EQ(ve["x_axis"], json({720.0, 7920.0}));
    EXPECT_EQ(ve["y_axis"], json({600.0, 5300.0}));
    ASSERT_EQ(ve["segments"].size(), 25U);
    EXPECT_EQ(ve["segments"][24][0], 5);
    EXPECT_EQ(ve["segments"][24][3], 7920.0);
    EXPECT_EQ(ve["y_markers"][0], json::array({5190.0, "0"}));
    EXPECT_EQ(ve["y_markers"][5], json::array({490.0, "100"}));
    EXPECT_EQ(ve["x_markers"][5][0], 7780.0);
    EXPECT_EQ(ve["legend"].size(), 5U);
    EXPECT_EQ(ve["legend"][0][1], json::array({255, 255, 128}));
    EXPECT_EQ(ve["legend_caption"], "Pump Speed");
    EXPECT_EQ(ve["title"], "Volumetric Efficiency (%)");
    EXPECT_EQ(ve["x_title"], "Delivery Pressure (bar)");
    EXPECT_EQ(ve["window_caption"], "Volumetric Efficiency");
    EXPECT_EQ(ve["file_ending"], ". Volumetric Efficiency.bmp");
    EXPECT_EQ(ve.size(), 11U);
}

TEST(json_charts, have_no_legend_of_the_ripple) {
    const json ripple = charts_of_engine_oil()["ripple"];
    EXPECT_EQ(ripple["legend"], json::array());
    EXPECT_EQ(ripple["legend_caption"], "");
    EXPECT_EQ(ripple["segments"].size(), 3600U);
}

void add_field(const std::string& name, const json& value, text_lines& text) {
    if (!value.is_array()) {
        text.line("  " + name + ": " + value.dump());
        return;
    }
    text.line("  " + name);
    for (const json& element : value) {
        text.line("    " + element.dump());
    }
}

/// A field a line, and a line each for the elements of an array.
std::string lines_of(const json& charts) {
    text_lines text;
    for (const auto& chart : charts.items()) {
        text.line(chart.key());
        for (const auto& field : chart.value().items()) {
            add_field(field.key(), field.value(), text);
        }
    }
    return text.bytes();
}

/// Of many segments that follow each other the golden file has the ends and the sum.
void expect_charts(const std::string& design, const std::string& language) {
    const std::string project = std::string(KVT_TEST_DATA) + "/designs/" + design + ".KVT";
    const kvt_run run = run_kvt({"calc", project, "--full", "--json", "-", "--language", language});
    ASSERT_EQ(run.status, 0) << run.err;
    expect_shortened_golden(design + "/charts.txt", lines_of(run.report()["charts"]));
}

TEST(charts, of_a_design_in_millimetres_stand_as_they_stood) {
    expect_charts("n07_engine_oil_groove", "1");
}

TEST(charts, of_a_design_in_inches_stand_as_they_stood_in_german) {
    expect_charts("n07_inch_hydraulic", "2");
}

}  // namespace
}  // namespace kvt
