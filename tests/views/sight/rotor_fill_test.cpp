// Tests of the surfaces of the Design view.
#include "views/sight/rotor_fill.hpp"

#include "views/sight/sample_sight.hpp"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

namespace kvt {
namespace {

constexpr double PI = std::numbers::pi;

double area_of(const std::vector<point2>& polygon) {
    double twice = 0.0;
    for (std::size_t i = 0; i < polygon.size(); ++i) {
        const point2& a = polygon[i];
        const point2& b = polygon[(i + 1) % polygon.size()];
        twice += a.x * b.y - b.x * a.y;
    }
    return std::abs(twice) / 2.0;
}

TEST(clipped_polygon, keeps_what_lies_inside_and_runs_along_the_edges) {
    const std::vector<point2> square = {{-5.0, -5.0}, {5.0, -5.0}, {5.0, 5.0}, {-5.0, 5.0}};
    EXPECT_DOUBLE_EQ(area_of(clipped_polygon(square, 0.0, 10.0)), 25.0);
    EXPECT_DOUBLE_EQ(area_of(clipped_polygon(square, -10.0, 10.0)), 100.0);
    EXPECT_TRUE(clipped_polygon(square, 20.0, 30.0).empty());
    EXPECT_TRUE(clipped_polygon({}, 0.0, 1.0).empty());
}

TEST(profile_of_arcs, joins_arcs_of_any_order_and_direction) {
    // Four quarters of a circle, radius 1500 twips, as no one draws them.
    const std::vector<drawn_arc> arcs = {{1500, 1500, 1500, PI, 1.5 * PI},
                                         {1500, 1500, 1500, 0.0, PI / 2.0},
                                         {1500, 1500, 1500, PI / 2.0, PI},
                                         {1500, 1500, 1500, 1.5 * PI, 2.0 * PI}};
    const double area = area_of(profile_of_arcs(arcs, view_box()));
    EXPECT_NEAR(area, PI * 100.0 * 100.0, 0.01 * area);
}

TEST(fill_of, is_nothing_without_a_drawing) {
    const rotor_fill fill = fill_of(design_view{}, view_box());
    EXPECT_TRUE(fill.body.empty());
    EXPECT_TRUE(fill.inner.empty());
    EXPECT_TRUE(fill.inlet.empty());
}

TEST(fill_of, keeps_the_surfaces_of_the_rotors_at_every_angle) {
    const sample_sight rest(0.0);
    const rotor_fill at_rest = fill_of(rest.view, view_box(rest.state));
    const double side = 400.0;
    EXPECT_NEAR(area_of(at_rest.body), PI / 4.0 * std::pow(0.95 * side, 2.0), 0.01 * side * side);
    // The inner rotor lies in the space of the outer one, that in the outside circle.
    EXPECT_LT(area_of(at_rest.inner), area_of(at_rest.space));
    EXPECT_LT(area_of(at_rest.space), area_of(at_rest.body));
    for (const double degrees : {15.0, 100.0, 333.0}) {
        const sample_sight turned(degrees);
        const rotor_fill fill = fill_of(turned.view, view_box(turned.state));
        EXPECT_NEAR(area_of(fill.space), area_of(at_rest.space), 0.002 * area_of(at_rest.space));
        EXPECT_NEAR(area_of(fill.inner), area_of(at_rest.inner), 0.002 * area_of(at_rest.inner));
    }
}

TEST(fill_of, stays_within_the_box_however_far_it_is_zoomed) {
    sample_sight pair(0.0);
    zoom_at(pair.design, 500.0, 3500.0, 3200.0, pair.state);
    redraw_zoomed(pair.design, rotor_pair_of(pair.design), {}, pair.state, pair.view);
    const rotor_fill fill = fill_of(pair.view, view_box(pair.state));
    EXPECT_FALSE(fill.body.empty());
    for (const std::vector<point2>* polygon : {&fill.body, &fill.space, &fill.inner}) {
        for (const point2& point : *polygon) {
            EXPECT_LE(std::max(std::abs(point.x - 200.0), std::abs(point.y - 200.0)), 208.0 + 1e-6);
        }
    }
}

}  // namespace
}  // namespace kvt
