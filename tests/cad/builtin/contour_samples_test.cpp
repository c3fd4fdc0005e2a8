#include "cad/builtin/contour_samples.hpp"

#include "automation/automation_error.hpp"
#include "support/cad/built_bodies.hpp"
#include "support/expect_failure.hpp"

#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

namespace kvt::builtin {
namespace {

constexpr double PI = std::numbers::pi;

const TopoDS_Wire& kernel_of(const wire& one) {
    return one.shape().kernel.get();
}

TEST(signed_area, of_a_polygon_is_that_of_its_corners) {
    const std::vector<point2> triangle = {{1.0, 1.0}, {4.0, 1.0}, {1.0, 3.0}};
    EXPECT_NEAR(signed_area(kernel_of(polyline_wire(triangle, true))), 3.0, 1e-14);
    const std::vector<point2> other_way = {{1.0, 1.0}, {1.0, 3.0}, {4.0, 1.0}};
    EXPECT_NEAR(signed_area(kernel_of(polyline_wire(other_way, true))), -3.0, 1e-14);
}

TEST(signed_area, of_a_circle_is_exact_to_the_rounding) {
    EXPECT_NEAR(signed_area(kernel_of(circle_wire({100.0, -50.0}, 20.0))) / (PI * 400.0), 1.0,
                1e-12);
}

// The area within a spline doesn't depend on where it is cut into spans.
TEST(signed_area, of_a_spline_is_that_of_its_fine_polygon) {
    const wire curve =
        closed_spline_wire({{3.0, 0.0}, {1.0, 1.5}, {-2.0, 2.0}, {-2.5, -1.0}, {0.5, -2.0}});
    double fine = 0.0;
    point2 last = curve.sampled().back();
    for (const point2& at : curve.sampled()) {
        fine += 0.5 * (last.x * at.y - at.x * last.y);
        last = at;
    }
    // 40 chords miss some of it; a quarter as much with twice as many would be the exact area.
    EXPECT_NEAR(signed_area(kernel_of(curve)) / fine, 1.0, 5e-3);
    EXPECT_GT(signed_area(kernel_of(curve)), fine) << "chords lie inside a convex curve";
}

TEST(sampled_points, are_the_corners_of_a_polygon_and_3600_of_a_circle) {
    const std::vector<point2> triangle = {{1.0, 1.0}, {4.0, 1.0}, {1.0, 3.0}};
    EXPECT_EQ(sampled_points(kernel_of(polyline_wire(triangle, true))), triangle);
    EXPECT_EQ(sampled_points(kernel_of(circle_wire({0.0, 0.0}, 1.0))).size(), 3600u);
}

TEST(measures_of, counts_every_part_of_the_upper_face) {
    const body plate = cylinder({0.0, 0.0, 0.0}, 10.0, 2.0);
    const body holed =
        cut(cut(plate, cylinder({5.0, 0.0, 0.0}, 1.0, 4.0)), cylinder({-5.0, 0.0, 0.0}, 2.0, 4.0));
    const body_measures measures = measures_of(holed.shape().kernel);
    EXPECT_EQ(measures.contours.size(), 3u);
    EXPECT_NEAR(measures.contour_area, PI * 95.0, 1e-11);
    EXPECT_DOUBLE_EQ(measures.lower, -1.0);
    EXPECT_DOUBLE_EQ(measures.upper, 1.0);
    double sampled = 0.0;
    for (const auto& contour : measures.contours) {
        sampled += polygon_area(contour);
    }
    EXPECT_NEAR(sampled / measures.contour_area, 1.0, 1e-6);
}

TEST(measures_of, refuses_a_solid_without_a_level_face) {
    const body tilted = cylinder({0.0, 0.0, 0.0}, 1.0, 1.0);
    EXPECT_NO_THROW(measures_of(tilted.shape().kernel));
    EXPECT_FAILURE(measures_of(TopoDS_Shape()),
                   static_cast<failure>(automation::AUTOMATION_FAILED));
}

}  // namespace
}  // namespace kvt::builtin
