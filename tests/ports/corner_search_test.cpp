// Tests of the search for a fillet: the loop step by step, its two passes, and the four targets.
#include "ports/corner_search.hpp"

#include "ports/polar.hpp"
#include "support/expect_failure.hpp"
#include "support/property_runs.hpp"

#include <cmath>
#include <gtest/gtest.h>

namespace kvt {
namespace {

/// tan(theta) = 0, so that g is the cosine alone.
corner_search cosine_search(double target, double start_deg, step_rule rule) {
    return {target, 0.0, false, start_deg, rule};
}

double steps_down(double phi, int count) {
    for (int i = 0; i < count; ++i) {
        phi = phi - 0.001;
    }
    return phi;
}

/// The search as it is told, a step and a g at a time, with what decides its direction.
std::optional<double> found_step_by_step(const corner_search& search) {
    double phi = search.start_deg;
    double A = search.target;
    double g = 0.0;
    long count = 0;
    int passes = 0;
    while (!(-0.001 < g - A && g - A < 0.001)) {
        ++count;
        const double t = phi * 3.1415927 / 180.0;
        g = std::cos(t) - std::sin(t) * search.tan_side;
        g = search.negative_g ? -g : g;
        if (count > 180000) {
            count = 0;
            ++passes;
            phi = search.start_deg;
            A = -A;
        }
        if (passes == 2) {
            return std::nullopt;
        }
        const bool is_up =
            search.rule == step_rule::up || (search.rule == step_rule::by_target && A > 1.0);
        const bool stays =
            search.rule == step_rule::none || (search.rule == step_rule::by_target && A == 1.0);
        if (g != A && !stays) {
            phi = (g < A) == is_up ? phi + 0.001 : phi - 0.001;
        }
    }
    return phi;
}

TEST(corner_search, ends_as_step_by_step_to_the_last_bit) {
    random_values random(property_seed());
    int found = 0;
    for (int run = 0; run < property_count(300); ++run) {
        const double side = random.real(-1.7, 3.2);
        const corner_search search = {
            random.real(-1.3, 1.3) * std::hypot(1.0, std::tan(side)), std::tan(side),
            random.whole(0, 1) == 1, random.real(-20.0, 200.0),
            random.whole(0, 3) == 0 ? step_rule::by_target : rule_of_side(side)};
        const std::optional<double> angle = corner_angle(search);
        ASSERT_EQ(angle, found_step_by_step(search)) << run;
        found += angle ? 1 : 0;
    }
    EXPECT_GT(found, property_count(300) / 4);
}

TEST(corner_search, accepts_the_angle_one_step_beyond_the_one_it_tested) {
    // g(60) is within the tolerance at once, but the step is taken before the test. g =
    // 0.4999999... < A steps up.
    const double A = cos_deg(60.0) + 0.0005;
    EXPECT_EQ(corner_angle(cosine_search(A, 60.0, step_rule::up)), 60.0 + 0.001);
    EXPECT_EQ(corner_angle(cosine_search(A, 60.0, step_rule::down)), 60.0 - 0.001);
}

TEST(corner_search, takes_no_step_when_g_is_exactly_the_target) {
    EXPECT_EQ(corner_angle(cosine_search(cos_deg(60.0), 60.0, step_rule::up)), 60.0);
}

TEST(corner_search, ends_at_the_start_for_a_target_near_zero) {
    EXPECT_EQ(corner_angle(cosine_search(0.0009, 20.0, step_rule::none)), 20.0);
    EXPECT_EQ(corner_angle(cosine_search(-0.0009, 20.0, step_rule::none)), 20.0);
}

TEST(corner_search, walks_in_accumulated_steps) {
    const auto found = corner_angle(cosine_search(cos_deg(50.0), 60.0, step_rule::down));
    ASSERT_TRUE(found);
    const int steps = static_cast<int>(std::lround((60.0 - *found) / 0.001));
    EXPECT_EQ(*found, steps_down(60.0, steps)) << "the sum of its steps, to the last bit";
    const double before_the_last_step = steps_down(60.0, steps - 1);
    EXPECT_LT(std::fabs(cos_deg(before_the_last_step) - cos_deg(50.0)), 0.001);
    EXPECT_GE(std::fabs(cos_deg(steps_down(60.0, steps - 2)) - cos_deg(50.0)), 0.001);
}

TEST(corner_search, fails_when_neither_the_target_nor_its_negative_is_met) {
    EXPECT_FALSE(corner_angle(cosine_search(2.0, 60.0, step_rule::down))) << "no cosine is 2 or -2";
}

TEST(corner_search, walks_half_a_turn_in_one_direction_only) {
    // tan = 2: g is 2.236 at -63.4 and -2.236 at 116.6 degrees. From 100 degrees (g = -2.143) rule
    // D walks down and meets 2.2 at -53.1; rule U walks up to 280 (g = 2.143), then for -2.2 down
    // to -80, and meets neither.
    const auto found = corner_angle({2.2, 2.0, false, 100.0, step_rule::down});
    ASSERT_TRUE(found);
    EXPECT_NEAR(*found, -53.1, 0.5);
    EXPECT_FALSE(corner_angle({2.2, 2.0, false, 100.0, step_rule::up}));
}

TEST(corner_search, second_pass_meets_the_negative_target) {
    // From 90 degrees the first pass for 2.1 walks up to 270 (g = 2.0). The second one for -2.1 has
    // rule D, as A is below 1 now: g is above A, so it walks up too, and meets -2.1 before the
    // bottom of g.
    const auto found = corner_angle({2.1, 2.0, false, 90.0, step_rule::by_target});
    ASSERT_TRUE(found);
    EXPECT_GT(*found, 90.0);
    EXPECT_LT(*found, 116.6);
    EXPECT_NEAR(cos_deg(*found) - 2.0 * sin_deg(*found), -2.1, 0.0011);
}

TEST(corner_search, fails_after_two_passes_without_a_step) {
    EXPECT_FALSE(corner_angle(cosine_search(0.9, 60.0, step_rule::none)));
}

TEST(corner_search, a_target_of_exactly_1_has_no_rule_but_its_negative_has) {
    // The first pass stands still at 60 degrees; the second, with A = -1 and rule D, walks up to
    // the cosine of -1.
    const auto found = corner_angle(cosine_search(1.0, 60.0, step_rule::by_target));
    ASSERT_TRUE(found);
    EXPECT_NEAR(cos_deg(*found), -1.0, 0.0011);
}

TEST(corner_search, corner_1_turns_by_the_target_in_force) {
    // A = 0.9 < 1 gives rule D: g = 0.5 < A steps down, towards cos 25.8.
    const auto found = corner_angle(cosine_search(0.9, 60.0, step_rule::by_target));
    ASSERT_TRUE(found);
    EXPECT_NEAR(cos_deg(*found), 0.9, 0.0011);
    EXPECT_LT(*found, 60.0);
}

TEST(corner_search, rule_of_a_side_turns_at_a_right_angle) {
    EXPECT_EQ(rule_of_side(1.0), step_rule::up);
    EXPECT_EQ(rule_of_side(-1.0), step_rule::up);
    EXPECT_EQ(rule_of_side(2.0), step_rule::down);
    EXPECT_EQ(rule_of_side(3.1415927 / 2.0), step_rule::none);
}

TEST(corner_search, sharp_corners_have_the_g_of_their_own_angle_as_target) {
    const corner_input in = {14.5, 40.0, 0.0, 0.9};
    const double g = cos_deg(40.0) - sin_deg(40.0) * std::tan(0.9);
    EXPECT_NEAR(search_start_inner(in).target, g, 1e-15);
    EXPECT_NEAR(search_end_inner(in).target, g, 1e-15);
    EXPECT_NEAR(search_end_outer(in).target, g, 1e-15);
    EXPECT_NEAR(search_start_outer(in).target, -g, 1e-15);
    EXPECT_TRUE(search_start_outer(in).negative_g);
    const auto found = corner_angle(search_start_inner(in));
    ASSERT_TRUE(found);
    EXPECT_NEAR(*found, 40.0, 0.0011) << "at the entered angle or a step beside it";
}

TEST(corner_search, targets_put_the_fillet_beside_the_side_line) {
    // theta = 0 is a side straight up, on x = R cos a for the inner corner: the centre lies f
    // beside it.
    const corner_input inner = {10.0, 60.0, 2.0, 0.0};
    EXPECT_NEAR(search_start_inner(inner).target * 12.0, 10.0 * cos_deg(60.0) - 2.0, 1e-12);
    EXPECT_NEAR(search_end_inner(inner).target * 12.0, 10.0 * cos_deg(60.0) - 2.0, 1e-12);
    const corner_input outer = {20.0, 60.0, 2.0, 0.0};
    EXPECT_NEAR(search_end_outer(outer).target * 18.0, 20.0 * cos_deg(60.0) - 2.0, 1e-12);
    EXPECT_NEAR(search_start_outer(outer).target * 18.0, -20.0 * cos_deg(60.0) + 2.0, 1e-12);
}

TEST(corner_search, fillets_as_large_as_the_radius_fail) {
    EXPECT_FAILURE(search_start_inner({10.0, 60.0, -10.0, 1.0}), failure::division_by_zero);
    EXPECT_FAILURE(search_end_outer({10.0, 60.0, 10.0, 1.0}), failure::division_by_zero);
    EXPECT_FAILURE(search_start_outer({10.0, 60.0, 10.0, 1.0}), failure::division_by_zero);
}

}  // namespace
}  // namespace kvt
