// Tests of the section planes: which part of a line of sight they leave.
#include "views/model/section_plane.hpp"

#include "support/property_runs.hpp"

#include <cmath>
#include <gtest/gtest.h>

namespace kvt {
namespace {

model_camera camera_from(const view_direction& direction) {
    model_camera camera(100, 100);
    camera.look_from(direction);
    camera.fit({{-10.0, -10.0, -10.0}, {10.0, 10.0, 10.0}});
    return camera;
}

bool is_kept(const section_plane& plane, const point3& point) {
    return dot(plane.normal, point) <= plane.offset;
}

}  // namespace

TEST(section_plane, takes_the_front_half_away) {
    const kept_depths kept =
        kept_space({section_through_axis(0.0)}, camera_from(FRONT_VIEW)).at(50.0, 50.0);
    EXPECT_NEAR(kept.from, 0.0, 1e-12);
    EXPECT_TRUE(std::isinf(kept.to));
}

TEST(section_plane, takes_away_what_is_higher) {
    const section_plane plane = section_across_axis(3.0);
    const kept_depths from_above = kept_space({plane}, camera_from(TOP_VIEW)).at(50.0, 50.0);
    EXPECT_NEAR(from_above.from, -3.0, 1e-12);
    const kept_depths from_below = kept_space({plane}, camera_from({0.0, -90.0})).at(50.0, 50.0);
    EXPECT_NEAR(from_below.to, 3.0, 1e-12);
}

TEST(section_plane, leaves_nothing_of_a_parallel_line_outside) {
    const model_camera front = camera_from(FRONT_VIEW);
    const double above = front.project({0.0, 0.0, 5.0}).y;
    const kept_depths kept = kept_space({section_across_axis(3.0)}, front).at(50.0, above);
    EXPECT_GT(kept.from, kept.to);
    const kept_depths below = kept_space({section_across_axis(6.0)}, front).at(50.0, above);
    EXPECT_LT(below.from, below.to);
}

TEST(section_plane, leaves_the_depths_whose_points_are_kept) {
    random_values random;
    for (int run = 0; run < property_count(2000); ++run) {
        const model_camera camera =
            camera_from({random.real(-180.0, 180.0), random.real(-90.0, 90.0)});
        const std::vector<section_plane> planes = {section_through_axis(random.real(0.0, 360.0)),
                                                   section_across_axis(random.real(-9.0, 9.0))};
        const double x = random.real(0.0, 100.0);
        const double y = random.real(0.0, 100.0);
        const double depth = random.real(-20.0, 20.0);
        const point3 point = camera.point_at({x, y, depth});
        const kept_depths kept = kept_space(planes, camera).at(x, y);
        EXPECT_EQ(kept.from <= depth && depth <= kept.to,
                  is_kept(planes[0], point) && is_kept(planes[1], point));
    }
}

}  // namespace kvt
