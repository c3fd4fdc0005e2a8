// Tests of what a study says is wrong, in both languages.
#include "app/study/study_problem.hpp"

#include "core/app_state.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

TEST(study_problem, tells_its_parts_in_both_languages) {
    const study_problem problem("no_number_in_range", {"2:x", "x"});
    EXPECT_STREQ(problem.what(), "'2:x' is no range: 'x' is no number");
    EXPECT_EQ(problem.text(ENGLISH), problem.what());
    EXPECT_EQ(problem.text(GERMAN), "'2:x' ist kein Bereich: 'x' ist keine Zahl");
}

TEST(study_problem, says_that_a_sample_has_one_design_only) {
    const study_problem problem("all_the_same", {"200"});
    EXPECT_EQ(problem.text(ENGLISH),
              "a sample needs something to vary: all 200 designs would be the same");
    EXPECT_EQ(problem.text(GERMAN),
              "eine Stichprobe braucht etwas, das variiert wird: alle 200 Entwürfe wären gleich");
}

TEST(study_problem, replaces_nothing_within_a_part) {
    EXPECT_STREQ(study_problem("no_number_in_range", {"%2", "%1"}).what(),
                 "'%2' is no range: '%1' is no number");
    EXPECT_STREQ(study_problem("typed", {"50 %"}).what(), "50 %");
}

}  // namespace
}  // namespace kvt
