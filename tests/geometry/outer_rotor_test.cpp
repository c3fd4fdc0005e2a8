// Tests of the outer rotor profile.
#include "geometry/outer_rotor.hpp"

#include "geometry/outer_flank.hpp"
#include "support/expect_failure.hpp"
#include "support/sample_design.hpp"

#include <cmath>
#include <gtest/gtest.h>

namespace kvt {

namespace {

/// A wide-spaced design for any number of lobes, its root radius at the minimum.
design_params design_with_lobes(int lobes, double fillet) {
    design_params design = sample_design();
    design.numlobes = lobes;
    design.ecc = 2.0;
    design.radouter = 6.0;
    design.radinnroot = 1.4 * lobes * design.ecc;
    design.outer_root = design.radinnroot + 3.0 * design.ecc + 0.001;
    design.fillet = fillet;
    return design;
}

rotor_profiles outer_rotor_of(const design_params& design) {
    rotor_profiles rotors = prepared_rotors(design);
    fill_outer_rotor(design, rotors);
    return rotors;
}

}  // namespace

TEST(outer_rotor, with_fillets_has_500_points_a_lobe_and_one) {
    const rotor_profiles rotors = outer_rotor_of(design_with_lobes(8, 1.0));
    EXPECT_EQ(rotors.outer_xy_size, 9537);
    EXPECT_EQ(rotors.outer_xy.size(), 9538U);
    EXPECT_EQ(rotors.outer_x.size(), 4769U);
    EXPECT_EQ(rotors.outer_y.size(), 4769U);
    EXPECT_EQ(rotors.outer_xy_last, 8001);
    EXPECT_EQ(rotors.outer_last, 4000);
    EXPECT_EQ(rotors.fillet_x.size(), 101U);
    EXPECT_EQ(rotors.fillet_r.size(), 101U);
}

TEST(outer_rotor, without_fillets_has_300_points_a_lobe) {
    const rotor_profiles rotors = outer_rotor_of(design_with_lobes(8, 0.0));
    EXPECT_EQ(rotors.outer_xy_size, 608 * 8 + 1);
    EXPECT_EQ(rotors.outer_x.size(), 8U * 304U + 1U);
    EXPECT_EQ(rotors.outer_xy_last, 2 * 300 * 8 - 1);
    EXPECT_EQ(rotors.outer_last, 300 * 8 - 1);
    EXPECT_TRUE(rotors.fillet_x.empty());
}

TEST(outer_rotor, starts_at_the_root_of_the_first_flank_of_the_lobe_at_one_pitch) {
    const design_params design = sample_design();
    const rotor_profiles rotors = outer_rotor_of(design);
    const double A = TWO_PI_D / 7.0 - fillet_angle(design, rotors);
    EXPECT_NEAR(rotors.outer_xy[0], design.outer_root * std::cos(A) - design.ecc, 2e-6);
    EXPECT_NEAR(rotors.outer_xy[1], design.outer_root * std::sin(A), 2e-6);
}

TEST(outer_rotor, ends_where_it_starts) {
    for (int lobes = 3; lobes <= 32; ++lobes) {
        const rotor_profiles rotors = outer_rotor_of(design_with_lobes(lobes, 0.8));
        const auto last = static_cast<std::size_t>(rotors.outer_last);
        EXPECT_NEAR(rotors.outer_x[last], rotors.outer_x[0], 1e-5) << lobes;
        EXPECT_NEAR(rotors.outer_y[last], rotors.outer_y[0], 1e-5) << lobes;
    }
}

TEST(outer_rotor, holds_the_same_points_in_one_list_and_in_two) {
    const rotor_profiles rotors = outer_rotor_of(sample_design());
    for (std::size_t m = 0; m <= static_cast<std::size_t>(rotors.outer_last); ++m) {
        ASSERT_EQ(rotors.outer_xy[2 * m], rotors.outer_x[m]);
        ASSERT_EQ(rotors.outer_xy[2 * m + 1], rotors.outer_y[m]);
    }
}

TEST(outer_rotor, keeps_the_first_fillet_about_the_outer_centre) {
    const design_params design = sample_design();
    const rotor_profiles rotors = outer_rotor_of(design);
    for (std::size_t j = 0; j <= 100; ++j) {
        ASSERT_EQ(rotors.outer_x[j], rotors.fillet_x[j] - design.ecc);
        ASSERT_EQ(rotors.outer_y[j], rotors.fillet_y[j]);
        ASSERT_DOUBLE_EQ(rotors.fillet_r[j], std::hypot(rotors.fillet_x[j], rotors.fillet_y[j]));
    }
}

TEST(outer_rotor, moves_in_short_steps_all_the_way_round) {
    // The longest step: the lobe arc of at most half a turn in 250 steps, 6 mm * pi / 250.
    for (int lobes = 3; lobes <= 32; ++lobes) {
        const design_params design = design_with_lobes(lobes, 0.8);
        const rotor_profiles rotors = outer_rotor_of(design);
        for (std::size_t m = 1; m <= static_cast<std::size_t>(rotors.outer_last); ++m) {
            const double step = std::hypot(rotors.outer_x[m] - rotors.outer_x[m - 1],
                                           rotors.outer_y[m] - rotors.outer_y[m - 1]);
            ASSERT_LT(step, std::max(0.0755, design.outer_root * TWO_PI_D / lobes / 50.0))
                << lobes << " point " << m;
        }
    }
}

TEST(outer_rotor, overflows_its_16_bit_counters_with_fillets_from_33_lobes_on) {
    EXPECT_EQ(outer_rotor_of(design_with_lobes(32, 0.5)).outer_xy_last, 32001);
    EXPECT_FAILURE(outer_rotor_of(design_with_lobes(33, 0.5)), failure::overflow);
    EXPECT_EQ(outer_rotor_of(design_with_lobes(33, 0.0)).outer_xy_last, 19799);
}

TEST(outer_rotor, runs_with_new_lists_each_time) {
    design_params design = design_with_lobes(8, 1.0);
    rotor_profiles rotors = outer_rotor_of(design);
    design = design_with_lobes(3, 0.0);
    rotors.lobe_centre_offset = design.radinnroot + design.ecc;
    fill_outer_rotor(design, rotors);
    EXPECT_EQ(rotors.outer_xy.size(), 608U * 3U + 2U);
    EXPECT_EQ(rotors.outer_xy[rotors.outer_xy.size() - 1], 0.0);
    EXPECT_EQ(rotors.fillet_x.size(), 101U)
        << "only a run with fillets gives the fillet lists new elements";
}

}  // namespace kvt
