// The plan of the workbook: sheets, cells, charts.
#include "output/data/workbook_plan.hpp"

#include "support/data_records.hpp"

#include <algorithm>
#include <gtest/gtest.h>

namespace kvt {
namespace {

using texts = std::vector<std::string>;

std::string text_at(const workbook_sheet& sheet, int row, int column) {
    for (const sheet_text& cell : sheet.texts) {
        if (cell.row == row && cell.column == column) {
            return cell.text;
        }
    }
    return "";
}

texts row_texts(const workbook_sheet& sheet, int row) {
    texts found;
    for (int column = 1; !text_at(sheet, row, column).empty(); ++column) {
        found.push_back(text_at(sheet, row, column));
    }
    return found;
}

/// "B4:B9 C4:C9 100 rpm"
texts series_of(const workbook_chart& chart) {
    texts lines;
    for (const workbook_series& series : chart.series) {
        lines.push_back(range_text(series.x) + " " + range_text(series.y) + " " + series.name);
    }
    return lines;
}

struct workbook_plan : testing::Test {
    data_records records;
    std::vector<workbook_sheet> sheets() const { return make_workbook_plan(records.source()); }
};

TEST_F(workbook_plan, has_five_sheets_with_english_names) {
    for (const std::int16_t language : {ENGLISH, GERMAN}) {
        records.language = language;
        texts names;
        for (const workbook_sheet& sheet : sheets()) {
            names.push_back(sheet.name);
        }
        EXPECT_EQ(names, (texts{"Flow_Pressure", "Drive Power", "Contact Stress", "Pressure_Ripple",
                                "Efficiencies"}));
    }
}

TEST_F(workbook_plan, begins_each_sheet_with_version_and_title) {
    EXPECT_EQ(text_at(sheets()[0], 1, 1),
              "Version 2021.1.1: Flow vs Pressure Data For Project: 'pump'");
    records.results.ripple_percent = 12.5;
    EXPECT_EQ(text_at(sheets()[3], 1, 1), "Version 2021.1.1: Volumetric Data For Project: 'pump'");
    EXPECT_EQ(text_at(sheets()[3], 2, 1), "Pressure Ripple: 12.5%");
    records.language = GERMAN;
    EXPECT_EQ(text_at(sheets()[4], 1, 1),
              "Version 2021.1.1: Wirkungsgraddaten Für Projekt: 'pump'");
    EXPECT_EQ(text_at(sheets()[3], 2, 1), "Druck Kleine Welle: 12.5%");
}

TEST_F(workbook_plan, has_headers_without_blanks_above_the_numbers) {
    const std::vector<workbook_sheet> plan = sheets();
    EXPECT_EQ(row_texts(plan[1], 3), (texts{"Pump Speed (rpm)", "Pump Delivery Pressure (Pa)",
                                            "Torque to Turn (Nm)", "Power to Turn (W)"}));
    EXPECT_EQ(plan[1].numbers.at(0).first_row, 4);
    EXPECT_EQ(plan[1].numbers.at(0).column_count, 4);
    EXPECT_EQ(plan[1].numbers.at(0).values.size(), 4U * 36U);
    EXPECT_EQ(row_texts(plan[3], 4),
              (texts{"Pump Inner Rotor Rotation Angle (degrees)",
                     "Volumetric Rate of Change (litres/degree)", "Pressure Ripple (bar)"}));
    EXPECT_EQ(plan[3].numbers.at(0).first_row, 5);
}

TEST_F(workbook_plan, puts_both_blocks_of_the_contact_on_one_sheet) {
    const workbook_sheet sheet = sheets()[2];
    EXPECT_EQ(text_at(sheet, 2, 1), "SLIDING VELOCITIES");
    EXPECT_EQ(row_texts(sheet, 3).size(), 3U);
    EXPECT_EQ(text_at(sheet, 2171, 1), "CONTACT FORCE & HERTZIAN STRESS");
    EXPECT_EQ(row_texts(sheet, 2173)[1], "Pump Delivery Pressure (Pa)");
    ASSERT_EQ(sheet.numbers.size(), 2U);
    EXPECT_EQ(sheet.numbers[0].first_row, 4);
    // 6 speeds of 361 angles: the last velocity stands in row 2169.
    EXPECT_EQ(sheet.numbers[0].values.size(), 3U * (2169U - 4U + 1U));
    EXPECT_EQ(sheet.numbers[1].first_row, 2174);
    EXPECT_EQ(sheet.numbers[1].values.size(), 5U * (8653U - 2174U + 1U));
    // Title, two headings, headers: the explaining lines of the file are missing.
    EXPECT_EQ(sheet.texts.size(), 1U + 2U + 3U + 5U);
}

TEST_F(workbook_plan, draws_a_line_a_speed_over_the_pressures) {
    const texts flow = {"B4:B9 C4:C9 100 rpm",     "B10:B15 C10:C15 200 rpm",
                        "B16:B21 C16:C21 300 rpm", "B22:B27 C22:C27 400 rpm",
                        "B28:B33 C28:C33 500 rpm", "B34:B39 C34:C39 600 rpm"};
    const std::vector<workbook_sheet> plan = sheets();
    EXPECT_EQ(series_of(plan[0].charts.at(0)), flow);
    EXPECT_EQ(plan[0].charts[0].x_title, "Pump Delivery Pressure (Pa)");
    EXPECT_EQ(plan[0].charts[0].y_title, "Flow (lit/min)");
    EXPECT_EQ(plan[0].charts[0].title, "");
    EXPECT_EQ(series_of(plan[1].charts.at(0)), flow);
    EXPECT_EQ(series_of(plan[1].charts.at(1))[5], "B34:B39 D34:D39 600 rpm");
    EXPECT_EQ(plan[1].charts[1].y_title, "Power to Turn (W)");
}

TEST_F(workbook_plan, draws_the_stress_at_the_highest_speed) {
    const workbook_chart chart = sheets()[2].charts.at(0);
    EXPECT_EQ(series_of(chart),
              (texts{"C7574:C7753 E7574:E7753 101300 Pa", "C7754:C7933 E7754:E7933 202600 Pa",
                     "C7934:C8113 E7934:E8113 303900 Pa", "C8114:C8293 E8114:E8293 405200 Pa",
                     "C8294:C8473 E8294:E8473 506500 Pa", "C8474:C8653 E8474:E8653 607800 Pa"}));
    records.unit = INCHES;
    EXPECT_EQ(sheets()[2].charts.at(0).series[0].name, "14.5 psi");
}

TEST_F(workbook_plan, gives_the_ripple_chart_alone_a_title) {
    records.results.ripple_percent = 15.02;
    const workbook_chart chart = sheets()[3].charts.at(0);
    EXPECT_EQ(series_of(chart), texts{"A5:A364 C5:C364 100 rpm"});
    EXPECT_EQ(chart.title, "Pressure Ripple @ 100(rpm); Pressure Ripple = 15.02%");
    for (const workbook_sheet& sheet : sheets()) {
        for (const workbook_chart& other : sheet.charts) {
            EXPECT_EQ(other.title.empty(), sheet.name != "Pressure_Ripple") << sheet.name;
        }
    }
    records.language = GERMAN;
    EXPECT_EQ(sheets()[3].charts[0].title,
              "Druck Kleine Welle @ 100(rpm); Druck Kleine Welle = 15.02%");
}

/// Kept: the mechanical efficiency is on the sheet and in no chart.
TEST_F(workbook_plan, draws_two_of_the_three_efficiencies) {
    const workbook_sheet sheet = sheets()[4];
    ASSERT_EQ(sheet.charts.size(), 2U);
    EXPECT_EQ(sheet.charts[0].y_title, "Volumetric Efficiency (%)");
    EXPECT_EQ(sheet.charts[1].y_title, "Overall Efficiency (%)");
    EXPECT_EQ(series_of(sheet.charts[1])[0], "B4:B9 E4:E9 100 rpm");
}

TEST_F(workbook_plan, has_seven_charts_beside_the_numbers_and_below_each_other) {
    std::size_t count = 0;
    for (const workbook_sheet& sheet : sheets()) {
        double top = 40.0;
        for (const workbook_chart& chart : sheet.charts) {
            const bool narrow = sheet.name == "Flow_Pressure" || sheet.name == "Drive Power";
            EXPECT_EQ(chart.place.left, narrow ? 330.0 : 420.0);
            EXPECT_EQ(chart.place.top, top);
            EXPECT_EQ(chart.place.width, 480.0);
            EXPECT_EQ(chart.place.height, 300.0);
            top = 360.0;
            ++count;
        }
    }
    EXPECT_EQ(count, 7U);
}

}  // namespace
}  // namespace kvt
