// Tests of the gap round the turn: the clearance of the drawing, its places, interference.
#include "exact/rotor_gap.hpp"

#include "base/run_time_error.hpp"
#include "exact/exact_designs.hpp"
#include "exact/exact_pair.hpp"
#include "support/sample_design.hpp"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

namespace kvt {
namespace {

constexpr double PI = std::numbers::pi;

/// By the points of both profiles that are cut, for the lobe that stands at an angle.
double gap_of_points(const design_params& design, const rotor_profiles& rotors, double angle) {
    const exact_pair pair = nominal_pair(design);
    double least = 1e9;
    for (std::size_t i = 0; i < 3600; ++i) {
        const point2 inner =
            turned({rotors.inner_x[i], rotors.inner_y[i]}, angle * pair.inner_turn());
        const point2 lobe = lobe_centre(pair, angle);
        least = std::min(least, distance(inner, lobe) - design.radouter);
    }
    return least;
}

TEST(rotor_gap, agrees_with_the_points_that_are_cut) {
    design_params design = sample_design();
    const rotor_profiles rotors = rotor_pair_of(design);
    for (const double angle : {0.0, 0.3, 1.0, 2.0, 3.0, PI}) {
        EXPECT_NEAR(gap_at_lobe(design, angle), gap_of_points(design, rotors, angle), 1e-4)
            << angle;
    }
}

TEST(rotor_gap, is_nothing_without_clearance) {
    random_values random(property_seed());
    for (int run = 0; run < property_count(30); ++run) {
        design_params design = random_pair(random);
        design.clearn_half = 0.0;
        design.fillet = 0.0;
        for (const double angle : {0.2, 1.3, 2.9}) {
            EXPECT_NEAR(gap_at_lobe(design, angle), 0.0, 1e-7 * design.maxdiameter);
        }
    }
}

TEST(rotor_gap, is_half_of_the_clearance_all_round) {
    design_params design = pair_design(7, 2.85, 24.5, 7.5, 10.0);
    design.clearn_half = 0.06;
    design.fillet = 0.0;
    for (const double gap : gaps_round_turn(design).gap) {
        EXPECT_NEAR(gap, 0.06, 1e-6);
    }
}

TEST(rotor_gap, finds_the_least_of_all) {
    random_values random(property_seed());
    for (int run = 0; run < property_count(10); ++run) {
        const design_params design = random_pair(random);
        const gap_round_turn turn = gaps_round_turn(design);
        ASSERT_EQ(turn.gap.size(), 361U);
        EXPECT_LE(turn.least, *std::ranges::min_element(turn.gap) + 1e-12);
        EXPECT_NEAR(gap_at_lobe(design, turn.least_at), turn.least, 1e-9);
        EXPECT_DOUBLE_EQ(turn.gap[20], turn.gap[340]) << "the second half mirrors the first";
    }
}

TEST(rotor_gap, a_lobe_too_thick_overlaps) {
    design_params design = pair_design(7, 2.85, 24.5, 7.5, 10.0);
    design.clearn_half = -0.02;
    const gap_round_turn turn = gaps_round_turn(design);
    EXPECT_LT(turn.least, -0.01);
    EXPECT_GT(turn.least, -0.05);
}

TEST(rotor_gap, large_fillets_touch_the_tips) {
    design_params design = pair_design(7, 2.85, 24.5, 7.5, 10.0);
    design.outer_root = design.radinnroot + 3.0 * design.ecc;
    const double without = gaps_round_turn(design).least;
    design.fillet = 5.0;
    EXPECT_LT(gaps_round_turn(design).least, std::min(0.0, without));
}

}  // namespace
}  // namespace kvt
