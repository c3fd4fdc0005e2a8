// A piece of a circle, and the point of it that is nearest.
#include "geometry/circle_arc.hpp"

#include <cmath>
#include <gtest/gtest.h>

namespace kvt {

namespace {

const double PI = std::acos(-1.0);

void expect_near(point2 point, point2 expected) {
    EXPECT_NEAR(point.x, expected.x, 1e-12);
    EXPECT_NEAR(point.y, expected.y, 1e-12);
}

}  // namespace

TEST(circle_arc, has_its_nearest_point_on_the_ray_from_its_centre) {
    // A quarter turn of radius 5 about (1, 2), clockwise from straight above to straight right.
    const circle_arc quarter{{1.0, 2.0}, 5.0, PI / 2.0, -PI / 2.0};
    expect_near(quarter.at(0.0), {1.0, 7.0});
    expect_near(quarter.at(1.0), {6.0, 2.0});
    expect_near(nearest_on(quarter, {4.0, 6.0}), {4.0, 6.0});
    expect_near(nearest_on(quarter, {7.0, 10.0}), {4.0, 6.0});
    expect_near(nearest_on(quarter, {1.3, 2.4}), {4.0, 6.0});
}

TEST(circle_arc, has_its_nearest_point_at_an_end_beside_it) {
    const circle_arc quarter{{}, 5.0, PI / 2.0, -PI / 2.0};
    expect_near(nearest_on(quarter, {-1.0, 6.0}), {0.0, 5.0});
    expect_near(nearest_on(quarter, {-4.0, -3.0}), {0.0, 5.0});
    expect_near(nearest_on(quarter, {-2.0, -4.0}), {5.0, 0.0});
    // The same arc the long way round.
    const circle_arc rest{{}, 5.0, PI / 2.0, 1.5 * PI};
    expect_near(nearest_on(rest, {-3.0, -4.0}), {-3.0, -4.0});
    expect_near(nearest_on(rest, {4.0, 3.1}), {5.0, 0.0});
}

TEST(circle_arc, takes_its_middle_for_its_centre) {
    expect_near(nearest_on({{1.0, 1.0}, 2.0, 0.0, PI}, {1.0, 1.0}), {1.0, 3.0});
}

TEST(nearest_on_line, is_the_foot_of_the_perpendicular_or_an_end) {
    expect_near(nearest_on_line({0.0, 0.0}, {4.0, 0.0}, {1.0, 3.0}), {1.0, 0.0});
    expect_near(nearest_on_line({0.0, 0.0}, {4.0, 0.0}, {-1.0, 3.0}), {0.0, 0.0});
    expect_near(nearest_on_line({0.0, 0.0}, {4.0, 0.0}, {5.0, -1.0}), {4.0, 0.0});
    expect_near(nearest_on_line({2.0, 2.0}, {2.0, 2.0}, {5.0, -1.0}), {2.0, 2.0});
}

}  // namespace kvt
