#include "cad/builtin/solid_modeller.hpp"

#include "automation/automation_error.hpp"
#include "support/cad/built_bodies.hpp"
#include "support/expect_failure.hpp"

#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

namespace kvt::builtin {
namespace {

constexpr double PI = std::numbers::pi;
constexpr failure REFUSED = static_cast<failure>(automation::AUTOMATION_FAILED);

std::vector<point2> rectangle(point2 low, point2 high) {
    return {low, {high.x, low.y}, high, {low.x, high.y}};
}

body block(point2 low, point2 high, double z0, double height) {
    return prism(make_face(polyline_wire(rectangle(low, high), true)), z0, height);
}

/// Points of a circle, enough of them for a spline in place of flat sides.
std::vector<point2> circle_points(int count, double radius) {
    std::vector<point2> points;
    for (int i = 0; i < count; ++i) {
        points.push_back(polar_point(radius, 2.0 * PI * i / count));
    }
    return points;
}

void expect_box(const body& one, const point3& low, const point3& high) {
    const model_box box = one.box();
    for (const double off :
         {box.lowest.x - low.x, box.lowest.y - low.y, box.lowest.z - low.z, box.highest.x - high.x,
          box.highest.y - high.y, box.highest.z - high.z}) {
        EXPECT_NEAR(off, 0.0, 1e-9);
    }
}

TEST(prism, knows_its_area_its_heights_and_its_box) {
    const body one = block({1.0, 2.0}, {4.0, 7.0}, 3.0, 2.5);
    EXPECT_DOUBLE_EQ(one.contour_area(), 15.0);
    EXPECT_DOUBLE_EQ(one.z0(), 3.0);
    EXPECT_DOUBLE_EQ(one.height(), 2.5);
    expect_box(one, {1.0, 2.0, 3.0}, {4.0, 7.0, 5.5});
    ASSERT_EQ(one.contours().size(), 1u);
    EXPECT_EQ(one.contours()[0].size(), 4u);
    EXPECT_DOUBLE_EQ(polygon_area(one.contours()[0]), 15.0);
}

TEST(prism, with_a_negative_height_goes_down) {
    expect_box(block({0.0, 0.0}, {1.0, 1.0}, 2.0, -3.0), {0.0, 0.0, -1.0}, {1.0, 1.0, 2.0});
}

TEST(prism, without_height_is_refused) {
    EXPECT_FAILURE(block({0.0, 0.0}, {1.0, 1.0}, 2.0, 0.0), REFUSED);
}

TEST(cylinder, has_its_centre_at_mid_height) {
    const body one = cylinder({1.0, 2.0, 3.0}, 0.5, 4.0);
    EXPECT_NEAR(one.contour_area(), PI * 0.25, 1e-14);
    expect_box(one, {0.5, 1.5, 1.0}, {1.5, 2.5, 5.0});
    EXPECT_FAILURE(cylinder({0.0, 0.0, 0.0}, 0.0, 1.0), REFUSED);
    EXPECT_FAILURE(cylinder({0.0, 0.0, 0.0}, 1.0, -1.0), REFUSED);
}

TEST(ring, is_one_face_with_a_hole) {
    const body ring =
        prism(make_face(circle_wire({1.0, 0.0}, 3.0), {circle_wire({1.5, 0.0}, 2.0)}), 0.0, 1.0);
    EXPECT_NEAR(ring.contour_area(), PI * 5.0, 1e-13);
    ASSERT_EQ(ring.contours().size(), 2u);
    EXPECT_GT(polygon_area(ring.contours()[0]), 0.0) << "material is on the left";
    EXPECT_LT(polygon_area(ring.contours()[1]), 0.0) << "material is on the left";
}

// The winding of what is given doesn't matter.
TEST(ring, of_contours_that_run_the_same_way_is_the_same) {
    std::vector<point2> outer = rectangle({-2.0, -2.0}, {2.0, 2.0});
    const std::vector<point2> hole = rectangle({-1.0, -1.0}, {1.0, 1.0});
    for (int turn = 0; turn < 2; ++turn) {
        const body ring =
            prism(make_face(polyline_wire(outer, true), {polyline_wire(hole, true)}), 0.0, 1.0);
        EXPECT_DOUBLE_EQ(ring.contour_area(), 12.0);
        std::ranges::reverse(outer);
    }
}

TEST(polyline_wire, of_up_to_200_points_has_flat_sides) {
    const auto polygon = circle_points(200, 10.0);
    const body one = prism(make_face(polyline_wire(polygon, true)), 0.0, 1.0);
    EXPECT_EQ(one.contours()[0].size(), 200u);
    EXPECT_NEAR(one.contour_area(), polygon_area(polygon), 1e-11);
}

TEST(polyline_wire, of_more_points_is_one_smooth_curve) {
    const body one = prism(make_face(polyline_wire(circle_points(201, 10.0), true)), 0.0, 1.0);
    EXPECT_GE(one.contours()[0].size(), 8u * 201u);
    EXPECT_NEAR(one.contour_area(), PI * 100.0, 1e-5);
}

TEST(polyline_wire, that_is_closed_may_repeat_its_first_point) {
    std::vector<point2> points = rectangle({0.0, 0.0}, {2.0, 1.0});
    points.push_back(points.front());
    const body one = prism(make_face(polyline_wire(points, true)), 0.0, 1.0);
    EXPECT_EQ(one.contours()[0].size(), 4u);
}

TEST(polyline_wire, is_closed_when_it_ends_where_it_starts) {
    std::vector<point2> points = rectangle({0.0, 0.0}, {2.0, 1.0});
    EXPECT_FALSE(polyline_wire(points, false).is_closed());
    EXPECT_EQ(polyline_wire(points, false).sampled().size(), 4u);
    points.push_back(points.front());
    EXPECT_TRUE(polyline_wire(points, false).is_closed());
    EXPECT_EQ(polyline_wire(points, false).sampled().size(), 4u);
    EXPECT_FAILURE(polyline_wire({{0.0, 0.0}, {0.0, 0.0}}, false), REFUSED);
    EXPECT_FAILURE(polyline_wire({{0.0, 0.0}, {1.0, 0.0}}, true), REFUSED);
}

TEST(closed_spline_wire, goes_through_its_points_and_drops_a_repeated_first_one) {
    std::vector<point2> points = circle_points(24, 5.0);
    points.push_back(points.front());
    const wire curve = closed_spline_wire(points);
    EXPECT_TRUE(curve.is_closed());
    ASSERT_EQ(curve.sampled().size(), 24u * 8u);
    for (std::size_t i = 0; i < 24; ++i) {
        EXPECT_NEAR(distance(curve.sampled()[8 * i], points[i]), 0.0, 1e-12);
    }
    EXPECT_FAILURE(closed_spline_wire({{0.0, 0.0}, {1.0, 0.0}, {0.0, 0.0}}), REFUSED);
}

TEST(open_spline_wire, stays_open_until_its_ends_meet) {
    EXPECT_FALSE(open_spline_wire({{0.0, 0.0}, {1.0, 1.0}, {2.0, 0.0}}).is_closed());
    EXPECT_EQ(open_spline_wire({{0.0, 0.0}, {1.0, 1.0}, {2.0, 0.0}}).sampled().back(),
              (point2{2.0, 0.0}));
    std::vector<point2> points = circle_points(24, 5.0);
    points.push_back(points.front());
    EXPECT_TRUE(open_spline_wire(points).is_closed());
}

TEST(make_face, refuses_what_encloses_nothing) {
    EXPECT_FAILURE(make_face(polyline_wire(rectangle({0.0, 0.0}, {1.0, 1.0}), false)), REFUSED);
    EXPECT_FAILURE(make_face(polyline_wire({{0.0, 0.0}, {1.0, 1.0}, {1.0, 0.0}, {0.0, 1.0}}, true)),
                   REFUSED);
    EXPECT_FAILURE(circle_wire({0.0, 0.0}, 0.0), REFUSED);
}

TEST(make_face, refuses_a_hole_that_leaves_its_contour) {
    const wire outer = circle_wire({0.0, 0.0}, 2.0);
    EXPECT_NO_THROW(make_face(outer, {circle_wire({0.5, 0.0}, 1.0)}));
    EXPECT_FAILURE(make_face(outer, {circle_wire({1.5, 0.0}, 1.0)}), REFUSED);
    EXPECT_FAILURE(make_face(outer, {circle_wire({5.0, 0.0}, 1.0)}), REFUSED);
    EXPECT_FAILURE(make_face(outer, {circle_wire({0.0, 0.0}, 5.0)}), REFUSED);
}

TEST(booleans, join_cut_and_meet) {
    const body a = block({0.0, 0.0}, {2.0, 2.0}, 0.0, 1.0);
    const body b = block({1.0, 1.0}, {3.0, 3.0}, 0.0, 1.0);
    EXPECT_NEAR(fuse(a, b).contour_area(), 7.0, 1e-12);
    EXPECT_NEAR(cut(a, b).contour_area(), 3.0, 1e-12);
    EXPECT_NEAR(common(a, b).contour_area(), 1.0, 1e-12);
    EXPECT_DOUBLE_EQ(a.contour_area(), 4.0) << "a Boolean changes neither";
}

TEST(booleans, that_leave_nothing_are_refused) {
    const body small = block({0.0, 0.0}, {1.0, 1.0}, 0.0, 1.0);
    const body large = block({-1.0, -1.0}, {2.0, 2.0}, -1.0, 3.0);
    EXPECT_FAILURE(cut(small, large), REFUSED);
    EXPECT_FAILURE(common(small, block({5.0, 5.0}, {6.0, 6.0}, 0.0, 1.0)), REFUSED);
}

TEST(booleans, leave_apart_what_does_not_touch) {
    const body both =
        fuse(block({0.0, 0.0}, {1.0, 1.0}, 0.0, 1.0), block({5.0, 0.0}, {7.0, 1.0}, 0.0, 1.0));
    EXPECT_NEAR(both.contour_area(), 3.0, 1e-12);
    EXPECT_EQ(both.contours().size(), 2u);
}

// (b - a) x (c - a) of the points below is +x.
TEST(slice, answers_the_part_on_the_side_of_the_normal_first) {
    const body one = block({-1.0, -1.0}, {3.0, 1.0}, 0.0, 1.0);
    const halves parts = slice(one, {0.0, 0.0, 0.0}, {0.0, 1.0, 0.0}, {0.0, 0.0, 1.0});
    expect_box(parts.positive, {0.0, -1.0, 0.0}, {3.0, 1.0, 1.0});
    expect_box(parts.negative, {-1.0, -1.0, 0.0}, {0.0, 1.0, 1.0});
    EXPECT_FAILURE(slice(one, {9.0, 0.0, 0.0}, {9.0, 1.0, 0.0}, {9.0, 0.0, 1.0}), REFUSED);
    // Three points on a line are no plane.
    EXPECT_FAILURE(slice(one, {9.0, 0.0, 0.0}, {9.0, 1.0, 0.0}, {9.0, 2.0, 0.0}), REFUSED);
}

TEST(polar_copies, are_one_less_than_the_places) {
    const body one = block({4.0, -0.5}, {5.0, 0.5}, 0.0, 1.0);
    const std::vector<body> copies = polar_copies(one, 4, {1.0, 0.0});
    ASSERT_EQ(copies.size(), 3u);
    expect_box(copies[0], {0.5, 3.0, 0.0}, {1.5, 4.0, 1.0});
    expect_box(copies[1], {-3.0, -0.5, 0.0}, {-2.0, 0.5, 1.0});
    expect_box(copies[2], {0.5, -4.0, 0.0}, {1.5, -3.0, 1.0});
}

TEST(mirror, keeps_the_solid_right_side_out) {
    const body one = block({1.0, 2.0}, {4.0, 7.0}, 3.0, 2.5);
    const body image = mirror(one, {0.0, 0.0, 2.0}, {1.0, 0.0, 2.0}, {0.0, 1.0, 2.0});
    expect_box(image, {1.0, 2.0, -1.5}, {4.0, 7.0, 1.0});
    EXPECT_DOUBLE_EQ(image.contour_area(), 15.0);
    EXPECT_NEAR(cut(image, cylinder({2.0, 3.0, 0.0}, 0.5, 9.0)).contour_area(), 15.0 - PI / 4.0,
                1e-12)
        << "cut from an image that is inside out the cylinder would be left";
}

TEST(move, shifts_a_solid) {
    expect_box(move(block({0.0, 0.0}, {1.0, 1.0}, 0.0, 1.0), {1.0, 2.0, 3.0}), {1.0, 2.0, 3.0},
               {2.0, 3.0, 4.0});
}

}  // namespace
}  // namespace kvt::builtin
