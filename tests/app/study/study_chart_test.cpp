// Tests of the designs of a study as dots: places, colours, rings, lines.
#include "app/study/study_chart.hpp"

#include "support/open_design.hpp"
#include "views/charts/chart_drawing.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

/// Columns: 0 number, 1 ecc, 2 thick, 3 result, 4 capacity, 5 ripple, 6 messages.
constexpr std::size_t ECC = 1, THICK = 2, CAPACITY = 4, RIPPLE = 5;

study_row row_of(std::uint64_t number, const std::string& ecc, const std::string& thick,
                 std::optional<double> capacity, double ripple) {
    study_row row;
    row.number = number;
    row.texts = {ecc, thick};
    row.values = {capacity, ripple};
    return row;
}

study_table table_of(std::vector<study_row> rows) {
    study_plan plan;
    plan.variables = {study_variable_of("ecc=2:3"), study_variable_of("thick=8:10")};
    plan.sample = {sample_kind::latin, 9, 0};
    plan.recorded = {"capacity", "ripple"};
    study_table table(std::make_shared<const study>(opened_design("n04_fuel"), plan));
    table.add(std::move(rows));
    return table;
}

study_table four_designs() {
    return table_of({row_of(0, "2.5", "8", 7.0, 10.0), row_of(1, "2", "8", 5.0, 20.0),
                     row_of(2, "2", "10", 6.0, 15.0), row_of(3, "3", "10", std::nullopt, 12.0)});
}

TEST(study_chart, can_take_the_columns_with_numbers) {
    EXPECT_EQ(number_columns(four_designs()), (std::vector<std::size_t>{1, 2, 4, 5}));
    EXPECT_TRUE(number_columns(study_table()).empty());
}

TEST(study_chart, has_its_dots_from_left_to_right) {
    const auto made = make_study_chart(four_designs(), {ECC, CAPACITY, {}, {}}, ENGLISH);
    ASSERT_TRUE(made);
    ASSERT_EQ(made->chart.curves.size(), 1U);
    EXPECT_EQ(made->chart.curves[0].x, (std::vector<double>{2.0, 2.0, 2.5}));
    EXPECT_EQ(made->chart.curves[0].values, (std::vector<double>{5.0, 6.0, 7.0}));
    EXPECT_EQ(made->designs[0], (std::vector<std::uint64_t>{1, 2, 0}));
    EXPECT_EQ(made->chart.x_minimum, 2.0);
    EXPECT_EQ(made->chart.x_maximum, 2.5);
    EXPECT_EQ(made->chart.minimum, 5.0);
    EXPECT_EQ(made->chart.maximum, 7.0);
    EXPECT_EQ(made->chart.x_title, "ecc [mm]");
    EXPECT_EQ(made->chart.x_unit, "mm");
    EXPECT_EQ(made->chart.title, "capacity [CC/Rev]");
    EXPECT_EQ(made->chart.x_marks.front().text, "2");
    EXPECT_EQ(made->chart.x_marks.back().text, "2.5");
}

TEST(study_chart, reads_a_dot_with_its_units) {
    const auto made = make_study_chart(four_designs(), {ECC, RIPPLE, {}, {}}, ENGLISH);
    EXPECT_EQ(reading_text(made->chart, {0, 0}), "Designs, 2 mm: 20 %");
}

TEST(study_chart, has_five_colours_of_equal_fifths) {
    std::vector<study_row> rows;
    for (std::uint64_t i = 0; i <= 10; ++i) {
        rows.push_back(row_of(i, "2", "8", 5.0, static_cast<double>(i)));
    }
    const auto made = make_study_chart(table_of(std::move(rows)), {ECC, CAPACITY, RIPPLE, {}}, 1);
    ASSERT_EQ(made->chart.curves.size(), 5U);
    EXPECT_EQ(made->chart.legend_caption, "ripple");
    EXPECT_EQ(made->chart.curves[0].legend, "0 – 2");
    EXPECT_EQ(made->designs[0], (std::vector<std::uint64_t>{0, 1}));
    EXPECT_EQ(made->designs[1], (std::vector<std::uint64_t>{2, 3}));
    EXPECT_EQ(made->designs[4], (std::vector<std::uint64_t>{8, 9, 10})) << "the largest, too";
    // All at one place: the axes have a length all the same.
    EXPECT_EQ(made->chart.x_minimum, 1.5);
    EXPECT_EQ(made->chart.maximum, 5.5);
}

TEST(study_chart, has_one_colour_where_all_are_the_same) {
    const auto made =
        make_study_chart(table_of({row_of(0, "2", "8", 5.0, 1.0), row_of(1, "3", "8", 6.0, 1.0)}),
                         {ECC, CAPACITY, RIPPLE, {}}, ENGLISH);
    EXPECT_EQ(made->chart.curves.size(), 1U);
}

TEST(study_chart, rings_the_front) {
    study_table table = four_designs();
    table.mark({2});
    const auto made = make_study_chart(table, {ECC, CAPACITY, {}, {}}, ENGLISH);
    EXPECT_EQ(made->chart.curves[0].ringed, std::vector<std::size_t>{1});
}

TEST(study_chart, joins_designs_that_differ_in_one_variable) {
    study_table table = table_of({row_of(0, "2", "8", 5.0, 1.0), row_of(1, "2", "10", 6.0, 1.0),
                                  row_of(2, "3", "8", 7.0, 1.0), row_of(3, "3", "10", 8.0, 1.0),
                                  row_of(4, "2.5", "8", 6.5, 1.0)});
    const auto made = make_study_chart(table, {THICK, CAPACITY, {}, ECC}, ENGLISH);
    // thick 8: ecc 2, 2.5, 3; thick 10: ecc 2, 3.
    ASSERT_EQ(made->chart.links.size(), 3U);
    std::size_t upright = 0;
    for (const chart_link& link : made->chart.links) {
        upright += link.x1 == link.x2 ? 1 : 0;
        EXPECT_LT(link.value1, link.value2);
    }
    EXPECT_EQ(upright, 3U);
}

TEST(study_chart, draws_what_the_filter_shows) {
    study_table table = four_designs();
    table.filter("ecc<2.2");
    const auto made = make_study_chart(table, {ECC, CAPACITY, {}, {}}, ENGLISH);
    EXPECT_EQ(made->designs[0].size(), 2U);
    table.filter("ecc<1");
    EXPECT_FALSE(make_study_chart(table, {ECC, CAPACITY, {}, {}}, ENGLISH));
}

}  // namespace
}  // namespace kvt
