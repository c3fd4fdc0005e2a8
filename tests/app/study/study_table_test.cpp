// Tests of a study's rows as a table: texts, order, filter.
#include "app/study/study_table.hpp"

#include "support/open_design.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

std::shared_ptr<const study> two_quantities() {
    study_plan plan;
    plan.variables = {study_variable_of("ecc=2:3"), study_variable_of("metering_groove=0,1")};
    plan.sample = {sample_kind::latin, 5, 0};
    plan.recorded = {"capacity", "ripple"};
    return std::make_shared<const study>(opened_design("n04_fuel"), plan);
}

study_row row_of(std::uint64_t number, const std::string& ecc, std::optional<double> capacity,
                 const std::string& message = "") {
    study_row row;
    row.number = number;
    row.texts = {ecc, "1"};
    row.values = {capacity, std::nullopt};
    if (!message.empty()) {
        row.messages = {message};
        row.result.end = batch_end::failure;
    }
    return row;
}

study_table four_rows() {
    study_table table(two_quantities());
    table.add({row_of(0, "2.5", 7.1234567), row_of(1, "2.25", std::nullopt, "Reduce the shaft"),
               row_of(2, "10", 6.0), row_of(3, "2.25", 8.0)});
    return table;
}

std::vector<std::uint64_t> numbers_of(const study_table& table) {
    std::vector<std::uint64_t> numbers;
    for (std::size_t place = 0; place < table.shown_count(); ++place) {
        numbers.push_back(table.shown(place).number);
    }
    return numbers;
}

using numbers = std::vector<std::uint64_t>;

TEST(study_table, is_empty_without_a_study) {
    EXPECT_EQ(study_table().column_count(), 0U);
    EXPECT_EQ(study_table().shown_count(), 0U);
}

TEST(study_table, has_a_column_for_everything_of_a_design) {
    const study_table table = four_rows();
    EXPECT_EQ(table.column_count(), 7U);
    EXPECT_EQ(table.heading(1), "ecc [mm]");
    EXPECT_EQ(table.heading(2), "metering_groove");
    EXPECT_EQ(table.result_column(), 3U);
    EXPECT_EQ(table.heading(5), "ripple [%]");
    EXPECT_EQ(table.name(1), "ecc");
    EXPECT_EQ(table.unit(1), "mm");
    EXPECT_EQ(table.unit(2), "");
    EXPECT_EQ(table.name(5), "ripple");
    EXPECT_EQ(table.unit(5), "%");
    EXPECT_EQ(table.message_column(), 6U);
    EXPECT_EQ(table.heading(0) + table.heading(3) + table.heading(6), "");
}

TEST(study_table, shows_six_digits) {
    const study_table table = four_rows();
    EXPECT_EQ(table.text(0, 0), "0");
    EXPECT_EQ(table.text(0, 1), "2.5");
    study_table long_text(two_quantities());
    long_text.add({row_of(0, "2.37580050252312", 1.0), row_of(1, "", 1.0)});
    EXPECT_EQ(long_text.text(0, 1), "2.3758");
    EXPECT_EQ(long_text.text(1, 1), "");
    EXPECT_EQ(table.text(0, 3), "ok");
    EXPECT_EQ(table.text(0, 4), "7.12346");
    EXPECT_EQ(table.number(0, 4), 7.1234567);
    EXPECT_EQ(table.text(1, 3), "failure");
    EXPECT_EQ(table.text(1, 4), "");
    EXPECT_EQ(table.text(1, 6), "Reduce the shaft");
}

TEST(study_table, says_which_stage_refused) {
    study_table table(two_quantities());
    study_row row = row_of(0, "2", 1.0);
    row.result.ports_refused = true;
    row.result.performance_refused = true;
    table.add({row});
    EXPECT_EQ(table.text(0, 3), "ok, ports refused, performance refused");
}

TEST(study_table, says_what_no_other_beats) {
    study_table table = four_rows();
    table.mark({2, 3});
    EXPECT_EQ(table.text(2, 3), "ok, best");
    EXPECT_TRUE(table.is_in_front(2));
    EXPECT_FALSE(table.is_in_front(0));
    table.filter("best");
    EXPECT_EQ(numbers_of(table), (numbers{2, 3}));
}

TEST(study_table, sorts_numbers_as_numbers_and_leaves_missing_ones_last) {
    study_table table = four_rows();
    table.sort(1, true);
    EXPECT_EQ(numbers_of(table), (numbers{1, 3, 0, 2}));
    table.sort(1, false);
    EXPECT_EQ(numbers_of(table), (numbers{2, 0, 1, 3}));
    table.sort(4, true);
    EXPECT_EQ(numbers_of(table), (numbers{2, 0, 3, 1}));
    table.sort(4, false);
    EXPECT_EQ(numbers_of(table), (numbers{3, 0, 2, 1}));
    table.sort(3, true);
    EXPECT_EQ(numbers_of(table), (numbers{1, 0, 2, 3}));
}

TEST(study_table, filters_by_a_condition_on_a_column) {
    study_table table = four_rows();
    table.filter("capacity>=7");
    EXPECT_EQ(numbers_of(table), (numbers{0, 3}));
    table.filter("ecc<3");
    EXPECT_EQ(numbers_of(table), (numbers{0, 1, 3}));
    table.filter("");
    EXPECT_EQ(numbers_of(table), (numbers{0, 1, 2, 3}));
}

TEST(study_table, filters_by_a_text_anywhere) {
    study_table table = four_rows();
    table.filter("SHAFT");
    EXPECT_EQ(numbers_of(table), numbers{1});
    table.filter("2.25");
    EXPECT_EQ(numbers_of(table), (numbers{1, 3}));
    table.filter("hertz_max<5");  // no column of this study
    EXPECT_EQ(numbers_of(table), numbers{});
}

TEST(study_table, keeps_order_and_filter_for_rows_that_come_later) {
    study_table table = four_rows();
    table.sort(4, false);
    table.filter("capacity>=7");
    EXPECT_EQ(numbers_of(table), (numbers{3, 0}));
    table.add({row_of(4, "2", 9.0), row_of(5, "2", 1.0)});
    EXPECT_EQ(numbers_of(table), (numbers{3, 0, 4}));
    EXPECT_EQ(table.rows().size(), 6U);
}

}  // namespace
}  // namespace kvt
