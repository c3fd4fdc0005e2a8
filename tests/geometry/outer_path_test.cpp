// The outer rotor as a chain of arcs, and its points.
#include "geometry/outer_path.hpp"

#include "base/constants.hpp"
#include "support/undercut_design.hpp"

#include <cmath>
#include <gtest/gtest.h>

namespace kvt {

namespace {

/// Every arc starts where the one before ended, and both its ends lie on its circle.
void expect_closed_chain(const outer_path& path) {
    point2 end = path.first;
    for (const outer_path_arc& arc : path.arcs) {
        EXPECT_EQ(arc.start, end);
        EXPECT_NEAR(distance(arc.start, arc.centre), arc.radius, 1e-6);
        EXPECT_NEAR(distance(arc.end, arc.centre), arc.radius, 1e-6);
        end = arc.end;
    }
    EXPECT_LT(distance(end, path.first), 1e-5);
}

}  // namespace

TEST(outer_path, has_four_arcs_a_lobe_and_starts_one_step_past_the_x_axis) {
    const outer_path path = outer_rotor_path(sample_design());
    ASSERT_EQ(path.arcs.size(), 4U * 7U);
    EXPECT_EQ(path.arcs[0].kind, outer_arc_kind::fillet);
    EXPECT_EQ(path.arcs[1].kind, outer_arc_kind::lobe);
    EXPECT_EQ(path.arcs[2].kind, outer_arc_kind::fillet);
    EXPECT_EQ(path.arcs[3].kind, outer_arc_kind::root);
    // The first lobe stands at a seventh of a turn, at C = 14.15 + 2.85 + 7.5.
    EXPECT_NEAR(path.arcs[1].centre.x, 24.5 * std::cos(TWO_PI_D / 7.0), 1e-12);
    EXPECT_NEAR(path.arcs[1].centre.y, 24.5 * std::sin(TWO_PI_D / 7.0), 1e-12);
    EXPECT_NEAR(std::hypot(path.first.x, path.first.y), 22.9, 1e-12);
    expect_closed_chain(path);
}

TEST(outer_path, has_no_fillet_arcs_without_fillets) {
    design_params design = sample_design();
    design.fillet = 0.0;
    const outer_path path = outer_rotor_path(design);
    ASSERT_EQ(path.arcs.size(), 2U * 7U);
    EXPECT_EQ(outer_path_points(path).size(), 1U + 300U * 7U + 1U);
    double gap = 0.0;
    for (const outer_path_arc& arc : path.arcs) {
        gap = std::max(gap, std::abs(distance(arc.start, arc.centre) - arc.radius));
    }
    EXPECT_LT(gap, 1e-6);  // the ends of a flank coincide up to the digits of the constants
}

TEST(outer_path, has_the_points_of_the_computed_profile) {
    const design_params design = sample_design();
    const rotor_profiles rotors = rotor_pair_of(design);
    const std::vector<point2> points = outer_path_points(outer_rotor_path(design));
    ASSERT_EQ(points.size(), 1U + 320U * 7U + 1U);
    EXPECT_EQ(points.front(), points.back());
    // Every tenth point of a computed fillet is one of the file; the computed profile is moved by
    // -ecc.
    for (std::size_t j = 0; j <= 10; ++j) {
        EXPECT_NEAR(points[j].x - design.ecc, rotors.outer_x[10 * j], 1e-6);
        EXPECT_NEAR(points[j].y, rotors.outer_y[10 * j], 1e-6);
    }
    for (std::size_t j = 1; j <= 250; ++j) {
        EXPECT_NEAR(points[10 + j].x - design.ecc, rotors.outer_x[100 + j], 1e-6);
        EXPECT_NEAR(points[10 + j].y, rotors.outer_y[100 + j], 1e-6);
    }
}

TEST(outer_path, keeps_the_cutter_at_its_radius_from_the_rotor) {
    const design_params design = sample_design();
    const outer_path rotor = outer_rotor_path(design);
    const outer_path cutter = outer_rotor_offset_path(design, 1.0);
    ASSERT_EQ(cutter.arcs.size(), rotor.arcs.size());
    for (std::size_t i = 0; i < rotor.arcs.size(); ++i) {
        EXPECT_LT(distance(cutter.arcs[i].centre, rotor.arcs[i].centre), 1e-6);
        const double sign = rotor.arcs[i].kind == outer_arc_kind::lobe ? 1.0 : -1.0;
        EXPECT_NEAR(cutter.arcs[i].radius, rotor.arcs[i].radius + sign, 1e-12);
    }
    expect_closed_chain(cutter);
}

TEST(outer_path, drops_the_fillets_for_a_cutter_that_is_larger) {
    const outer_path cutter = outer_rotor_offset_path(sample_design(), 1.6);
    EXPECT_EQ(cutter.arcs.size(), 2U * 7U);
    EXPECT_EQ(cutter.arcs[0].radius, 7.5 + 1.6);
    EXPECT_EQ(cutter.arcs[1].radius, 22.9 - 1.6);
}

TEST(outer_path, meets_in_corners_where_the_root_arcs_vanish) {
    const outer_path cutter = outer_rotor_offset_path(sample_design(), 4.5);
    ASSERT_EQ(cutter.arcs.size(), 7U);
    for (const outer_path_arc& arc : cutter.arcs) {
        EXPECT_EQ(arc.kind, outer_arc_kind::lobe);
        EXPECT_EQ(arc.radius, 12.0);
    }
    expect_closed_chain(cutter);
    // The first corner lies half a step before the first lobe, at the same distance from both lobe
    // centres.
    EXPECT_NEAR(std::atan2(cutter.first.y, cutter.first.x), TWO_PI_D / 14.0, 1e-12);
    EXPECT_EQ(outer_path_points(cutter).size(), 1U + 250U * 7U + 1U);
}

TEST(outer_path, has_gaps_only_where_lobes_are_more_than_half_a_turn) {
    EXPECT_LT(largest_gap(outer_rotor_path(sample_design())), 1e-5);
    const outer_path path = outer_rotor_path(undercut_design(0.8));
    double largest = 0.0;
    for (const outer_path_arc& arc : path.arcs) {
        largest = std::max(largest, distance(arc_points(arc).back(), arc.end));
    }
    EXPECT_GT(largest, 0.5);
    EXPECT_GE(largest_gap(path), largest - 1e-9);
}

TEST(outer_path, reads_the_boxes_in_their_unit) {
    entries boxes = sample_entries();
    boxes.radouter = "7.5 mm";
    EXPECT_EQ(outer_rotor_entries(boxes, 1.0).radouter, 7.5);
    EXPECT_EQ(outer_rotor_entries(boxes, 25.4).radouter, 7.5 * 25.4);
    EXPECT_EQ(outer_rotor_entries(boxes, 25.4).outer_root, 22.9 * 25.4);
    EXPECT_EQ(outer_rotor_entries(boxes, 25.4).numlobes, 7);
}

}  // namespace kvt
