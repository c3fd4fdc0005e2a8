// Tests of the camera: standard views, and what stays where it is.
#include "views/model/model_camera.hpp"

#include "support/property_runs.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

constexpr int WIDTH = 640;
constexpr int HEIGHT = 400;

std::vector<point3> cube_corners(double half) {
    std::vector<point3> corners;
    for (const double x : {-half, half}) {
        for (const double y : {-half, half}) {
            for (const double z : {-half, half}) {
                corners.push_back({x, y, z});
            }
        }
    }
    return corners;
}

void expect_place(const picture_point& place, double x, double y, double depth) {
    EXPECT_NEAR(place.x, x, 1e-9);
    EXPECT_NEAR(place.y, y, 1e-9);
    EXPECT_NEAR(place.depth, depth, 1e-9);
}

model_camera fitted(const view_direction& direction) {
    model_camera camera(WIDTH, HEIGHT);
    camera.look_from(direction);
    camera.fit(cube_corners(10.0));
    return camera;
}

model_camera random_camera(random_values& random) {
    model_camera camera(random.whole(50, 900), random.whole(50, 900));
    camera.look_from({random.real(-180.0, 180.0), random.real(-90.0, 90.0)});
    camera.fit(cube_corners(random.real(0.1, 200.0)));
    camera.pan(random.real(-50.0, 50.0), random.real(-50.0, 50.0));
    camera.zoom(random.real(0.0, 500.0), random.real(0.0, 500.0), random.real(0.5, 4.0));
    return camera;
}

point3 random_point(random_values& random) {
    return {random.real(-30.0, 30.0), random.real(-30.0, 30.0), random.real(-30.0, 30.0)};
}

}  // namespace

TEST(model_camera, fits_the_smaller_side_to_nine_tenths) {
    const model_camera camera = fitted(FRONT_VIEW);
    EXPECT_NEAR(camera.pixels_per_mm(), 0.9 * HEIGHT / 20.0, 1e-12);
    expect_place(camera.project({0.0, 0.0, 0.0}), 320.0, 200.0, 0.0);
}

TEST(model_camera, looks_from_the_standard_sides) {
    const double scale = 18.0;
    const point3 point = {1.0, 2.0, 3.0};
    expect_place(fitted(FRONT_VIEW).project(point), 320.0 + scale, 200.0 - 3.0 * scale, 2.0);
    expect_place(fitted(TOP_VIEW).project(point), 320.0 + scale, 200.0 - 2.0 * scale, -3.0);
    expect_place(fitted(RIGHT_VIEW).project(point), 320.0 + 2.0 * scale, 200.0 - 3.0 * scale, -1.0);
    const view_axes isometric = fitted(ISOMETRIC_VIEW).axes();
    // The eye is at (1, -1, 1) of the same length each.
    EXPECT_NEAR(-isometric.away.x, std::sqrt(1.0 / 3.0), 1e-12);
    EXPECT_NEAR(isometric.away.y, std::sqrt(1.0 / 3.0), 1e-12);
    EXPECT_NEAR(-isometric.away.z, std::sqrt(1.0 / 3.0), 1e-12);
}

TEST(model_camera, without_points_fits_nothing) {
    model_camera camera = fitted(TOP_VIEW);
    camera.fit({});
    EXPECT_NEAR(camera.pixels_per_mm(), 18.0, 1e-12);
}

TEST(model_camera, finds_the_point_of_a_place) {
    random_values random;
    for (int run = 0; run < property_count(500); ++run) {
        const model_camera camera = random_camera(random);
        const point3 point = random_point(random);
        const point3 again = camera.point_at(camera.project(point));
        EXPECT_NEAR(again.x, point.x, 1e-9);
        EXPECT_NEAR(again.y, point.y, 1e-9);
        EXPECT_NEAR(again.z, point.z, 1e-9);
    }
}

TEST(model_camera, orbit_and_zoom_keep_the_point_under_the_pointer) {
    random_values random;
    for (int run = 0; run < property_count(500); ++run) {
        model_camera camera = random_camera(random);
        const point3 pivot = random_point(random);
        const picture_point before = camera.project(pivot);
        camera.orbit(pivot, random.real(-900.0, 900.0), random.real(-900.0, 900.0));
        camera.zoom(before.x, before.y, random.real(0.1, 10.0));
        const picture_point after = camera.project(pivot);
        EXPECT_NEAR(after.x, before.x, 1e-6);
        EXPECT_NEAR(after.y, before.y, 1e-6);
    }
}

TEST(model_camera, orbit_never_goes_over_the_top) {
    model_camera camera = fitted(FRONT_VIEW);
    camera.orbit({}, 0.0, 5000.0);
    EXPECT_NEAR(camera.axes().away.z, -1.0, 1e-12);
    camera.orbit({}, 0.0, -9000.0);
    EXPECT_NEAR(camera.axes().away.z, 1.0, 1e-12);
}

TEST(model_camera, a_drag_to_the_right_turns_the_front_to_the_right) {
    model_camera camera = fitted(FRONT_VIEW);
    camera.orbit({}, 10.0, 0.0);
    EXPECT_GT(camera.project({0.0, -10.0, 0.0}).x, 320.0);
    camera.look_from(FRONT_VIEW);
    camera.orbit({}, 0.0, 10.0);
    EXPECT_GT(camera.project({0.0, -10.0, 0.0}).y, 200.0);
}

TEST(model_camera, pans_by_pixels) {
    random_values random;
    model_camera camera = random_camera(random);
    const picture_point before = camera.project({1.0, 2.0, 3.0});
    camera.pan(17.0, -5.0);
    const picture_point after = camera.project({1.0, 2.0, 3.0});
    EXPECT_NEAR(after.x - before.x, 17.0, 1e-9);
    EXPECT_NEAR(after.y - before.y, -5.0, 1e-9);
}

TEST(model_camera, zooms_between_bounds) {
    model_camera camera = fitted(FRONT_VIEW);
    camera.zoom(0.0, 0.0, 1e9);
    EXPECT_EQ(camera.pixels_per_mm(), model_camera::LARGEST_SCALE);
    camera.zoom(0.0, 0.0, 1e-12);
    EXPECT_EQ(camera.pixels_per_mm(), model_camera::SMALLEST_SCALE);
}

TEST(model_camera, keeps_the_middle_and_the_share_when_resized) {
    model_camera camera = fitted(FRONT_VIEW);
    camera.resize(300, 800);
    expect_place(camera.project({0.0, 0.0, 0.0}), 150.0, 400.0, 0.0);
    EXPECT_NEAR(camera.pixels_per_mm(), 18.0 * 300.0 / 400.0, 1e-12);
}

TEST(model_camera, shows_the_same_at_half_and_at_twice_the_size) {
    random_values random;
    for (int run = 0; run < property_count(100); ++run) {
        const model_camera camera = random_camera(random);
        const model_camera half = camera.reduced(2);
        const point3 point = random_point(random);
        const picture_point whole = camera.project(point);
        const picture_point small = half.project(point);
        EXPECT_EQ(half.width(), (camera.width() + 1) / 2);
        EXPECT_NEAR(small.x, whole.x / 2.0, 1e-9);
        EXPECT_NEAR(small.y, whole.y / 2.0, 1e-9);
        EXPECT_NEAR(small.depth, whole.depth, 1e-9);
        const picture_point large = camera.enlarged(2).project(point);
        EXPECT_NEAR(large.x, whole.x * 2.0, 1e-9);
        EXPECT_NEAR(large.y, whole.y * 2.0, 1e-9);
    }
}

}  // namespace kvt
