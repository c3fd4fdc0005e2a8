// Tests of rows as JSON.
#include "app/study/study_json.hpp"

#include "app/study/study_problem.hpp"
#include "support/open_design.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

study one_column() {
    study_plan plan;
    plan.variables = {study_variable_of("ecc=2,3")};
    plan.recorded = {"capacity"};
    return {opened_design("n04_fuel"), plan};
}

TEST(study_json, reads_back_what_it_writes) {
    const study designs = one_column();
    study_row row;
    row.number = 3;
    row.texts = {"2"};
    row.values = {1.0 / 3.0};
    row.messages = {"two\r\nlines", "\"quoted\""};
    const study_row back = row_of_json(designs, json_of_row(designs, row));
    EXPECT_EQ(back.values, row.values);
    EXPECT_EQ(back.messages, row.messages);
    EXPECT_EQ(back.texts, row.texts);
    EXPECT_EQ(back.number, 3U);
    EXPECT_TRUE(back.meets_conditions);
}

TEST(study_json, refuses_what_is_no_row_of_the_study) {
    const study designs = one_column();
    EXPECT_THROW(json_of_text("{"), study_problem);
    EXPECT_THROW(row_of_json(designs, json_of_text("{}")), study_problem);
    study_row row;
    row.texts = {"2"};
    row.values = {5.0};
    study_json other = json_of_row(designs, row);
    EXPECT_EQ(row_of_json(designs, other).values.front(), 5.0);
    other["values"]["capacity"] = "much";
    EXPECT_THROW(row_of_json(designs, other), study_problem);
}

TEST(study_json, replaces_bytes_that_are_no_text) {
    EXPECT_EQ(text_of_json({{"a", "\xFF"}}), "{\"a\":\"\xEF\xBF\xBD\"}");
}

}  // namespace
}  // namespace kvt
