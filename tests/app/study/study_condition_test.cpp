// Tests of conditions and aims: how they are written, and what meets them.
#include "app/study/study_condition.hpp"

#include "app/study/study_problem.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

TEST(study_condition, is_read_with_each_comparison) {
    const study_condition condition = study_condition_of("outer_diameter<=58.5");
    EXPECT_EQ(condition.quantity, "outer_diameter");
    EXPECT_EQ(condition.compared, comparison::at_most);
    EXPECT_EQ(condition.limit, 58.5);
    EXPECT_EQ(study_condition_of("a<1").compared, comparison::less);
    EXPECT_EQ(study_condition_of("a=1").compared, comparison::equal);
    EXPECT_EQ(study_condition_of("a==1").compared, comparison::equal);
    EXPECT_EQ(study_condition_of("a!=1").compared, comparison::other);
    EXPECT_EQ(study_condition_of("a>1").compared, comparison::greater);
    EXPECT_EQ(study_condition_of("flow_m3s[0][5]>=-1E-5").quantity, "flow_m3s[0][5]");
    EXPECT_EQ(study_condition_of("flow_m3s[0][5]>=-1E-5").limit, -1E-5);
}

TEST(study_condition, refuses_what_is_none) {
    for (const char* wrong : {"", "a", "<5", "a<", "a<b", "a<5mm", "a!5", "a<>5"}) {
        EXPECT_THROW(study_condition_of(wrong), study_problem) << wrong;
    }
}

TEST(study_condition, is_met_as_its_sign_says) {
    const auto meets = [](const char* text, double value) {
        return study_condition_of(text).is_met(value);
    };
    EXPECT_TRUE(meets("a<5", 4.9));
    EXPECT_FALSE(meets("a<5", 5.0));
    EXPECT_TRUE(meets("a<=5", 5.0));
    EXPECT_FALSE(meets("a<=5", 5.1));
    EXPECT_TRUE(meets("a=5", 5.0));
    EXPECT_FALSE(meets("a=5", 5.1));
    EXPECT_TRUE(meets("a!=5", 5.1));
    EXPECT_FALSE(meets("a!=5", 5.0));
    EXPECT_TRUE(meets("a>=5", 5.0));
    EXPECT_FALSE(meets("a>=5", 4.9));
    EXPECT_TRUE(meets("a>5", 5.1));
    EXPECT_FALSE(meets("a>5", 5.0));
}

TEST(study_condition, is_not_met_without_a_value) {
    EXPECT_FALSE(study_condition_of("a<5").is_met(std::nullopt));
    EXPECT_FALSE(study_condition_of("a!=5").is_met(std::nullopt));
}

TEST(study_condition, is_missed_by_the_distance) {
    EXPECT_EQ(study_condition_of("a<=5").missed_by(4.0), 0.0);
    EXPECT_EQ(study_condition_of("a<=5").missed_by(7.0), 2.0);
    EXPECT_EQ(study_condition_of("a>=5").missed_by(4.5), 0.5);
    EXPECT_EQ(study_condition_of("a!=5").missed_by(5.0), 1.0);
}

TEST(study_aim, is_the_largest_or_the_least) {
    EXPECT_EQ(study_aim_of("capacity:max").quantity, "capacity");
    EXPECT_TRUE(study_aim_of("capacity:max").is_largest_best);
    EXPECT_FALSE(study_aim_of("ripple:min").is_largest_best);
    for (const char* wrong : {"", "capacity", ":max", "capacity:", "capacity:most"}) {
        EXPECT_THROW(study_aim_of(wrong), study_problem) << wrong;
    }
}

}  // namespace
}  // namespace kvt
