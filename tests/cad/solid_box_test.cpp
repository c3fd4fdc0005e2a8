// The boxes that the stand-in of AutoCAD answers.
#include "support/cad/solid_box.hpp"

#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

namespace kvt {
namespace {

constexpr double PI = std::numbers::pi;
constexpr double ROUNDING = 1e-12;

/// A half disc of radius 2 above the x axis, with a hole in its top, 3 to 5 high.
struct bitten_half_disc {
    solid shape = cut(common(cylinder({0.0, 0.0, 4.0}, 2.0, 2.0),
                             half_space({0.0, 0.0, 0.0}, {1.0, 0.0, 0.0}, {0.0, 0.0, -1.0})),
                      cylinder({0.0, 2.0, 4.0}, 1.0, 2.0));
    surfaces all = together(
        together(surfaces_of_cylinder({0.0, 0.0, 4.0}, 2.0, 2.0), {{{{0.0, 0.0}, {1.0, 0.0}}}, {}}),
        surfaces_of_cylinder({0.0, 2.0, 4.0}, 1.0, 2.0));
};

void expect_box(const solid_box& box, point3 lowest, point3 highest) {
    EXPECT_NEAR(box.lowest.x, lowest.x, ROUNDING);
    EXPECT_NEAR(box.lowest.y, lowest.y, ROUNDING);
    EXPECT_NEAR(box.lowest.z, lowest.z, ROUNDING);
    EXPECT_NEAR(box.highest.x, highest.x, ROUNDING);
    EXPECT_NEAR(box.highest.y, highest.y, ROUNDING);
    EXPECT_NEAR(box.highest.z, highest.z, ROUNDING);
}

}  // namespace

TEST(solid_box, is_as_large_as_what_is_left_of_a_solid) {
    const bitten_half_disc one;
    // Both circles cross at y = 7/4.
    expect_box(box_of(one.shape, one.all), {-2.0, 0.0, 3.0}, {2.0, 1.75, 5.0});
}

TEST(solid_box, follows_a_turn_and_a_move) {
    const bitten_half_disc one;
    const point2 axis = {1.0, 0.0};
    expect_box(box_of(turned(one.shape, axis, PI / 2.0), turned(one.all, axis, PI / 2.0)),
               {-0.75, -3.0, 3.0}, {1.0, 1.0, 5.0});
    const double lower = -2.0 * std::cos(PI / 6.0);
    const solid_box slanting =
        box_of(turned(one.shape, {}, PI / 6.0), turned(one.all, {}, PI / 6.0));
    EXPECT_NEAR(slanting.lowest.x, -2.0, ROUNDING);
    EXPECT_NEAR(slanting.highest.x, -lower, ROUNDING);
    EXPECT_NEAR(slanting.lowest.y, -1.0, ROUNDING);
    expect_box(box_of(moved(one.shape, {1.0, 2.0, 3.0}), moved(one.all, {1.0, 2.0, 3.0})),
               {-1.0, 2.0, 6.0}, {3.0, 3.75, 8.0});
}

TEST(solid_box, knows_the_corners_of_a_prism) {
    const std::vector<point2> corners = {{0.0, 0.0}, {3.0, 1.0}, {1.0, 4.0}};
    expect_box(
        box_of(prism(polygon_region(corners), 0.0, -2.0), surfaces_of_prism(corners, 0.0, -2.0)),
        {0.0, 0.0, -2.0}, {3.0, 4.0, 0.0});
}

}  // namespace kvt
