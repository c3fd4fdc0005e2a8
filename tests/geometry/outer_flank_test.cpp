// Tests of the fillet angle and the tangent point.
#include "geometry/outer_flank.hpp"

#include "support/expect_failure.hpp"
#include "support/sample_design.hpp"

#include <cmath>
#include <gtest/gtest.h>

namespace kvt {

TEST(fillet_angle, of_an_equilateral_triangle_is_60_degrees) {
    // Outer centre, fillet centre and lobe centre 12 apart from each other: Rr - f = 12, C = 12, Ro
    // + f = 12.
    design_params design;
    design.radouter = 10.0;
    design.fillet = 2.0;
    design.outer_root = 14.0;
    rotor_profiles rotors;
    rotors.lobe_centre_offset = 2.0;
    EXPECT_NEAR(fillet_angle(design, rotors), std::acos(0.5),
                5e-8);  // 5e-8: the constant of the right angle
}

TEST(fillet_angle, fails_for_a_lobe_that_does_not_reach_the_root) {
    design_params design = sample_design();
    design.fillet = 0.0;
    design.radouter = 2.0;  // the lobe ends at 2 * 2 + 17 = 21 < 22.9
    const rotor_profiles rotors = prepared_rotors(design);
    EXPECT_FAILURE(fillet_angle(design, rotors), failure::invalid_procedure_call);
}

TEST(fillet_angle, fails_for_a_lobe_that_just_touches_the_root) {
    design_params design;
    design.radouter = 2.0;
    design.outer_root = 10.0;
    rotor_profiles rotors;
    rotors.lobe_centre_offset = 6.0;  // C = 8, C + Ro = Rr
    EXPECT_FAILURE(fillet_angle(design, rotors), failure::division_by_zero);
}

TEST(fillets_too_large, lets_exactly_2_pass) {
    design_params design;
    design.numlobes = 4;
    const double exactly = PI_D / 4.0;
    EXPECT_FALSE(fillets_too_large(design, exactly));
    EXPECT_TRUE(fillets_too_large(design, std::nextafter(exactly, 1.0)));
}

TEST(tangent_point, lies_on_the_lobe_and_on_the_fillet) {
    const design_params design = sample_design();
    const rotor_profiles rotors = prepared_rotors(design);
    const outer_flank flank = flank_of_lobe(design, rotors);
    const double x = flank.tangent_radius * std::cos(flank.beta);
    const double y = flank.tangent_radius * std::sin(flank.beta);
    EXPECT_NEAR(std::hypot(x - lobe_centre_radius(design, rotors), y), design.radouter, 2e-6);
    const double to_fillet = design.outer_root - design.fillet;
    EXPECT_NEAR(
        std::hypot(x - to_fillet * std::cos(flank.alpha), y - to_fillet * std::sin(flank.alpha)),
        design.fillet, 2e-6);
    EXPECT_EQ(flank.alpha, fillet_angle(design, rotors));
}

TEST(fillets_stand_beyond_lobes, tells_lobes_of_half_a_turn_and_more) {
    const design_params sound = sample_design();
    EXPECT_FALSE(fillets_stand_beyond_lobes(sound, 24.5));
    // Lobe radius 3 about C = 20, root 22.7 without fillets: the root end stands at
    // x = (22.7^2 + 20^2 - 3^2) / 40 = 22.657, beyond the lobe centre.
    design_params undercut = sound;
    undercut.radouter = 3.0;
    undercut.outer_root = 22.7;
    undercut.fillet = 0.0;
    EXPECT_TRUE(fillets_stand_beyond_lobes(undercut, 20.0));
    // Fillet centres at x = (20^2 + 20^2 - 5.7^2) / 40 = 19.188, just short of it.
    undercut.fillet = 2.7;
    EXPECT_FALSE(fillets_stand_beyond_lobes(undercut, 20.0));
}

TEST(tangent_point, without_fillets_is_the_root_end) {
    design_params design = sample_design();
    design.fillet = 0.0;
    const outer_flank flank = flank_of_lobe(design, prepared_rotors(design));
    EXPECT_NEAR(flank.beta, flank.alpha, 1e-7);
    EXPECT_NEAR(flank.tangent_radius, design.outer_root, 2e-6);
}

}  // namespace kvt
