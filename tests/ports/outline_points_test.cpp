// Tests of a growing outline: how many points an arc, a fillet and a side take, and how it is
// stored.
#include "ports/outline_points.hpp"

#include "ports/polar.hpp"
#include "support/expect_failure.hpp"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

namespace kvt {
namespace {

std::size_t arc_points(double span_deg) {
    outline_points outline;
    outline.add_arc(10.0, 0.0, 20.0, span_deg, 1);
    return outline.points().size();
}

TEST(outline_points, an_arc_counts_to_a_real_bound) {
    EXPECT_EQ(arc_points(1.0), 1U) << "k = 1 <= 2 * 1 - 1";
    EXPECT_EQ(arc_points(0.99), 0U);
    EXPECT_EQ(arc_points(1.49), 1U);
    EXPECT_EQ(arc_points(1.5), 2U);
    EXPECT_EQ(arc_points(30.0), 59U);
    EXPECT_EQ(arc_points(-5.0), 0U);
}

TEST(outline_points, angles_of_an_arc_are_not_accumulated) {
    outline_points outline;
    outline.add_arc(10.0, 2.0, 20.1, 30.0, -1);
    EXPECT_EQ(outline.points()[40],
              (point2{10.0 * cos_deg(20.1 - 41 / 2.0) - 2.0, 10.0 * sin_deg(20.1 - 41 / 2.0)}));
}

TEST(outline_points, a_fillet_turns_clockwise) {
    outline_points outline;
    outline.add_fillet({5.0, 6.0}, 2.0, 10.0, 1.0);
    ASSERT_EQ(outline.points().size(), 1U);
    EXPECT_EQ(outline.points()[0], (point2{2.0 * cos_deg(10.5) + 5.0, 6.0 - 2.0 * sin_deg(10.5)}));
}

TEST(outline_points, a_side_has_19_points_between_its_ends) {
    outline_points outline;
    outline.add_side({0.0, 0.0}, {20.0, 40.0});
    ASSERT_EQ(outline.points().size(), 19U);
    EXPECT_EQ(outline.points().front(), (point2{1.0, 2.0}));
    EXPECT_EQ(outline.points().back(), (point2{19.0, 38.0}));
}

TEST(outline_points, the_16_bit_index_overflows) {
    outline_points outline;
    outline.add_arc(10.0, 0.0, 0.0, 32768.5 / 2.0, 1);  // 32767 points
    outline.add({1.0, 1.0});
    EXPECT_EQ(outline.last(), 32767);
    EXPECT_FAILURE(outline.add({1.0, 1.0}), failure::overflow);
}

TEST(outline_points, points_that_are_no_numbers_fail) {
    outline_points outline;
    EXPECT_FAILURE(outline.add({std::nan(""), 0.0}), failure::overflow);
}

TEST(outline_points, an_older_longer_outline_is_wiped_out) {
    zeroed_array x(5);
    std::fill_n(x.begin(), 4, 9.0);
    zeroed_array y = x;
    std::int16_t last = 3;
    outline_points outline;
    outline.add({1.0, 2.0});
    outline.add({3.0, 4.0});
    outline.mirror();
    outline.store(x, y, last);
    EXPECT_EQ(std::vector<double>(x.begin(), x.end()), (std::vector<double>{1, 3, 0, 0, 0}));
    EXPECT_EQ(std::vector<double>(y.begin(), y.end()), (std::vector<double>{-2, -4, 0, 0, 0}));
    EXPECT_EQ(last, 1);
}

TEST(outline_points, an_outline_that_does_not_fit_its_arrays_fails) {
    zeroed_array x(1);
    zeroed_array y(1);
    std::int16_t last = 0;
    outline_points outline;
    outline.add({1.0, 2.0});
    outline.add({3.0, 4.0});
    EXPECT_FAILURE(outline.store(x, y, last), failure::subscript_out_of_range);
}

TEST(outline_points, angle_of_a_fillet_by_the_cosine_rule) {
    // A right angle between 3 and 4 has the opposite side 5; 60 degrees in an equilateral triangle.
    EXPECT_NEAR(fillet_angle_deg(3.0, 4.0, 25.0), 90.0, 1e-5);
    EXPECT_NEAR(fillet_angle_deg(2.0, 2.0, 4.0), 60.0, 1e-5);
    EXPECT_FAILURE(fillet_angle_deg(1.0, 2.0, 9.0),
                   failure::division_by_zero);  // stretched: cosine -1
    EXPECT_FAILURE(fillet_angle_deg(1.0, 2.0, 16.0),
                   failure::invalid_procedure_call);  // no triangle
}

TEST(outline_points, bases_of_the_fillets) {
    port_corner at;
    at.r = {1.0, -1.0};  // seen from c: to the right and below, so the ratio is positive
    EXPECT_NEAR(base_after_inner_arc(at), 45.0, 1e-5);
    at.r = {-1.0, -1.0};
    EXPECT_NEAR(base_after_inner_arc(at), 135.0, 1e-5);
    at.r = {0.0, -1.0};
    EXPECT_FAILURE(base_after_inner_arc(at), failure::division_by_zero);

    at.s = {1.0, -1.0};
    EXPECT_NEAR(base_before_outer_arc(at), 45.0, 1e-5);
    at.s = {-1.0, 1.0};
    EXPECT_NEAR(base_before_outer_arc(at), 225.0, 1e-5)
        << "positive, and the centre below the tangent point";
    at.s = {-1.0, -1.0};
    EXPECT_NEAR(base_before_outer_arc(at), 135.0, 1e-5);
}

}  // namespace
}  // namespace kvt
