// Tests of studies in words.
#include "app/study/study_words.hpp"

#include "app/study/study_problem.hpp"

namespace kvt {
namespace {

TEST(study_words, make_a_plan) {
    const study_plan plan = study_plan_of({.varied = {"ecc=2:3", "numlobes=5,6"},
                                           .recorded = {"capacity"},
                                           .conditions = {"outer_diameter<=58"},
                                           .aims = {"capacity:max"},
                                           .sample = "sobol:64",
                                           .seed = 7,
                                           .last = calc_stage::ports});
    ASSERT_EQ(plan.variables.size(), 2U);
    EXPECT_EQ(plan.variables[0].highest, 3.0);
    EXPECT_EQ(plan.variables[1].levels, (std::vector<std::string>{"5", "6"}));
    EXPECT_EQ(plan.sample.kind, sample_kind::sobol);
    EXPECT_EQ(plan.sample.count, 64U);
    EXPECT_EQ(plan.sample.seed, 7U);
    EXPECT_EQ(plan.recorded, std::vector<std::string>{"capacity"});
    EXPECT_EQ(plan.conditions.at(0).limit, 58.0);
    EXPECT_TRUE(plan.aims.at(0).is_largest_best);
    EXPECT_EQ(plan.last, calc_stage::ports);
}

TEST(study_words, record_what_is_seen_of_a_design_unless_something_is_named) {
    const std::vector<std::string> usual = study_plan_of({.varied = {"ecc=2,3"}}).recorded;
    EXPECT_EQ(usual.size(), 14U);
    EXPECT_EQ(usual.front(), "capacity");
    EXPECT_EQ(recorded_or_usual({"ripple"}), std::vector<std::string>{"ripple"});
}

TEST(study_words, that_say_nothing_are_a_problem) {
    EXPECT_THROW(study_plan_of({.varied = {"ecc"}}), study_problem);
    EXPECT_THROW(study_plan_of({.varied = {"ecc=1"}, .sample = "dice:5"}), study_problem);
    EXPECT_THROW(study_plan_of({.varied = {"ecc=1"}, .conditions = {"capacity"}}), study_problem);
}

}  // namespace
}  // namespace kvt
