// Tests of the picture of a model: each pixel against lines of sight through bodies that are known.
#include "views/model/model_picture.hpp"

#include "support/cad/mesh_shapes.hpp"
#include "support/property_runs.hpp"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace kvt {
namespace {

constexpr double INFINITE = std::numeric_limits<double>::infinity();
constexpr rgb_colour GREY = {200, 200, 200};
constexpr std::uint32_t WHITE = 0xffffffffU;

model_scene scene_of(const std::vector<const body_mesh*>& meshes) {
    model_scene scene;
    scene.background = {255, 255, 255};
    scene.edge = {255, 0, 0};
    scene.section = {0, 0, 255};
    for (const body_mesh* mesh : meshes) {
        scene.parts.push_back({mesh, GREY, {}});
    }
    return scene;
}

body_mesh without_edges(body_mesh mesh) {
    mesh.edges.clear();
    return mesh;
}

model_camera fitted_camera(const model_scene& scene, const view_direction& direction,
                           int width = 160, int height = 120) {
    model_camera camera(width, height);
    camera.look_from(direction);
    camera.fit(points_of(scene));
    return camera;
}

/// Depths of a line of sight, mm.
struct sight_range {
    double from = -INFINITE, to = INFINITE;
    bool is_empty() const { return from >= to; }
};

/// A convex prism as the space between planes.
class convex_body {
  public:
    convex_body(const std::vector<point2>& outline, double z0, double z1) {
        for (std::size_t i = 0; i < outline.size(); ++i) {
            const point2& a = outline[i];
            const point2 d = difference(outline[(i + 1) % outline.size()], a);
            planes_.push_back({{d.y, -d.x, 0.0}, d.y * a.x - d.x * a.y});
        }
        planes_.push_back({{0.0, 0.0, 1.0}, z1});
        planes_.push_back({{0.0, 0.0, -1.0}, -z0});
    }
    sight_range seen(const model_camera& camera, double x, double y) const {
        const kept_depths kept = kept_space(planes_, camera).at(x, y);
        return {kept.from, kept.to};
    }

  private:
    std::vector<section_plane> planes_;
};

/// A body, and perhaps one that is missing in it.
struct known_body {
    body_mesh mesh;
    convex_body whole;
    std::optional<convex_body> hole;
};

/// What a line of sight meets first.
struct expected_sight {
    double depth = INFINITE;
    bool is_cut = false;
};

expected_sight first_met(const known_body& body, const kept_depths& kept,
                         const model_camera& camera, double x, double y) {
    sight_range range = body.whole.seen(camera, x, y);
    const bool begins_cut = kept.from > range.from;
    range = {std::max(range.from, kept.from), std::min(range.to, kept.to)};
    if (range.is_empty()) {
        return {};
    }
    const sight_range hole = body.hole ? body.hole->seen(camera, x, y) : sight_range{0.0, 0.0};
    const bool begins_in_hole = !hole.is_empty() && hole.from <= range.from && range.from < hole.to;
    if (!begins_in_hole) {
        return {range.from, begins_cut};
    }
    return hole.to < range.to ? expected_sight{hole.to, false} : expected_sight{};
}

expected_sight first_met(const std::vector<known_body>& bodies, const model_scene& scene,
                         const model_camera& camera, double x, double y) {
    expected_sight first;
    const kept_depths kept = kept_space(scene.sections, camera).at(x, y);
    for (const known_body& body : bodies) {
        const expected_sight met = first_met(body, kept, camera, x, y);
        first = met.depth < first.depth ? met : first;
    }
    return first;
}

/// Whether a pixel is seen as expected; nothing where the edge of a body goes through its centre.
std::optional<std::string> difference_at(const model_picture& picture,
                                         const std::vector<known_body>& bodies,
                                         const model_scene& scene, int x, int y) {
    constexpr double NEARBY = 1e-4;  // pixels
    const model_camera& camera = picture.camera;
    const auto expected = first_met(bodies, scene, camera, x + 0.5, y + 0.5);
    for (const double dx : {-NEARBY, NEARBY}) {
        for (const double dy : {-NEARBY, NEARBY}) {
            const auto beside = first_met(bodies, scene, camera, x + 0.5 + dx, y + 0.5 + dy);
            if (beside.is_cut != expected.is_cut ||
                !(std::abs(beside.depth - expected.depth) < 0.05 ||
                  beside.depth == expected.depth)) {
                return std::nullopt;
            }
        }
    }
    const std::size_t pixel = picture.grid.index(x, y);
    const double depth = picture.grid.depth[pixel];
    const bool is_cut = picture.surfaces[picture.grid.surface[pixel]].is_cut;
    if (depth == expected.depth ||
        (std::abs(depth - expected.depth) < 0.02 && is_cut == expected.is_cut)) {
        return std::nullopt;
    }
    return std::to_string(x) + ", " + std::to_string(y) + ": depth " + std::to_string(depth) +
           " for " + std::to_string(expected.depth) + ", cut " + std::to_string(is_cut);
}

void expect_picture(const std::vector<known_body>& bodies, const model_scene& scene,
                    const model_camera& camera) {
    const model_picture picture = draw_model(scene, camera, 2);
    for (int y = 0; y < camera.height(); ++y) {
        for (int x = 0; x < camera.width(); ++x) {
            const auto found = difference_at(picture, bodies, scene, x, y);
            ASSERT_FALSE(found) << *found;
        }
    }
}

std::vector<known_body> random_bodies(random_values& random) {
    const auto corners = static_cast<std::uint32_t>(random.whole(3, 40));
    const point2 centre = {random.real(-5.0, 5.0), random.real(-5.0, 5.0)};
    const double inner = random.real(1.0, 9.0);
    const double outer = random.real(10.0, 20.0);
    const double top = random.real(1.0, 12.0);
    const std::vector<point2> block =
        regular_polygon({random.real(-8.0, 8.0), 0.0}, random.real(1.0, 8.0), 5);
    return {{ring_mesh(centre, outer, inner, 0.0, top, corners),
             convex_body(regular_polygon(centre, outer, corners), 0.0, top),
             convex_body(regular_polygon(centre, inner, corners), 0.0, top)},
            {prism_mesh(block, -6.0, -0.5), convex_body(block, -6.0, -0.5), std::nullopt}};
}

model_scene scene_without_edges(std::vector<known_body>& bodies) {
    std::vector<const body_mesh*> meshes;
    for (known_body& body : bodies) {
        body.mesh.edges.clear();
        meshes.push_back(&body.mesh);
    }
    return scene_of(meshes);
}

double cut_pixels(const model_picture& picture) {
    return static_cast<double>(std::ranges::count_if(
        picture.grid.surface,
        [&](std::uint32_t surface) { return picture.surfaces[surface].is_cut; }));
}

std::uint32_t pixel_at(const model_picture& picture, const point3& point) {
    const picture_point place = picture.camera.project(point);
    return picture.pixels[picture.grid.index(static_cast<int>(place.x), static_cast<int>(place.y))];
}

/// Whether the pixel of a point or one beside it has a colour: where a line runs between two pixels
/// either may be taken.
bool is_nearby(const model_picture& picture, const point3& point, std::uint32_t pixel) {
    const double step = 1.0 / picture.camera.pixels_per_mm();
    return pixel_at(picture, point) == pixel ||
           pixel_at(picture, {point.x, point.y + step, point.z}) == pixel ||
           pixel_at(picture, {point.x, point.y - step, point.z}) == pixel;
}

constexpr std::uint32_t EDGE = 0xffff0000U;

}  // namespace

TEST(model_picture, shows_the_front_of_a_box_pixel_by_pixel) {
    const body_mesh box = without_edges(box_mesh({0.0, 0.0, 0.0}, {10.0, 20.0, 5.0}));
    const model_scene scene = scene_of({&box});
    model_camera camera(60, 40);
    camera.look_from(FRONT_VIEW);
    camera.fit(points_of(scene));
    const double scale = 0.9 * 60.0 / 10.0;  // 5.4: 54 pixels by 27, 3 .. 57 and 6.5 .. 33.5
    ASSERT_NEAR(camera.pixels_per_mm(), scale, 1e-12);
    const model_picture picture = draw_model(scene, camera, 1);
    // 200 (0.45 + 0.55 * 0.8) = 178
    for (int y = 0; y < 40; ++y) {
        for (int x = 0; x < 60; ++x) {
            const bool is_box = x >= 3 && x < 57 && y >= 7 && y < 33;
            // Rows 6 and 33 have their centres on an edge.
            if (y != 6 && y != 33) {
                EXPECT_EQ(picture.pixels[picture.grid.index(x, y)], is_box ? 0xffb2b2b2U : WHITE)
                    << x << ", " << y;
            }
        }
    }
}

TEST(model_picture, shows_nothing_of_an_empty_scene) {
    const model_scene scene = scene_of({});
    const model_picture picture = draw_model(scene, model_camera(7, 5));
    EXPECT_EQ(picture.pixels, std::vector<std::uint32_t>(35, WHITE));
    EXPECT_FALSE(picked(picture, 3.0, 3.0));
}

TEST(model_picture, shows_rings_and_prisms_from_any_side) {
    random_values random;
    for (int run = 0; run < property_count(12); ++run) {
        std::vector<known_body> bodies = random_bodies(random);
        const model_scene scene = scene_without_edges(bodies);
        SCOPED_TRACE(run);
        expect_picture(
            bodies, scene,
            fitted_camera(scene, {random.real(-180.0, 180.0), random.real(-90.0, 90.0)}, 90, 70));
    }
}

TEST(model_picture, shows_what_sections_leave) {
    random_values random;
    for (int run = 0; run < property_count(18); ++run) {
        std::vector<known_body> bodies = random_bodies(random);
        model_scene scene = scene_without_edges(bodies);
        if (run % 3 != 0) {
            scene.sections.push_back(section_through_axis(random.real(0.0, 360.0)));
        }
        if (run % 3 != 1) {
            scene.sections.push_back(section_across_axis(random.real(-5.0, 5.0)));
        }
        SCOPED_TRACE(run);
        expect_picture(
            bodies, scene,
            fitted_camera(scene, {random.real(-180.0, 180.0), random.real(-90.0, 90.0)}, 90, 70));
    }
}

TEST(model_picture, a_cut_has_the_area_of_the_body) {
    // Regular polygon of n corners: n / 2 r^2 sin(2 pi / n).
    const std::uint32_t corners = 60;
    const double area = 30.0 * (20.0 * 20.0 - 12.0 * 12.0) * std::sin(std::numbers::pi / 30.0);
    const body_mesh ring = without_edges(ring_mesh({1.0, 2.0}, 20.0, 12.0, 0.0, 10.0, corners));
    model_scene scene = scene_of({&ring});
    scene.sections = {section_across_axis(4.0)};
    for (const double height_deg : {90.0, 50.0, 30.0}) {
        const model_camera camera = fitted_camera(scene, {33.0, height_deg}, 800, 800);
        const double scale = camera.pixels_per_mm();
        const double shortened = std::sin(height_deg * std::numbers::pi / 180.0);
        const double found = cut_pixels(draw_model(scene, camera)) / (scale * scale * shortened);
        // Half a pixel along both outlines would be 0.5 %; centres are in and out alike.
        EXPECT_NEAR(found, area, area * 1e-3) << height_deg;
    }
    scene.sections = {section_through_axis(0.0)};
    const model_camera front = fitted_camera(scene, FRONT_VIEW, 800, 800);
    const double scale = front.pixels_per_mm();
    const convex_body outer(regular_polygon({1.0, 2.0}, 20.0, corners), 0.0, 10.0);
    const convex_body inner(regular_polygon({1.0, 2.0}, 12.0, corners), 0.0, 10.0);
    model_camera side(800, 800);
    side.look_from(RIGHT_VIEW);
    side.fit({{0.0, 0.0, 0.0}});
    // Along y = 0, which runs along the x axis: seen from the right as depths.
    const picture_point place = side.project({0.0, 0.0, 5.0});
    const sight_range whole = outer.seen(side, place.x, place.y);
    const sight_range hole = inner.seen(side, place.x, place.y);
    const double width = (whole.to - whole.from) - (hole.to - hole.from);
    EXPECT_NEAR(cut_pixels(draw_model(scene, front)) / (scale * scale), width * 10.0,
                width * 10.0 * 0.01);
}

TEST(model_picture, is_the_same_with_any_number_of_threads) {
    random_values random;
    for (int run = 0; run < property_count(10); ++run) {
        const std::vector<known_body> bodies = random_bodies(random);
        model_scene scene = scene_of({&bodies[0].mesh, &bodies[1].mesh});
        scene.sections = {section_through_axis(random.real(0.0, 360.0))};
        scene.line_width = 1 + run % 3;
        const model_camera camera =
            fitted_camera(scene, {random.real(-180.0, 180.0), random.real(-90.0, 90.0)}, 90, 70);
        const model_picture one = draw_model(scene, camera, 1);
        for (const int threads : {2, 3, 7, 0}) {
            const model_picture other = draw_model(scene, camera, threads);
            EXPECT_EQ(other.pixels, one.pixels);
            EXPECT_EQ(other.grid.surface, one.grid.surface);
        }
    }
}

TEST(model_picture, picks_the_point_that_was_projected) {
    random_values random;
    for (int run = 0; run < property_count(200); ++run) {
        std::vector<known_body> bodies = random_bodies(random);
        const model_scene scene = scene_without_edges(bodies);
        const model_camera camera =
            fitted_camera(scene, {random.real(-180.0, 180.0), random.real(-90.0, 90.0)}, 90, 70);
        const model_picture picture = draw_model(scene, camera);
        const double x = random.real(0.0, camera.width());
        const double y = random.real(0.0, camera.height());
        const auto point = picked(picture, x, y);
        if (!point) {
            continue;
        }
        const picture_point place = camera.project(point->point);
        EXPECT_NEAR(place.x, x, 1e-6);
        EXPECT_NEAR(place.y, y, 1e-6);
        const auto again = picked(picture, place.x, place.y);
        ASSERT_TRUE(again);
        EXPECT_EQ(again->part, point->part);
        EXPECT_NEAR(again->point.z, point->point.z, 1e-6);
        // In the middle of a pixel it is the first point of a body there.
        const double middle_x = std::floor(x) + 0.5;
        const double middle_y = std::floor(y) + 0.5;
        const auto middle = picked(picture, middle_x, middle_y);
        const auto expected = first_met(bodies, scene, camera, middle_x, middle_y);
        EXPECT_NEAR(camera.project(middle->point).depth, expected.depth, 0.02);
    }
}

TEST(model_picture, picks_nothing_outside_and_the_cut_in_a_section) {
    const body_mesh box = without_edges(box_mesh({-5.0, -5.0, 0.0}, {5.0, 5.0, 4.0}));
    model_scene scene = scene_of({&box});
    scene.sections = {section_across_axis(1.5)};
    const model_picture picture = draw_model(scene, fitted_camera(scene, TOP_VIEW));
    for (const double outside : {-0.1, 160.0, std::nan("")}) {
        EXPECT_FALSE(picked(picture, outside, 60.0));
    }
    EXPECT_FALSE(picked(picture, 80.0, 120.0));
    const auto middle = picked(picture, 80.0, 60.0);
    ASSERT_TRUE(middle);
    EXPECT_NEAR(middle->point.z, 1.5, 1e-6);
}

TEST(model_picture, picks_the_corners_that_are_seen) {
    const body_mesh box = box_mesh({-5.0, -5.0, -5.0}, {5.0, 5.0, 5.0});
    const model_scene scene = scene_of({&box});
    const model_picture picture = draw_model(scene, fitted_camera(scene, {40.0, 30.0}));
    const auto corner_at = [&](const point3& point) {
        const picture_point place = picture.camera.project(point);
        return picked_corner(picture, scene, place.x + 2.0, place.y - 1.0, 5.0);
    };
    for (const point3& point : box.points) {
        const auto found = corner_at(point);
        const bool is_hidden = point == point3{-5.0, 5.0, -5.0};
        ASSERT_EQ(found.has_value(), !is_hidden);
        if (found) {
            EXPECT_EQ(found->point, point);
        }
    }
    EXPECT_FALSE(corner_at({0.0, -5.0, 0.0}));
}

TEST(model_picture, draws_the_edges_in_front_and_leaves_the_hidden_ones_out) {
    const body_mesh box = box_mesh({-5.0, -5.0, -5.0}, {5.0, 5.0, 5.0});
    const model_scene scene = scene_of({&box});
    // The eye is at x+, y-, z+: three edges meet in the corner that is hidden (-5, 5, -5).
    const model_picture picture = draw_model(scene, fitted_camera(scene, {40.0, 30.0}));
    for (const point3 hidden : {point3{0.0, 5.0, -5.0}, {-5.0, 0.0, -5.0}, {-5.0, 5.0, 0.0}}) {
        EXPECT_NE(pixel_at(picture, hidden), EDGE);
    }
    for (const point3 seen : {point3{0.0, -5.0, 5.0},
                              {5.0, 0.0, 5.0},
                              {5.0, -5.0, 0.0},
                              {0.0, 5.0, 5.0},
                              {-5.0, 0.0, 5.0},
                              {0.0, -5.0, -5.0},
                              {5.0, 0.0, -5.0},
                              {5.0, 5.0, 0.0},
                              {-5.0, -5.0, 0.0}}) {
        EXPECT_EQ(pixel_at(picture, seen), EDGE) << seen.x << seen.y << seen.z;
    }
}

TEST(model_picture, draws_no_edge_where_a_section_took_it) {
    const body_mesh box = box_mesh({-5.0, -5.0, -5.0}, {5.0, 5.0, 5.0});
    model_scene scene = scene_of({&box});
    scene.sections = {section_across_axis(0.0)};
    const model_picture picture = draw_model(scene, fitted_camera(scene, {40.0, 30.0}));
    EXPECT_NE(pixel_at(picture, {0.0, -5.0, 5.0}), EDGE);
    EXPECT_NE(pixel_at(picture, {5.0, -5.0, 2.0}), EDGE);
    EXPECT_EQ(pixel_at(picture, {5.0, -5.0, -2.0}), EDGE);
    EXPECT_EQ(pixel_at(picture, {0.0, -5.0, -5.0}), EDGE);
}

TEST(model_picture, draws_a_curve_in_its_colour) {
    body_mesh curve;
    curve.points = {{-5.0, 0.0, 0.0}, {0.0, 5.0, 0.0}, {5.0, 0.0, 0.0}};
    curve.edges = {{0, 1, 2}};
    const model_scene scene = scene_of({&curve});
    const model_picture picture = draw_model(scene, fitted_camera(scene, TOP_VIEW));
    EXPECT_TRUE(is_nearby(picture, {-2.5, 2.5, 0.0}, 0xffc8c8c8U));
    EXPECT_TRUE(is_nearby(picture, {2.5, 2.5, 0.0}, 0xffc8c8c8U));
    EXPECT_EQ(pixel_at(picture, {0.0, 1.0, 0.0}), WHITE);
}

TEST(model_picture, marks_cuts_with_the_colour_of_the_body) {
    const body_mesh left = without_edges(box_mesh({-5.0, -5.0, 0.0}, {0.0, 5.0, 4.0}));
    const body_mesh right = without_edges(box_mesh({0.0, -5.0, 0.0}, {5.0, 5.0, 4.0}));
    model_scene scene = scene_of({&left, &right});
    scene.parts[1].colour = {250, 0, 0};
    scene.sections = {section_across_axis(2.0)};
    const model_picture picture = draw_model(scene, fitted_camera(scene, TOP_VIEW));
    // 35 % of the section's blue, or 25 % of the edges' red in a hatch.
    const std::vector<std::uint32_t> grey = {0xff8282dbU, 0xffd69696U};
    const std::vector<std::uint32_t> red = {0xffa30059U, 0xfffb0000U};
    for (const double y : {-4.0, -1.3, 0.0, 2.2, 4.0}) {
        EXPECT_NE(std::ranges::find(grey, pixel_at(picture, {-2.0, y, 2.0})), grey.end());
        EXPECT_NE(std::ranges::find(red, pixel_at(picture, {2.0, y, 2.0})), red.end());
    }
}

TEST(model_picture, outlines_cuts) {
    const body_mesh box = without_edges(box_mesh({-5.0, -5.0, 0.0}, {5.0, 5.0, 4.0}));
    model_scene scene = scene_of({&box});
    scene.sections = {section_across_axis(2.0)};
    const model_picture picture = draw_model(scene, fitted_camera(scene, TOP_VIEW));
    EXPECT_EQ(pixel_at(picture, {-4.99, 1.0, 2.0}), EDGE);
    EXPECT_EQ(pixel_at(picture, {1.0, -4.99, 2.0}), EDGE);
    EXPECT_NE(pixel_at(picture, {-4.6, 1.0, 2.0}), EDGE);
}

TEST(model_scene, turns_a_part_about_its_axis) {
    const part_turn turn = {{-1.0, 0.0}, std::numbers::pi / 2.0};
    const point3 point = turned({1.0, 0.0, 7.0}, turn);
    EXPECT_NEAR(point.x, -1.0, 1e-12);
    EXPECT_NEAR(point.y, 2.0, 1e-12);
    EXPECT_EQ(point.z, 7.0);
    const point3 again = turned(point, back(turn));
    EXPECT_NEAR(again.x, 1.0, 1e-12);
    EXPECT_NEAR(again.y, 0.0, 1e-12);
}

TEST(model_picture, shows_a_part_where_it_is_turned) {
    const body_mesh box = without_edges(box_mesh({0.0, -1.0, 0.0}, {10.0, 1.0, 1.0}));
    model_scene scene = scene_of({&box});
    scene.parts[0].turn = {{0.0, 0.0}, std::numbers::pi / 2.0};
    const model_picture picture = draw_model(scene, fitted_camera(scene, TOP_VIEW));
    EXPECT_NE(pixel_at(picture, {0.0, 8.0, 1.0}), WHITE);
    const auto point = picked(picture, 80.0, 60.0);
    ASSERT_TRUE(point);
    EXPECT_NEAR(point->point.y, 5.0, 1e-6);
}

}  // namespace kvt
