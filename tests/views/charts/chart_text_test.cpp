// Tests of a chart in words, on results whose numbers can be followed.
#include "views/charts/chart_text.hpp"

#include "core/app_state.hpp"
#include "views/charts/chart_results.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

std::string text_of(chart_kind kind, std::int16_t language, const hidden_curves& hidden = {}) {
    return chart_text(make_chart(kind, chart_results(), language, unit_system::metric), hidden,
                      language);
}

// Flow at speed i and pressure j is 10 i + j, i from 1 on, j 0 .. 5.
TEST(chart_text, says_the_axes_and_the_least_and_largest_value_of_each_curve) {
    const std::string text = text_of(chart_kind::flow, ENGLISH);
    EXPECT_TRUE(
        text.starts_with("Delivery Pressure (bar): 1 – 6; Pump Flow (Lit/min): 0 – 55; "
                         "Curves: 5; "))
        << text;
    EXPECT_NE(text.find("; 1000 rpm: 10 Lit/min – 15 Lit/min; "), std::string::npos) << text;
    EXPECT_TRUE(text.ends_with("; 3000 rpm: 50 Lit/min – 55 Lit/min")) << text;
}

TEST(chart_text, leaves_hidden_curves_out) {
    const std::string text = text_of(chart_kind::flow, ENGLISH, {true, false, true});
    EXPECT_NE(text.find("; Curves: 3; 1500 rpm: "), std::string::npos) << text;
    EXPECT_EQ(text.find("1000 rpm"), std::string::npos) << text;
}

// An efficiency is a ratio, (i + j) / 10, and is read in percent.
TEST(chart_text, has_percent_for_efficiencies_and_german_words_in_german) {
    const std::string text = text_of(chart_kind::ve, GERMAN);
    EXPECT_NE(text.find("Volumetric Wirkungsgrad (%): 0 – 100; Kurven: 5; "), std::string::npos)
        << text;
    EXPECT_NE(text.find(": 10 % – 60 %"), std::string::npos) << text;
}

TEST(chart_text, says_the_one_curve_of_the_ripple) {
    const std::string text = text_of(chart_kind::ripple, ENGLISH);
    EXPECT_NE(text.find("; Curves: 1; "), std::string::npos) << text;
}

TEST(chart_text, says_whose_curves_are_dashed) {
    result_chart chart =
        make_chart(chart_kind::flow, chart_results(), ENGLISH, unit_system::metric);
    chart.pinned_note = "Dashed: engine_oil";
    EXPECT_TRUE(chart_text(chart, {}, ENGLISH).ends_with("; Dashed: engine_oil"));
}

}  // namespace
}  // namespace kvt
