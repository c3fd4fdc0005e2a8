// The cutter's path round the inner rotor: the one as it always was, and the checked one.
#include "output/cnc/inner_offset.hpp"

#include "support/expect_failure.hpp"
#include "support/sample_design.hpp"

#include <cmath>
#include <gtest/gtest.h>

namespace kvt {

namespace {

constexpr double TOOL_RADIUS = 1.0;

double to_axis(point2 point) {
    return std::hypot(point.x, point.y);
}

/// The smallest distance from the trochoid's 3600 chords, near index i.
double distance_from_trochoid(const rotor_profiles& rotors, point2 point, std::size_t i) {
    double smallest = 1e300;
    for (std::size_t k = i + 3600 - 200; k < i + 3600 + 200; ++k) {
        const point2 a = {rotors.troch_x[k % 3600], rotors.troch_y[k % 3600]};
        const point2 b = {rotors.troch_x[(k + 1) % 3600], rotors.troch_y[(k + 1) % 3600]};
        const double dx = b.x - a.x;
        const double dy = b.y - a.y;
        const double share = std::clamp(
            ((point.x - a.x) * dx + (point.y - a.y) * dy) / (dx * dx + dy * dy), 0.0, 1.0);
        smallest =
            std::min(smallest, std::hypot(point.x - a.x - share * dx, point.y - a.y - share * dy));
    }
    return smallest;
}

}  // namespace

TEST(inner_offset, lies_at_its_distance_from_the_trochoid_point) {
    const design_params design = sample_design();
    const rotor_profiles rotors = inner_rotor_of(design);
    const std::vector<point2> points = inner_offset_points(design, rotors, TOOL_RADIUS);
    ASSERT_EQ(points.size(), 3600U);
    for (std::size_t i = 0; i < points.size(); i += 7) {
        EXPECT_NEAR(std::hypot(points[i].x - rotors.troch_x[i], points[i].y - rotors.troch_y[i]),
                    6.56, 1e-9);
    }
}

TEST(inner_offset, keeps_a_where_the_offset_goes_outwards) {
    const design_params design = sample_design();
    const rotor_profiles rotors = inner_rotor_of(design);
    const std::vector<point2> points = inner_offset_points(design, rotors, TOOL_RADIUS);
    const std::vector<point2> checked = checked_inner_offset_points(design, rotors, TOOL_RADIUS);
    int outside = 0;
    int different = 0;
    for (std::size_t i = 0; i < points.size(); ++i) {
        outside += to_axis(points[i]) > to_axis({rotors.troch_x[i], rotors.troch_y[i]}) ? 1 : 0;
        different += points[i] == checked[i] ? 0 : 1;
    }
    EXPECT_EQ(wrong_side_count(design, rotors, TOOL_RADIUS), different);
    EXPECT_EQ(outside, different);
    EXPECT_GT(outside, 0);
}

TEST(inner_offset, lies_inside_the_trochoid_at_every_checked_point) {
    const design_params design = sample_design();
    const rotor_profiles rotors = inner_rotor_of(design);
    const std::vector<point2> points = checked_inner_offset_points(design, rotors, TOOL_RADIUS);
    for (std::size_t i = 0; i < points.size(); ++i) {
        ASSERT_LT(to_axis(points[i]), to_axis({rotors.troch_x[i], rotors.troch_y[i]})) << i;
        if (i % 9 == 0) {
            // The chords of the trochoid cut its curves short by less than 0.0005 mm.
            ASSERT_NEAR(distance_from_trochoid(rotors, points[i], i), 6.56, 0.0005) << i;
        }
    }
}

TEST(inner_offset, leads_away_from_the_axis_for_a_cutter_larger_than_the_lobes) {
    const design_params design = sample_design();
    const rotor_profiles rotors = inner_rotor_of(design);
    const std::vector<point2> points =
        checked_inner_offset_points(design, rotors, 8.0);  // D = -0.44
    for (std::size_t i = 0; i < points.size(); i += 13) {
        ASSERT_GT(to_axis(points[i]), to_axis({rotors.troch_x[i], rotors.troch_y[i]})) << i;
    }
}

TEST(inner_offset, divides_by_zero_for_a_chord_along_an_axis) {
    const design_params design = sample_design();
    rotor_profiles rotors = inner_rotor_of(design);
    rotors.troch_x[100] = rotors.troch_x[101];
    EXPECT_FAILURE(inner_offset_points(design, rotors, TOOL_RADIUS), failure::division_by_zero);
    rotors = inner_rotor_of(design);
    rotors.troch_y[100] = rotors.troch_y[101];
    EXPECT_FAILURE(checked_inner_offset_points(design, rotors, TOOL_RADIUS),
                   failure::division_by_zero);
}

}  // namespace kvt
