// Tests of what a chart says: its curves in the units shown, its numbers, its texts in both
// languages.
#include "views/charts/result_chart.hpp"

#include "core/app_state.hpp"
#include "core/form_table.hpp"
#include "performance/perf_grid.hpp"
#include "views/charts/chart_results.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

using enum unit_system;
using texts = std::vector<std::string>;

result_chart chart_of(chart_kind kind, unit_system system = metric,
                      std::int16_t language = ENGLISH) {
    return make_chart(kind, chart_results(), language, system);
}

texts texts_of(const std::vector<chart_mark>& marks) {
    texts found;
    for (const chart_mark& mark : marks) {
        found.push_back(mark.text);
    }
    return found;
}

texts legend_of(const result_chart& chart) {
    texts found;
    for (const chart_curve& curve : chart.curves) {
        found.push_back(curve.legend);
    }
    return found;
}

TEST(chart_rows, are_the_charts_of_the_form_table) {
    ASSERT_EQ(chart_rows().size(), 7U);
    for (const chart_row& row : chart_rows()) {
        EXPECT_NE(find_form(row.form), nullptr) << row.form;
        EXPECT_EQ(find_chart(row.form), &row);
        EXPECT_EQ(&row_of(row.kind), &row);
    }
    EXPECT_EQ(find_chart("select_graphs"), nullptr);
}

TEST(series_colour, is_pastel) {
    EXPECT_EQ(series_colour(1), (rgb_colour{255, 255, 128}));
    EXPECT_EQ(series_colour(2), (rgb_colour{128, 255, 128}));
    EXPECT_EQ(series_colour(3), (rgb_colour{255, 192, 128}));
    EXPECT_EQ(series_colour(4), (rgb_colour{128, 255, 255}));
    EXPECT_EQ(series_colour(5), (rgb_colour{255, 128, 128}));
}

TEST(make_chart, draws_a_curve_a_speed_but_the_lowest) {
    const result_chart chart = chart_of(chart_kind::flow);
    EXPECT_EQ(legend_of(chart), (texts{"1000", "1500", "2000", "2500", "3000"}));
    EXPECT_EQ(chart.curves[0].name, "1000 rpm");
    EXPECT_EQ(chart.legend_hint, "The lowest speed is not drawn.");
    for (std::size_t i = 1; i < GRID_SIZE; ++i) {
        const chart_curve& curve = chart.curves[i - 1];
        EXPECT_EQ(curve.series, static_cast<int>(i));
        ASSERT_EQ(curve.values.size(), GRID_SIZE);
        for (std::size_t j = 0; j < GRID_SIZE; ++j) {
            EXPECT_DOUBLE_EQ(curve.values[j], 10.0 * i + j);
        }
    }
}

/// The scale is that of the whole result: the lowest speed, which is not drawn, has the smallest.
TEST(make_chart, scales_by_the_extremes_of_the_whole_result) {
    const result_chart chart = chart_of(chart_kind::power);
    EXPECT_EQ(chart.minimum, 0.0);
    EXPECT_EQ(chart.maximum, 55.0);
    EXPECT_EQ(texts_of(chart.y_marks), (texts{"0", "11", "22", "33", "44", "55"}));
}

TEST(make_chart, shows_imperial_units_beside_inches) {
    EXPECT_DOUBLE_EQ(chart_of(chart_kind::flow, imperial).curves[4].values[5], 55.0 * 0.26417);
    EXPECT_DOUBLE_EQ(chart_of(chart_kind::power, imperial).curves[4].values[5], 55000.0 / 746.0);
    EXPECT_DOUBLE_EQ(chart_of(chart_kind::stress, imperial).maximum, 729.0 * 145.04 / 1000.0);
    EXPECT_DOUBLE_EQ(chart_of(chart_kind::ripple, imperial).maximum, 35.99 * 14.5);
    EXPECT_EQ(chart_of(chart_kind::ve, imperial).curves[4].values[4], 0.9);
}

TEST(make_chart, draws_the_stress_at_the_highest_speed_over_half_a_turn) {
    const result_chart chart = chart_of(chart_kind::stress);
    EXPECT_EQ(legend_of(chart), (texts{"2", "3", "4", "5", "6"}));
    EXPECT_EQ(chart.title_hint, "Highest pump speed: 3000 rpm");
    EXPECT_EQ(chart.legend_hint, "The lowest pressure is not drawn.");
    EXPECT_EQ(chart.first_step, 1);
    EXPECT_EQ(chart.steps, 180);
    ASSERT_EQ(chart.curves[4].values.size(), 179U);
    EXPECT_EQ(chart.curves[4].values[0], 551.0);
    EXPECT_EQ(chart.curves[4].values[178], 729.0);
    EXPECT_EQ(chart.x_values.front(), 1.0);
    EXPECT_EQ(chart.x_values.back(), 179.0);
    EXPECT_EQ(texts_of(chart.x_marks), (texts{"0", "36", "72", "108", "144", "180"}));
}

/// A step of 0.1 degree of which 3600 make a turn; number 3600 of the record is not filled.
TEST(make_chart, closes_the_ripple_with_its_first_point) {
    perf_results results = chart_results();
    results.ripple_pressure[0] = 101300.0;
    results.ripple_pressure[3600] = 1e9;
    const result_chart chart = make_chart(chart_kind::ripple, results, ENGLISH, metric);
    ASSERT_EQ(chart.curves.size(), 1U);
    const std::vector<double>& values = chart.curves[0].values;
    ASSERT_EQ(values.size(), 3601U);
    EXPECT_EQ(values[0], 1.0);
    EXPECT_EQ(values[3599], 35.99);
    EXPECT_EQ(values[3600], 1.0);
    EXPECT_EQ(chart.steps, 3600);
    EXPECT_EQ(chart.x_values[361], 36.1);
    EXPECT_EQ(chart.x_values[3600], 360.0);
    EXPECT_EQ(texts_of(chart.x_marks), (texts{"0", "72", "144", "216", "288", "360"}));
    EXPECT_EQ(chart.legend_caption, "");
    EXPECT_EQ(chart.curves[0].name, "500 rpm");
}

TEST(make_chart, has_a_range_of_one_when_every_value_is_the_same) {
    const result_chart empty = make_chart(chart_kind::flow, {}, ENGLISH, metric);
    EXPECT_EQ(empty.minimum, 0.0);
    EXPECT_EQ(empty.maximum, 1.0);
    EXPECT_EQ(texts_of(empty.y_marks), (texts{"0", "0.2", "0.4", "0.6", "0.8", "1"}));
    perf_results level;
    level.ripple_min = level.ripple_max = 202600.0;
    const result_chart flat = make_chart(chart_kind::ripple, level, ENGLISH, metric);
    EXPECT_EQ(flat.minimum, 2.0);
    EXPECT_EQ(flat.maximum, 3.0);
}

TEST(make_chart, begins_a_negative_ripple_at_its_lowest) {
    perf_results results;
    results.ripple_min = -101300.0;
    results.ripple_max = 3.0 * 101300.0;
    const result_chart chart = make_chart(chart_kind::ripple, results, ENGLISH, metric);
    EXPECT_EQ(chart.minimum, -1.0);
    EXPECT_EQ(texts_of(chart.y_marks), (texts{"-1", "-0.2", "0.6", "1.4", "2.2", "3"}));
}

TEST(make_chart, shows_efficiencies_from_0_to_100_percent) {
    for (const chart_kind kind : {chart_kind::ve, chart_kind::mech, chart_kind::overall}) {
        const result_chart chart = chart_of(kind);
        EXPECT_EQ(chart.minimum, 0.0);
        EXPECT_EQ(chart.maximum, 1.0);
        EXPECT_EQ(chart.y_times, 100.0);
        EXPECT_EQ(texts_of(chart.y_marks), (texts{"0", "20", "40", "60", "80", "100"}));
        EXPECT_EQ(chart.curves[4].values[5], 1.0);
    }
}

/// Each of the three draws its own record.
TEST(make_chart, tells_the_efficiencies_apart) {
    perf_results results = chart_results();
    results.vol_eff[5][0] = 0.1;
    results.mech_eff[5][0] = 0.2;
    results.overall_eff[5][0] = 0.3;
    const auto value = [&](chart_kind kind) {
        return make_chart(kind, results, ENGLISH, metric).curves[4].values[0];
    };
    EXPECT_EQ(value(chart_kind::ve), 0.1);
    EXPECT_EQ(value(chart_kind::mech), 0.2);
    EXPECT_EQ(value(chart_kind::overall), 0.3);
}

TEST(make_chart, has_the_pressures_in_bar_as_they_are) {
    perf_results results = chart_results();
    results.press_pa[3] = 3.55 * 101300.0;
    const result_chart chart = make_chart(chart_kind::flow, results, ENGLISH, metric);
    EXPECT_EQ(texts_of(chart.x_marks), (texts{"1", "2", "3", "3.55", "5", "6"}));
    EXPECT_EQ(chart.x_marks[3].exact, "");
}

/// Kept: the whole part of 299.99999999999994 psi is 299. The pressures are those of a range of
/// 100 to 300 psi.
TEST(make_chart, cuts_the_pressures_in_psi) {
    perf_results results = chart_results();
    perf_inputs inputs;
    inputs.system = imperial;
    inputs.pressure_lo = 100.0;
    inputs.pressure_hi = 300.0;
    set_grid(inputs, results);
    const result_chart chart = make_chart(chart_kind::flow, results, ENGLISH, imperial);
    EXPECT_EQ(texts_of(chart.x_marks), (texts{"100", "140", "180", "220", "260", "299"}));
    EXPECT_EQ(chart.x_marks[5].exact, "300 psi");
    EXPECT_EQ(chart.x_marks[0].exact, "");
    const result_chart stress = make_chart(chart_kind::stress, results, ENGLISH, imperial);
    EXPECT_EQ(legend_of(stress), (texts{"140", "180", "220", "260", "299"}));
    EXPECT_EQ(stress.curves[4].name, "300 psi");
}

struct text_case {
    chart_kind kind;
    const char *title, *inch_title, *german, *german_inch;
    const char *ending, *german_ending, *caption;
};

constexpr text_case TEXTS[] = {
    {chart_kind::flow, "Pump Flow (Lit/min)", "Pump Flow (USGall/min)",
     "Pumpen Sie Ablauf (Lit/min)", "Pumpen Sie Ablauf (USGall/min)", ". Pump Flow.bmp",
     ". Pumpen Sie Ablauf.bmp", "Pump Flow"},
    {chart_kind::power, "Pump Drive Power (KW)", "Pump Drive Power (HP)",
     "Pumpen Sie Antriebkraft (KW)", "Pumpen Sie Antriebkraft (HP)", ". Pump Power.bmp",
     ". Pumpen Sie Kraft.bmp", "Drive Power"},
    {chart_kind::stress, "Hertz (Contact) Stress (MPa)", "Hertz (Contact) Stress (Ksi)",
     "Hertz (Kontakt) Spannung (MPa)", "Hertz (Kontakt) Spannung (Ksi)", ". Contact Stress.bmp",
     ". Kontaktieren Sie Spannung.bmp", "Contact Stress"},
    {chart_kind::ripple, "Pressure Ripple (bar) @ 500rpm : Ripple = 12.5%",
     "Pressure Ripple (psi) @ 500rpm : Ripple = 12.5%",
     "Druck Kleine Welle (bar) @ 500rpm: Kleine Welle = 12.5%",
     "Druck Kleine Welle (psi) @ 500rpm: Kleine Welle = 12.5%", " .bmp", " .bmp",
     "Pressure Ripple"},
    {chart_kind::ve, "Volumetric Efficiency (%)", "Volumetric Efficiency (%)",
     "Volumetric Wirkungsgrad (%)", "Volumetric Wirkungsgrad (%)", ". Volumetric Efficiency.bmp",
     ". Volumetric Wirkungsgrad.bmp", "Volumetric Efficiency"},
    {chart_kind::mech, "Mechanical Efficiency (%)", "Mechanical Efficiency (%)",
     "Mechanischer Wirkungsgrad (%)", "Mechanischer Wirkungsgrad (%)",
     ". Mechanical Efficiency.bmp", ". Mechanischer Wirkungsgrad.bmp", "Mechanical Efficiency"},
    {chart_kind::overall, "Overall Efficiency (%)", "Overall Efficiency (%)",
     "Gesamtwirkungsgrad (%)", "Gesamtwirkungsgrad (%)", ". Overall Efficiency.bmp",
     ". Gesamtwirkungsgrad.bmp", "Overall Efficiency"},
};

TEST(make_chart, has_its_titles_in_both_languages_and_units) {
    for (const text_case& row : TEXTS) {
        EXPECT_EQ(chart_of(row.kind).title, row.title);
        EXPECT_EQ(chart_of(row.kind, imperial).title, row.inch_title);
        EXPECT_EQ(chart_of(row.kind, metric, GERMAN).title, row.german);
        EXPECT_EQ(chart_of(row.kind, imperial, GERMAN).title, row.german_inch);
        EXPECT_EQ(chart_of(row.kind).file_ending, row.ending);
        EXPECT_EQ(chart_of(row.kind, metric, GERMAN).file_ending, row.german_ending);
        EXPECT_EQ(chart_of(row.kind).window_caption, row.caption);
        EXPECT_EQ(chart_of(row.kind, metric, GERMAN).window_caption, row.caption);
    }
}

TEST(make_chart, names_its_x_axis_and_its_legend) {
    struct row {
        chart_kind kind;
        const char *metric_title, *inch_title, *german, *legend, *german_legend;
    };
    const row rows[] = {
        {chart_kind::flow, "Delivery Pressure (bar)", "Delivery pressure (psi)",
         "Lieferungsdruck (bar)", "Pump Speed", "Geschwindigkeit"},
        {chart_kind::overall, "Delivery Pressure (bar)", "Delivery pressure (psi)",
         "Lieferungsdruck (bar)", "Pump Speed", "Geschwindigkeit"},
        {chart_kind::stress, "Outer Rotor Rotation (°)", "Outer Rotor Rotation (°)",
         "Aussere Rotor Drehung (°)", "Delivery Pressure", "Lieferungsdruck"},
        {chart_kind::ripple, "Pump Rotation Angle (°)", "Pump Rotation Angle (°)",
         "Pumpen Sie Drehungswinkel (°)", "", ""},
    };
    for (const row& here : rows) {
        EXPECT_EQ(chart_of(here.kind).x_title, here.metric_title);
        EXPECT_EQ(chart_of(here.kind, imperial).x_title, here.inch_title);
        EXPECT_EQ(chart_of(here.kind, metric, GERMAN).x_title, here.german);
        EXPECT_EQ(chart_of(here.kind).legend_caption, here.legend);
        EXPECT_EQ(chart_of(here.kind, metric, GERMAN).legend_caption, here.german_legend);
    }
    EXPECT_EQ(chart_of(chart_kind::flow, imperial, GERMAN).x_title, "Lieferungsdruck (psi)");
}

TEST(make_chart, names_the_units_of_its_readings) {
    const auto units = [](chart_kind kind, unit_system system) {
        const result_chart chart = chart_of(kind, system);
        return std::pair(chart.x_unit, chart.y_unit);
    };
    using two = std::pair<std::string, std::string>;
    EXPECT_EQ(units(chart_kind::flow, metric), two("bar", "Lit/min"));
    EXPECT_EQ(units(chart_kind::flow, imperial), two("psi", "USGall/min"));
    EXPECT_EQ(units(chart_kind::power, metric), two("bar", "KW"));
    EXPECT_EQ(units(chart_kind::power, imperial), two("psi", "HP"));
    EXPECT_EQ(units(chart_kind::stress, imperial), two("°", "Ksi"));
    EXPECT_EQ(units(chart_kind::ripple, metric), two("°", "bar"));
    EXPECT_EQ(units(chart_kind::mech, imperial), two("psi", "%"));
}

}  // namespace
}  // namespace kvt
