// The path that clears a pocket: its parts in their order, and what it does for cutters that fit
// badly or not at all.
#include "output/cnc/pocket_path.hpp"

#include "output/cnc/clearing_arcs.hpp"
#include "output/cnc/pocket_region.hpp"
#include "support/cnc_reader.hpp"
#include "support/expect_failure.hpp"
#include "support/property_runs.hpp"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

namespace kvt {

namespace {

const double PI = std::acos(-1.0);

void add_arc(std::vector<point2>& points, point2 centre, double radius, double from_deg,
             double to_deg) {
    const int steps = static_cast<int>(std::abs(to_deg - from_deg) / 0.5) + 1;
    for (int k = 0; k <= steps; ++k) {
        const double angle = (from_deg + (to_deg - from_deg) * k / steps) * PI / 180.0;
        points.push_back(
            {centre.x + radius * std::cos(angle), centre.y + radius * std::sin(angle)});
    }
}

/// A kidney from 20 to 160 degrees between the radii 10 and 18, with corners of radius f at the
/// ends of its arcs. Counterclockwise about its inside: out along the outer arc, back along the
/// inner one.
pocket_shape kidney(double f, double tool_radius) {
    pocket_shape pocket;
    pocket.inner_r = 10.0;
    pocket.outer_r = 18.0;
    pocket.fillet_r = f;
    pocket.tool_radius = tool_radius;
    const auto corner = [](double radius, double degrees) {
        return point2{radius * std::cos(degrees * PI / 180.0),
                      radius * std::sin(degrees * PI / 180.0)};
    };
    const double outer = std::asin(f / (18.0 - f)) * 180.0 / PI;
    const double inner = std::asin(f / (10.0 + f)) * 180.0 / PI;
    add_arc(pocket.outline, corner(18.0 - f, 20.0 + outer), f, -70.0, 20.0 + outer);
    add_arc(pocket.outline, {}, 18.0, 20.0 + outer + 0.5, 160.0 - outer - 0.5);
    add_arc(pocket.outline, corner(18.0 - f, 160.0 - outer), f, 160.0 - outer, 250.0);
    add_arc(pocket.outline, corner(10.0 + f, 160.0 - inner), f, 250.0, 340.0 - inner);
    add_arc(pocket.outline, {}, 10.0, 160.0 - inner - 0.5, 20.0 + inner + 0.5);
    add_arc(pocket.outline, corner(10.0 + f, 20.0 + inner), f, 200.0 + inner, 290.0);
    pocket.outline.push_back(pocket.outline.front());
    return pocket;
}

double smallest_clearance(const pocket_shape& pocket, const std::vector<point2>& path) {
    double smallest = 1e300;
    for (const point2& point : path) {
        smallest = std::min(smallest, distance_from_path(point, pocket.outline));
    }
    return smallest;
}

/// The largest distance of a point of the pocket from the path, looked at on a coarse grid.
double largest_gap(const pocket_shape& pocket, const std::vector<point2>& path) {
    const pocket_region region(pocket.outline);
    double largest = 0.0;
    for (double x = -18.0; x < 18.0; x += 1.0) {
        for (double y = 0.0; y < 18.0; y += 0.7) {
            if (region.contains({x, y})) {
                largest = std::max(largest, distance_from_path({x, y}, path));
            }
        }
    }
    return largest;
}

}  // namespace

TEST(pocket_path, keeps_its_distance_and_leaves_nothing) {
    for (const double t : {0.6, 2.0}) {
        const pocket_shape pocket = kidney(2.0, t);
        const std::vector<point2> path = pocket_path(pocket);
        EXPECT_GE(smallest_clearance(pocket, path), t - 0.005) << t;
        EXPECT_LE(largest_gap(pocket, path), t + 0.005) << t;
    }
}

TEST(pocket_path, takes_passes_then_arcs_then_the_last_contour) {
    // f = 2, t = 0.8: Int(1.2 / 0.4) = 3 passes at 1.6, 1.2, 0.8; Int(4 / 0.8) = 5 arcs from 12.8
    // on; the contour.
    const pocket_shape pocket = kidney(2.0, 0.8);
    const std::vector<point2> path = pocket_path(pocket);
    const auto near_outline = [&](std::size_t i) {
        return distance_from_path(path[i], pocket.outline);
    };
    EXPECT_NEAR(near_outline(0), 1.6, 0.002);
    EXPECT_NEAR(near_outline(path.size() - 1), 0.8, 0.002);
    const std::vector<std::vector<point2>> arcs =
        clearing_arcs(pocket, pocket_region(pocket.outline));
    ASSERT_GE(arcs.size(), 5U);
    for (std::size_t i = 0; i < 5; ++i) {
        const double radius = 12.0 + 0.8 * static_cast<double>(i + 1);
        for (const point2& point : arcs[i]) {
            ASSERT_NEAR(std::hypot(point.x, point.y), radius, 1e-9);
        }
        // The ends stand where the room ends.
        EXPECT_NEAR(distance_from_path(arcs[i].front(), pocket.outline), 0.8, 1e-6);
        EXPECT_NEAR(distance_from_path(arcs[i].back(), pocket.outline), 0.8, 1e-6);
    }
    EXPECT_GE(std::ranges::count(path, path.back()), 2);  // the contour is closed
}

TEST(pocket_path, closes_every_pass_by_its_first_point) {
    const std::vector<point2> path = pocket_path(kidney(2.0, 0.8));
    const auto again = std::find(path.begin() + 1, path.end(), path.front());
    ASSERT_NE(again, path.end());
    EXPECT_GT(again - path.begin(), 500);
}

TEST(pocket_path, cuts_the_same_pocket_clockwise) {
    pocket_shape pocket = kidney(2.0, 1.0);
    std::ranges::reverse(pocket.outline);
    const std::vector<point2> path = pocket_path(pocket);
    EXPECT_GE(smallest_clearance(pocket, path), 0.995);
    EXPECT_LE(largest_gap(pocket, path), 1.005);
}

TEST(pocket_path, is_empty_where_the_cutter_has_no_room) {
    EXPECT_TRUE(pocket_path(kidney(2.0, 4.5)).empty());
}

TEST(pocket_path, refuses_cutters_that_are_none) {
    EXPECT_FAILURE(pocket_path(kidney(2.0, 0.0)), failure::division_by_zero);
    EXPECT_FAILURE(pocket_path(kidney(2.0, -1.0)), failure::invalid_procedure_call);
    EXPECT_FAILURE(pocket_path(kidney(2.0, 1e-9)), failure::overflow);
    pocket_shape nothing = kidney(2.0, 1.0);
    nothing.outline.clear();
    EXPECT_FAILURE(pocket_path(nothing), failure::subscript_out_of_range);
}

TEST(pocket_region, finds_the_same_distances_as_a_look_at_every_side) {
    const pocket_shape pocket = kidney(2.0, 1.0);
    const pocket_region region(pocket.outline);
    EXPECT_TRUE(region.counterclockwise());
    EXPECT_EQ(region.outline().size(), pocket.outline.size() - 1);
    random_values random;
    for (int run = property_count(300); run > 0; --run) {
        const point2 point = {random.real(-22.0, 22.0), random.real(-4.0, 22.0)};
        const double distance = distance_from_path(point, pocket.outline);
        EXPECT_TRUE(region.is_clear(point, distance - 1e-9));
        EXPECT_FALSE(region.is_clear(point, distance + 1e-9));
        const double radius = std::hypot(point.x, point.y);
        const double angle = std::atan2(point.y, point.x) * 180.0 / PI;
        if (distance > 2.0) {
            EXPECT_EQ(region.contains(point),
                      radius > 10.0 && radius < 18.0 && angle > 20.0 && angle < 160.0);
        }
    }
}

TEST(pocket_region, sees_what_stands_in_the_way_of_a_move) {
    const pocket_region region(kidney(2.0, 1.0).outline);
    EXPECT_TRUE(region.is_clear_move({0.0, 12.0}, {0.0, 16.0}, 1.9));
    EXPECT_FALSE(region.is_clear_move({0.0, 12.0}, {0.0, 16.0}, 2.1));
    EXPECT_FALSE(region.is_clear_move({-12.0, 8.0}, {12.0, 8.0}, 0.1));  // through the middle
    EXPECT_FALSE(region.is_clear_move({0.0, 2.0}, {1.0, 2.0}, 0.1));     // outside
}

}  // namespace kvt
