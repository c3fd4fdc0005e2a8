// Tests of the curves as a text file: whole files.
#include "views/charts/chart_csv.hpp"

#include "core/app_state.hpp"
#include "views/charts/chart_results.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

std::string csv_of(chart_kind kind, char decimal_mark = '.') {
    text_lines text;
    write_chart_csv(make_chart(kind, chart_results(), ENGLISH, unit_system::metric), decimal_mark,
                    text);
    return text.bytes();
}

TEST(write_chart_csv, gives_a_column_a_curve_with_its_units) {
    EXPECT_EQ(csv_of(chart_kind::power),
              "Delivery Pressure (bar);1000 rpm (KW);1500 rpm (KW);2000 rpm (KW);2500 rpm (KW);"
              "3000 rpm (KW)\r\n"
              "1;1;2;3;4;5\r\n"
              "2;11;12;13;14;15\r\n"
              "3;21;22;23;24;25\r\n"
              "4;31;32;33;34;35\r\n"
              "5;41;42;43;44;45\r\n"
              "6;51;52;53;54;55\r\n");
}

TEST(write_chart_csv, gives_efficiencies_in_percent) {
    const std::string text = csv_of(chart_kind::ve);
    EXPECT_NE(text.find(";3000 rpm (%)\r\n1;10;20;30;40;50\r\n"), std::string::npos) << text;
}

TEST(write_chart_csv, writes_the_decimal_mark_that_is_asked_for) {
    const std::string text = csv_of(chart_kind::ripple, ',');
    EXPECT_TRUE(
        text.starts_with("Pump Rotation Angle (\xB0);500 rpm (bar)\r\n0;0\r\n0,1;0,01\r\n"));
    EXPECT_TRUE(text.ends_with("\r\n359,9;35,99\r\n360;0\r\n"));
}

TEST(write_chart_csv, gives_each_dot_a_line) {
    result_chart chart;
    chart.is_of_dots = true;
    chart.x_title = "ecc [mm]";
    chart.y_unit = "%";
    chart.curves.push_back({1, "", "low", {1.5, 2.0}, {2.0, 3.0}, {}});
    chart.curves.push_back({2, "", "none", {}, {}, {}});
    chart.curves.push_back({3, "", "high", {9.0}, {4.0}, {}});
    text_lines text;
    write_chart_csv(chart, ',', text);
    EXPECT_EQ(text.bytes(),
              "ecc [mm];low (%);none (%);high (%)\r\n"
              "2;1,5;;\r\n"
              "3;2;;\r\n"
              "4;;;9\r\n");
    chart.y_unit.clear();
    text_lines plain;
    write_chart_csv(chart, '.', plain);
    EXPECT_TRUE(plain.bytes().starts_with("ecc [mm];low;none;high\r\n"));
}

}  // namespace
}  // namespace kvt
