// Tests of the area that two polygons share, against a library.
#include "exact/polygon_overlap.hpp"

#include "support/property_runs.hpp"

#include <cmath>
#include <gtest/gtest.h>
#include <polyclipping/clipper.hpp>

namespace kvt {
namespace {

using polygon = std::vector<point2>;

polygon square(double left, double bottom, double side) {
    return {
        {left, bottom}, {left + side, bottom}, {left + side, bottom + side}, {left, bottom + side}};
}

/// A star whose points are as many and as far out as chance has it.
polygon random_star(random_values& random) {
    polygon points;
    const int count = random.whole(3, 60);
    const point2 middle{random.real(-4.0, 4.0), random.real(-4.0, 4.0)};
    for (int i = 0; i < count; ++i) {
        const point2 way = polar_point(random.real(1.0, 8.0), 6.2831853 * i / count);
        points.push_back({middle.x + way.x, middle.y + way.y});
    }
    return points;
}

double area_by_library(const polygon& a, const polygon& b) {
    constexpr double UNITS = 1.0e8;
    const auto path = [](const polygon& points) {
        ClipperLib::Path all;
        for (const point2& point : points) {
            all.emplace_back(std::llround(point.x * UNITS), std::llround(point.y * UNITS));
        }
        return all;
    };
    ClipperLib::Clipper clipper;
    clipper.AddPath(path(a), ClipperLib::ptSubject, true);
    clipper.AddPath(path(b), ClipperLib::ptClip, true);
    ClipperLib::Paths shared;
    clipper.Execute(ClipperLib::ctIntersection, shared);
    double area = 0.0;
    for (const ClipperLib::Path& part : shared) {
        area += ClipperLib::Area(part) / (UNITS * UNITS);
    }
    return area;
}

double shared(const polygon& a, const polygon& b) {
    return shared_area(indexed_polygon(a), moved_aside(b));
}

TEST(polygon_overlap, shares_the_corner_of_two_squares) {
    EXPECT_NEAR(shared(square(0.0, 0.0, 4.0), square(3.0, 2.5, 4.0)), 1.5, 1e-6);
}

TEST(polygon_overlap, shares_the_inner_of_two) {
    EXPECT_NEAR(shared(square(0.0, 0.0, 4.0), square(1.0, 1.0, 2.0)), 4.0, 1e-6);
    EXPECT_NEAR(shared(square(1.0, 1.0, 2.0), square(0.0, 0.0, 4.0)), 4.0, 1e-6);
}

TEST(polygon_overlap, shares_nothing_apart) {
    EXPECT_EQ(shared(square(0.0, 0.0, 1.0), square(2.0, 0.0, 1.0)), 0.0);
    EXPECT_EQ(shared(square(0.0, 0.0, 1.0), {}), 0.0);
}

TEST(polygon_overlap, shares_all_of_the_same_polygon) {
    EXPECT_NEAR(shared(square(0.0, 0.0, 3.0), square(0.0, 0.0, 3.0)), 9.0, 1e-5);
    EXPECT_NEAR(shared(square(0.0, 0.0, 2.0), square(0.0, 0.0, 3.0)), 4.0, 1e-5)
        << "two edges on each other";
}

TEST(polygon_overlap, does_not_care_which_way_round) {
    polygon backwards = square(1.0, 1.0, 2.0);
    std::reverse(backwards.begin(), backwards.end());
    EXPECT_NEAR(shared(square(0.0, 0.0, 2.0), backwards), 1.0, 1e-6);
    EXPECT_NEAR(indexed_polygon(backwards).area(), 4.0, 1e-12);
}

TEST(polygon_overlap, agrees_with_a_library) {
    random_values random(property_seed());
    for (int run = 0; run < property_count(2000); ++run) {
        const polygon a = random_star(random);
        const polygon b = random_star(random);
        EXPECT_NEAR(shared(a, b), area_by_library(a, b), 1e-4) << run;
    }
}

TEST(polygon_overlap, knows_what_lies_inside) {
    const indexed_polygon l(
        {{0.0, 0.0}, {4.0, 0.0}, {4.0, 1.0}, {1.0, 1.0}, {1.0, 4.0}, {0.0, 4.0}});
    EXPECT_TRUE(l.contains({0.5, 3.0}));
    EXPECT_TRUE(l.contains({3.0, 0.5}));
    EXPECT_FALSE(l.contains({3.0, 3.0}));
    EXPECT_FALSE(l.contains({-1.0, 0.5}));
}

}  // namespace
}  // namespace kvt
