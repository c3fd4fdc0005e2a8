#include "cad/builtin/body_mesher.hpp"

#include "support/cad/built_bodies.hpp"
#include "support/cad/mesh_checks.hpp"
#include "support/cad/model_designs.hpp"

#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

namespace kvt::builtin {
namespace {

double volume_of(const body& one) {
    return one.contour_area() * one.height();
}

TEST(mesh_of, a_block_has_its_corners_once_and_its_twelve_edges) {
    const std::vector<point2> square = {{0.0, 0.0}, {2.0, 0.0}, {2.0, 3.0}, {0.0, 3.0}};
    const body_mesh mesh = mesh_of(prism(make_face(polyline_wire(square, true)), 1.0, 4.0), SHOWN);
    EXPECT_EQ(mesh.points.size(), 8u);
    EXPECT_EQ(mesh.triangles.size(), 12u);
    EXPECT_EQ(mesh.edges.size(), 12u);
    EXPECT_TRUE(is_watertight(mesh));
    EXPECT_NEAR(mesh_volume(mesh), 24.0, 1e-12);
}

TEST(mesh_of, a_cylinder_draws_two_circles_and_no_seam) {
    const body_mesh mesh = mesh_of(cylinder({1.0, 2.0, 3.0}, 5.0, 2.0), SHOWN);
    EXPECT_TRUE(is_watertight(mesh));
    ASSERT_EQ(mesh.edges.size(), 2u);
    for (const auto& edge : mesh.edges) {
        EXPECT_EQ(edge.front(), edge.back());
        for (const std::uint32_t at : edge) {
            EXPECT_NEAR(std::hypot(mesh.points[at].x - 1.0, mesh.points[at].y - 2.0), 5.0, 1e-12);
        }
    }
}

TEST(mesh_of, a_finer_one_lies_nearer_whichever_was_made_first) {
    const body one = cylinder({0.0, 0.0, 0.0}, 10.0, 2.0);
    const double exact = 200.0 * std::numbers::pi;
    for (int turn = 0; turn < 2; ++turn) {
        EXPECT_NEAR(mesh_volume(mesh_of(one, SHOWN)) / exact, 1.0, 7e-3);
        EXPECT_NEAR(mesh_volume(mesh_of(one, PRINTED)) / exact, 1.0, 7e-4);
        EXPECT_GT(mesh_of(one, PRINTED).triangles.size(), mesh_of(one, SHOWN).triangles.size());
    }
}

TEST(mesh_of, the_bodies_of_a_design_are_watertight) {
    for (const program& kavetta : {double_sided_design(), inch_design_with_shadow_ports()}) {
        for (const built_body& one : built_assembly(kavetta)) {
            const body& solid = std::get<body>(one.saved.shape);
            const body_mesh shown = mesh_of(solid, SHOWN);
            EXPECT_TRUE(is_watertight(shown)) << one.saved.name;
            // A deflection of 0.001 of the extent along the whole contour, at most.
            EXPECT_NEAR(mesh_volume(shown) / volume_of(solid), 1.0, 2e-2) << one.saved.name;
            const body_mesh printed = mesh_of(solid, PRINTED);
            EXPECT_TRUE(is_watertight(printed)) << one.saved.name;
            EXPECT_NEAR(mesh_volume(printed) / volume_of(solid), 1.0, 2e-3) << one.saved.name;
        }
    }
}

// A mirrored solid, a turned one and what Booleans leave are meshed right side out, too.
TEST(mesh_of, bodies_that_were_moved_and_cut_are_right_side_out) {
    const body ring = cut(cylinder({0.0, 0.0, 0.0}, 5.0, 2.0), cylinder({1.0, 0.0, 0.0}, 2.0, 4.0));
    const body image = mirror(ring, {0.0, 0.0, 7.0}, {1.0, 0.0, 7.0}, {0.0, 1.0, 7.0});
    for (const body& one :
         {ring, image, turned(image, {3.0, 1.0}, 0.7), move(ring, {1.0, 2.0, 3.0}),
          fuse(ring, move(image, {20.0, 0.0, 0.0}))}) {
        const body_mesh mesh = mesh_of(one, PRINTED);
        EXPECT_TRUE(is_watertight(mesh));
        EXPECT_GT(mesh_volume(mesh), 0.0);
    }
    EXPECT_NEAR(mesh_volume(mesh_of(image, PRINTED)) / (42.0 * std::numbers::pi), 1.0, 2e-3);
}

TEST(mesh_of, a_curve_is_one_line_without_triangles) {
    const body_mesh open = mesh_of(polyline_wire({{0.0, 0.0}, {1.0, 0.0}, {1.0, 1.0}}, false));
    EXPECT_TRUE(open.triangles.empty());
    ASSERT_EQ(open.edges.size(), 1u);
    EXPECT_EQ(open.edges[0], (std::vector<std::uint32_t>{0, 1, 2}));
    const body_mesh closed = mesh_of(polyline_wire({{0.0, 0.0}, {1.0, 0.0}, {1.0, 1.0}}, true));
    EXPECT_EQ(closed.edges[0], (std::vector<std::uint32_t>{0, 1, 2, 0}));
}

}  // namespace
}  // namespace kvt::builtin
