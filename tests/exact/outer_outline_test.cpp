// Tests of the outer profile as true arcs: it closes, its circles touch, the product's points lie
// on it.
#include "exact/outer_outline.hpp"

#include "base/run_time_error.hpp"
#include "exact/exact_designs.hpp"
#include "support/sample_design.hpp"

#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

namespace kvt {
namespace {

constexpr double PI = std::numbers::pi;

TEST(outer_outline, its_arcs_follow_each_other) {
    random_values random(property_seed());
    for (int run = 0; run < property_count(100); ++run) {
        const design_params design = random_pair(random);
        const lobe_outline outline = outline_of_lobe(design);
        const double pitch = 2.0 * PI / design.numlobes;
        const std::vector<true_arc> arcs = arcs_between(outline, pitch, 0.1, -0.2);
        ASSERT_EQ(arcs.size(), 5U);
        for (std::size_t i = 0; i + 1 < arcs.size(); ++i) {
            EXPECT_NEAR(distance(arcs[i].at(arcs[i].to), arcs[i + 1].at(arcs[i + 1].from)), 0.0,
                        1e-9 * design.maxdiameter)
                << i;
        }
    }
}

TEST(outer_outline, fillets_touch_root_and_lobe) {
    const design_params design = pair_design(7, 2.85, 24.5, 7.5, 10.0);
    const lobe_outline outline = outline_of_lobe(design);
    const point2 fillet = polar_point(outline.root_radius - outline.fillet, outline.root_angle);
    EXPECT_NEAR(distance(fillet, {outline.lobe_distance, 0.0}),
                outline.lobe_radius + outline.fillet, 1e-12);
}

TEST(outer_outline, without_fillets_lobe_and_root_meet_in_a_corner) {
    design_params design = pair_design(7, 2.85, 24.5, 7.5, 10.0);
    design.fillet = 0.0;
    const lobe_outline outline = outline_of_lobe(design);
    const point2 corner = polar_point(outline.root_radius, outline.root_angle);
    EXPECT_NEAR(distance(corner, {outline.lobe_distance, 0.0}), outline.lobe_radius, 1e-12);
}

TEST(outer_outline, the_points_that_are_cut_lie_on_it) {
    const design_params design = sample_design();
    const rotor_profiles rotors = rotor_pair_of(design);
    const lobe_outline outline = outline_of_lobe(design);
    for (std::size_t i = 0; i <= static_cast<std::size_t>(rotors.outer_last); i += 7) {
        const point2 point{rotors.outer_x[i] + design.ecc, rotors.outer_y[i]};
        EXPECT_NEAR(distance_to_outline(outline, 2.0 * PI / design.numlobes, point), 0.0, 2e-5)
            << i;
    }
}

TEST(outer_outline, distances_are_negative_outside) {
    const design_params design = sample_design();
    const lobe_outline outline = outline_of_lobe(design);
    const double pitch = 2.0 * PI / design.numlobes;
    const double tip = outline.lobe_distance - outline.lobe_radius;
    EXPECT_NEAR(distance_to_outline(outline, pitch, {tip - 0.1, 0.0}), 0.1, 1e-12);
    EXPECT_NEAR(distance_to_outline(outline, pitch, {tip + 0.1, 0.0}), -0.1, 1e-12);
    EXPECT_NEAR(
        distance_to_outline(outline, pitch, polar_point(outline.root_radius - 0.2, pitch / 2.0)),
        0.2, 1e-12);
    EXPECT_NEAR(distance_to_outline(outline, pitch, polar_point(tip - 0.1, 3.0 * pitch)), 0.1, 1e-9)
        << "around every lobe";
}

TEST(outer_outline, an_arc_sweeps_its_sector) {
    const true_arc arc{{2.0, 1.0}, 3.0, 0.2, 1.4};
    EXPECT_NEAR(arc_sweep(arc, {2.0, 1.0}), 3.0 * 3.0 * 1.2 / 2.0, 1e-12) << "about its centre";
    const true_arc circle{{5.0, 0.0}, 2.0, 0.0, 2.0 * PI};
    EXPECT_NEAR(arc_sweep(circle, {0.0, 0.0}), 4.0 * PI, 1e-12) << "about any point";
    const true_arc back{{5.0, 0.0}, 2.0, 2.0 * PI, 0.0};
    EXPECT_NEAR(arc_sweep(back, {1.0, 1.0}), -4.0 * PI, 1e-12);
}

TEST(outer_outline, refuses_a_lobe_that_does_not_reach_the_root) {
    design_params design = pair_design(7, 2.85, 24.5, 7.5, 10.0);
    design.outer_root = 80.0;
    EXPECT_THROW(outline_of_lobe(design), run_time_error);
}

}  // namespace
}  // namespace kvt
