// Tests of the triangles of a polygon: their number, their area, none outside.
#include "exact/polygon_triangles.hpp"

#include "exact/plane.hpp"

#include <gtest/gtest.h>
#include <numeric>

namespace kvt {
namespace {

double area_of(const std::vector<point2>& points, const std::vector<corner_triple>& triangles) {
    double area = 0.0;
    for (const auto& [a, b, c] : triangles) {
        const double twice =
            cross(difference(points[b], points[a]), difference(points[c], points[a]));
        EXPECT_GE(twice, 0.0);
        area += 0.5 * twice;
    }
    return area;
}

std::vector<std::uint32_t> all_of(const std::vector<point2>& points) {
    std::vector<std::uint32_t> polygon(points.size());
    std::iota(polygon.begin(), polygon.end(), 0U);
    return polygon;
}

TEST(polygon_triangles, of_a_triangle_is_itself) {
    const std::vector<point2> points = {{0.0, 0.0}, {1.0, 0.0}, {0.0, 1.0}};
    EXPECT_EQ(triangles_of(points, {0, 1, 2}), (std::vector<corner_triple>{{0, 1, 2}}));
}

TEST(polygon_triangles, fill_a_bent_strip) {
    // A U: 3 by 3 without the slot of 1 by 2.
    const std::vector<point2> points = {{0.0, 0.0}, {3.0, 0.0}, {3.0, 3.0}, {2.0, 3.0},
                                        {2.0, 1.0}, {1.0, 1.0}, {1.0, 3.0}, {0.0, 3.0}};
    const auto triangles = triangles_of(points, all_of(points));
    EXPECT_EQ(triangles.size(), 6U);
    EXPECT_DOUBLE_EQ(area_of(points, triangles), 7.0);
}

TEST(polygon_triangles, fill_a_ring_segment_of_many_points) {
    std::vector<point2> points;
    for (int i = 0; i <= 60; ++i) {
        points.push_back(polar_point(2.0, 0.05 * i));
    }
    for (int i = 60; i >= 0; --i) {
        points.push_back(polar_point(1.0, 0.05 * i));
    }
    double area = 0.0;
    for (std::size_t i = 0; i < points.size(); ++i) {
        area += 0.5 * cross(points[i], points[(i + 1) % points.size()]);
    }
    const auto triangles = triangles_of(points, all_of(points));
    EXPECT_EQ(triangles.size(), points.size() - 2);
    EXPECT_NEAR(area_of(points, triangles), area, 1e-12);
}

}  // namespace
}  // namespace kvt
