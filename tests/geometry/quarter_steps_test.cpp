// Tests of the steps of 0.25 mm, taken one by one and many at once.
#include "geometry/quarter_steps.hpp"

#include "support/expect_failure.hpp"
#include "support/property_runs.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

TEST(quarter_steps, add_a_quarter) {
    EXPECT_EQ(next_quarter(1.0, 0.25), 1.25);
    EXPECT_EQ(next_quarter(1.0, -0.25), 0.75);
}

TEST(quarter_steps, fail_where_a_quarter_changes_nothing) {
    EXPECT_FAILURE(next_quarter(1e18, 0.25), failure::overflow);
    EXPECT_FAILURE(next_quarter(-1e18, -0.25), failure::overflow);
}

TEST(quarter_steps, are_exact_between_two_powers_of_two) {
    EXPECT_TRUE(are_exact_quarters(1.1, 1.85));
    EXPECT_FALSE(are_exact_quarters(1.1, 2.1));
    EXPECT_FALSE(are_exact_quarters(0.0, 0.25));
    EXPECT_FALSE(are_exact_quarters(-0.2, 0.05));
    EXPECT_FALSE(are_exact_quarters(3e15, 3e15 + 1.0));
}

TEST(quarter_steps, stand_still_when_every_value_may_end_the_search) {
    EXPECT_EQ(pass_over_quarters(3.1, 0.25, [](double, double) { return false; }), 3.1);
}

/// A search for the first value above a limit, with blocks passed over.
double first_above(double start, double limit) {
    double value = start;
    while (!(value > limit)) {
        value = pass_over_quarters(value, QUARTER_MM,
                                   [limit](double, double to) { return !(to > limit); });
        value = next_quarter(value, QUARTER_MM);
    }
    return value;
}

TEST(quarter_steps, end_at_the_same_bits_as_single_steps) {
    random_values random;
    for (int run = property_count(300); run > 0; --run) {
        const double start = random.real(0.0, 300.0);
        const double limit = start + random.real(0.0, 5000.0);
        double single = start;
        while (!(single > limit)) {
            single = single + 0.25;
        }
        ASSERT_EQ(first_above(start, limit), single) << start << " to " << limit;
    }
}

TEST(quarter_steps, cross_astronomic_ranges_at_once) {
    EXPECT_EQ(first_above(0.25, 1e14), 1e14 + 0.25);
}

}  // namespace
}  // namespace kvt
