// Tests of the tables: each line whole, and read back.
#include "app/study/study_text.hpp"

#include "app/study/study_problem.hpp"
#include "support/open_design.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

study two_columns() {
    study_plan plan;
    plan.variables = {study_variable_of("ecc=2,3"), study_variable_of("outer_root=20,21")};
    plan.recorded = {"capacity", "flow_m3s[0][5]"};
    return {opened_design("n07_engine_oil_groove"), plan};
}

study_row one_row() {
    study_row row;
    row.number = 7;
    row.texts = {"2", "20"};
    row.result.ports_reached = true;
    row.result.performance_refused = true;
    row.values = {0.1, std::nullopt};
    row.messages = {"Say \"no\", twice", "two\r\nlines"};
    row.hints = {"a hint"};
    row.meets_conditions = true;
    return row;
}

TEST(study_text, has_units_in_the_head_of_a_table) {
    EXPECT_EQ(head_line(two_columns(), study_format::csv),
              "design,ecc [mm],outer_root [mm],end,ports,performance,"
              "capacity [Lit/Min/1000rpm],flow_m3s[0][5] [m3/s],messages,hints\r\n");
    EXPECT_EQ(head_line(two_columns(), study_format::json_lines), "");
}

TEST(study_text, quotes_what_a_cell_can_not_hold) {
    EXPECT_EQ(row_line(two_columns(), one_row(), study_format::csv),
              "7,2,20,ok,ok,refused,0.1,,\"Say \"\"no\"\", twice | two lines\",a hint\r\n");
}

TEST(study_text, is_one_object_a_line) {
    EXPECT_EQ(row_line(two_columns(), one_row(), study_format::json_lines),
              R"({"design":7,"typed":{"ecc":"2","outer_root":"20"},"end":"ok","ports":"ok",)"
              R"("performance":"refused","values":{"capacity":0.1,"flow_m3s[0][5]":null},)"
              R"("messages":["Say \"no\", twice","two\r\nlines"],"hints":["a hint"]})"
              "\n");
}

TEST(study_text, reads_its_lines_back) {
    const study designs = two_columns();
    for (const study_format format : {study_format::csv, study_format::json_lines}) {
        study_row row = one_row();
        row.messages = {"one, \"two\""};
        row.values = {1.0 / 3.0, -2.5e-300};
        row.result.end = batch_end::closing;
        const std::string line = row_line(designs, row, format);
        const study_row back =
            row_of_line(designs, line.substr(0, line.find_first_of("\r\n")), format);
        EXPECT_EQ(back.number, 7U);
        EXPECT_EQ(back.texts, row.texts);
        EXPECT_EQ(back.values, row.values);
        EXPECT_EQ(back.messages, row.messages);
        EXPECT_EQ(back.hints, row.hints);
        EXPECT_EQ(back.result.end, batch_end::closing);
        EXPECT_EQ(back.result.is_accepted(), row.result.is_accepted());
        EXPECT_EQ(row_line(designs, back, format), line);
    }
}

TEST(study_text, refuses_lines_that_are_none) {
    const study designs = two_columns();
    for (const char* wrong : {"", "7", "x,2,20,ok,ok,ok,0.1,0.2,,", "7,2,20,good,ok,ok,0.1,0.2,,",
                              "7,2,20,ok,ok,ok,a,0.2,,", "7,2,20,ok,ok,ok,0.1,0.2,,,"}) {
        EXPECT_THROW(row_of_line(designs, wrong, study_format::csv), study_problem) << wrong;
    }
    for (const char* wrong : {"", "7", "{}", R"({"design":7})", R"({"design":"x"})"}) {
        EXPECT_THROW(row_of_line(designs, wrong, study_format::json_lines), study_problem) << wrong;
    }
}

}  // namespace
}  // namespace kvt
