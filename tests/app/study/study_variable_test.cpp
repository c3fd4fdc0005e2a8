// Tests of what a study types: lists, steps, ranges, and what it refuses.
#include "app/study/study_variable.hpp"

#include "app/study/study_problem.hpp"
#include "support/open_design.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

using texts = std::vector<std::string>;

std::string problem_of(const std::string& text) {
    try {
        study_variable_of(text);
    } catch (const study_problem& problem) {
        return problem.what();
    }
    return {};
}

TEST(study_variable, takes_a_list_as_it_is_written) {
    const study_variable variable = study_variable_of("ecc=2,2.10,2.5");
    EXPECT_EQ(variable.control, "ecc");
    EXPECT_EQ(variable.levels, (texts{"2", "2.10", "2.5"}));
    EXPECT_FALSE(variable.is_continuous());
}

TEST(study_variable, keeps_an_empty_text_of_a_list) {
    EXPECT_EQ(study_variable_of("outer_root=,26").levels, (texts{"", "26"}));
}

TEST(study_variable, counts_in_decimal_steps) {
    EXPECT_EQ(study_variable_of("ecc=2:2.3:0.1").levels, (texts{"2", "2.1", "2.2", "2.3"}));
    EXPECT_EQ(study_variable_of("ecc=2:3:0.4").levels, (texts{"2", "2.4", "2.8"}));
    EXPECT_EQ(study_variable_of("ecc=2:2:0.1").levels, texts{"2"});
    EXPECT_EQ(study_variable_of("bulk_mod_text=1E9:2E9:5E8").levels,
              (texts{"1000000000", "1500000000", "2000000000"}));
    // The 21 values of 0.05 from 2 to 3, none lost or blurred by rounding.
    const texts steps = study_variable_of("ecc=2:3:0.05").levels;
    ASSERT_EQ(steps.size(), 21U);
    EXPECT_EQ(steps[7], "2.35");
    EXPECT_EQ(steps[20], "3");
}

TEST(study_variable, counts_angles_below_0) {
    EXPECT_EQ(study_variable_of("inlet_start_inner=-1:1:0.5").levels,
              (texts{"-1", "-0.5", "0", "0.5", "1"}));
}

TEST(study_variable, takes_whole_numbers_alone_where_the_control_does) {
    EXPECT_EQ(study_variable_of("numlobes=5:8").levels, (texts{"5", "6", "7", "8"}));
}

TEST(study_variable, has_no_levels_in_a_range) {
    const study_variable variable = study_variable_of("ecc=2:3");
    EXPECT_TRUE(variable.is_continuous());
    EXPECT_EQ(text_at(variable, 0.0), "2");
    EXPECT_EQ(text_at(variable, 0.25), "2.25");
    EXPECT_EQ(text_at(variable, 1.0 / 3.0), "2.33333333333333");
}

TEST(study_variable, shares_a_range_out_evenly_among_levels) {
    const study_variable variable = study_variable_of("numlobes=5,6,7");
    EXPECT_EQ(text_at(variable, 0.0), "5");
    EXPECT_EQ(text_at(variable, 0.3333), "5");
    EXPECT_EQ(text_at(variable, 0.3334), "6");
    EXPECT_EQ(text_at(variable, 0.9999), "7");
    EXPECT_EQ(text_at(variable, 1.0), "7");
}

TEST(study_variable, takes_check_boxes_and_units) {
    EXPECT_EQ(study_variable_of("metering_groove=0,1").levels, (texts{"0", "1"}));
    EXPECT_EQ(problem_of("metering_groove=0,2"), "metering_groove is a check box, 0 or 1");
    EXPECT_EQ(study_variable_of("dimens2=1").levels, texts{"1"});
}

TEST(study_variable, has_the_unit_of_its_entry_in_the_project) {
    program base = opened_design("n07_inch_hydraulic");
    EXPECT_EQ(unit_of_variable(study_variable_of("ecc=2:3"), base), "in");
    base.app_state.drawing_units = MILLIMETRES;
    EXPECT_EQ(unit_of_variable(study_variable_of("ecc=2:3"), base), "mm");
    EXPECT_EQ(unit_of_variable(study_variable_of("numlobes=5,6"), base), "");
    EXPECT_EQ(unit_of_variable(study_variable_of("dimens2=1"), base), "");
}

TEST(study_variable, says_what_is_wrong) {
    EXPECT_EQ(problem_of("eccc=2,3"), "there is no control 'eccc'; near names: ecc");
    EXPECT_EQ(problem_of("ecc"), "'ecc' is neither CONTROL=LIST nor CONTROL=RANGE");
    EXPECT_EQ(problem_of("ecc="), "'ecc=' is neither CONTROL=LIST nor CONTROL=RANGE");
    EXPECT_EQ(problem_of("ecc=2:x"), "'2:x' is no range: 'x' is no number");
    EXPECT_EQ(problem_of("ecc=3:2"), "'3:2' is no range: it goes up");
    EXPECT_EQ(problem_of("ecc=1:2:3:4"), "'1:2:3:4' is neither FIRST:LAST nor FIRST:LAST:STEP");
    const std::string steps =
        " is no range: FIRST:LAST:STEP goes up to the last number, in at most a million steps";
    EXPECT_EQ(problem_of("ecc=2:3:0"), "'2:3:0'" + steps);
    EXPECT_EQ(problem_of("ecc=2:3:-1"), "'2:3:-1'" + steps);
    EXPECT_EQ(problem_of("ecc=3:2:1"), "'3:2:1'" + steps);
    EXPECT_EQ(problem_of("ecc=0:1:0.0000001"), "'0:1:0.0000001'" + steps);
}

}  // namespace
}  // namespace kvt
