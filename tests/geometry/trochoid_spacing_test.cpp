// Tests of the spacing of the trochoid points.
#include "geometry/trochoid_spacing.hpp"

#include "support/expect_failure.hpp"

#include <gtest/gtest.h>

namespace kvt {

namespace {

struct totals {
    double points = 0.0, millionths = 0.0;
};

totals totals_of(int inner_lobes) {
    const trochoid_spacing spacing = spacing_of_points(3600.0, inner_lobes);
    totals sum;
    for (int lobe = 0; lobe < inner_lobes; ++lobe) {
        for (int j = 1; j <= spacing.points_of_lobe(lobe); ++j) {
            sum.points += 1.0;
            sum.millionths += spacing.step(lobe, j);
        }
    }
    return sum;
}

}  // namespace

TEST(trochoid_spacing, of_8_lobes_has_extra_steps_and_two_longer_lobes) {
    const trochoid_spacing spacing = spacing_of_points(3600.0, 7.0);
    EXPECT_EQ(spacing.n_start, 102.0);
    EXPECT_EQ(spacing.n_end, 102.0);
    EXPECT_EQ(spacing.n_mid, 308.0);
    EXPECT_EQ(spacing.n_extra, 2.0);
    EXPECT_NEAR(spacing.step_extra, 0.05625, 1e-12);
    EXPECT_EQ(spacing.left, 2.0);
    EXPECT_EQ(spacing.points_of_lobe(0), 515);
    EXPECT_EQ(spacing.points_of_lobe(1), 515);
    EXPECT_EQ(spacing.points_of_lobe(2), 514);
    EXPECT_EQ(spacing.points_of_lobe(6), 514);
}

TEST(trochoid_spacing, of_6_and_3_lobes_has_no_extra_steps) {
    const trochoid_spacing six = spacing_of_points(3600.0, 5.0);
    EXPECT_EQ(six.n_start, 144.0);
    EXPECT_EQ(six.n_mid, 432.0);
    EXPECT_EQ(six.n_end, 144.0);
    EXPECT_EQ(six.n_extra, 0.0);
    EXPECT_EQ(six.points_of_lobe(0), 720);
    const trochoid_spacing three = spacing_of_points(3600.0, 2.0);
    EXPECT_EQ(three.n_start, 360.0);
    EXPECT_EQ(three.n_mid, 1080.0);
    EXPECT_EQ(three.n_end, 360.0);
    EXPECT_EQ(three.points_of_lobe(1), 1800);
}

TEST(trochoid_spacing, runs_fine_coarse_extra_fine_through_a_lobe) {
    const trochoid_spacing spacing = spacing_of_points(3600.0, 7.0);
    EXPECT_EQ(spacing.step(2, 1), 25000.0);
    EXPECT_EQ(spacing.step(2, 102), 25000.0);
    EXPECT_EQ(spacing.step(2, 103), 150000.0);
    EXPECT_EQ(spacing.step(2, 410), 150000.0);
    EXPECT_EQ(spacing.step(2, 411), spacing.step_extra * 1000000.0);
    EXPECT_EQ(spacing.step(2, 412), spacing.step_extra * 1000000.0);
    EXPECT_EQ(spacing.step(2, 413), 25000.0);
    EXPECT_EQ(spacing.step(0, 413), spacing.step_extra * 1000000.0)
        << "lobe 0 has one extra step more";
    EXPECT_EQ(spacing.step(0, 414), 25000.0);
}

TEST(trochoid_spacing, goes_once_round_for_all_usual_lobe_numbers) {
    for (int inner_lobes = 2; inner_lobes <= 33; ++inner_lobes) {
        const totals sum = totals_of(inner_lobes);
        EXPECT_EQ(sum.points, 3600.0) << inner_lobes;
        EXPECT_NEAR(sum.millionths, 360000000.0, 1e-3) << inner_lobes;
    }
}

TEST(trochoid_spacing, leaves_points_out_when_the_rest_is_not_above_the_lobes) {
    // 34 lobes: 105 points each, zones 21 + 63 + 21 = 105, rest 30, which is not above 34: 3570
    // points, 357 degrees.
    const totals sum = totals_of(34);
    EXPECT_EQ(sum.points, 3570.0);
    EXPECT_NEAR(sum.millionths, 357000000.0, 1e-3);
}

TEST(trochoid_spacing, fails_without_an_inner_lobe) {
    EXPECT_FAILURE(spacing_of_points(3600.0, 0.0), failure::division_by_zero);
}

}  // namespace kvt
