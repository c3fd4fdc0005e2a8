// Tests of the meshes: every edge twice, once in each direction, and the volume of the contours.
#include "exact/section_mesh.hpp"

#include "exact/exact_designs.hpp"
#include "exact/pump_contours.hpp"
#include "support/cnc_design.hpp"
#include "support/random_design.hpp"
#include "support/undercut_design.hpp"

#include <cmath>
#include <gtest/gtest.h>
#include <map>
#include <utility>

namespace kvt {
namespace {

constexpr double ERROR_MM = 0.005;

void expect_watertight(const body_mesh& mesh) {
    std::map<std::pair<std::uint32_t, std::uint32_t>, int> sides;
    for (const auto& [a, b, c] : mesh.triangles) {
        ++sides[{a, b}];
        ++sides[{b, c}];
        ++sides[{c, a}];
    }
    for (const auto& [side, count] : sides) {
        ASSERT_EQ(count, 1);
        const auto back = sides.find({side.second, side.first});
        ASSERT_TRUE(back != sides.end());
    }
}

double volume_of(const body_mesh& mesh) {
    double volume = 0.0;
    for (const auto& [i, j, k] : mesh.triangles) {
        const point3 &a = mesh.points[i], &b = mesh.points[j], &c = mesh.points[k];
        volume += (a.x * (b.y * c.z - b.z * c.y) + a.y * (b.z * c.x - b.x * c.z) +
                   a.z * (b.x * c.y - b.y * c.x)) /
                  6.0;
    }
    return volume;
}

double length_of(const exact_contour& contour) {
    double length = 0.0;
    for (const exact_piece& piece : contour) {
        length += piece.kind == piece_kind::arc ? std::abs(piece.sweep()) * piece.arc.radius
                                                : distance(piece.start, piece.end);
        for (std::size_t i = 0; i < piece.spline.slopes.size(); ++i) {
            length += distance(piece.spline.points[i], piece.spline.points[i == 0 ? 0 : i - 1]);
        }
    }
    return length;
}

/// A contour whose lines lie within the error encloses its area within error times length.
void expect_mesh(const body_mesh& mesh, const pump_body& body) {
    SCOPED_TRACE(std::string(body.name));
    expect_watertight(mesh);
    const double height = body.top - body.bottom;
    const double volume = (enclosed_area(body.outline) + enclosed_area(body.hole)) * height;
    const double miss = ERROR_MM * (length_of(body.outline) + length_of(body.hole)) * height;
    EXPECT_NEAR(volume_of(mesh), volume, miss);
    EXPECT_GT(volume_of(mesh), 0.0);
}

TEST(section_mesh, is_watertight_and_of_the_right_volume_for_random_designs) {
    random_values random;
    for (int i = 0; i < property_count(60); ++i) {
        SCOPED_TRACE(i);
        const program kavetta = random_design(random);
        const design_params& design = kavetta.design_params;
        expect_mesh(inner_rotor_mesh(design, ERROR_MM), inner_rotor_body(design));
        expect_mesh(outer_rotor_mesh(design, ERROR_MM), outer_rotor_body(design));
        for (const pump_body& body : porting_bodies(design, kavetta.port_params, kavetta.entries)) {
            expect_mesh(section_mesh(body, ERROR_MM), body);
        }
    }
}

TEST(section_mesh, of_lobes_of_more_than_half_a_turn_is_watertight) {
    for (const double fillet : {0.8, 0.0}) {
        design_params design = undercut_design(fillet);
        design.maxdiameter = 60.0;
        design.thick = 10.0;
        expect_mesh(outer_rotor_mesh(design, ERROR_MM), outer_rotor_body(design));
    }
}

TEST(section_mesh, has_more_triangles_for_a_smaller_error) {
    const design_params design = pair_design(6, 3.0, 25.0, 9.0, 20.0);
    EXPECT_GT(inner_rotor_mesh(design, 0.0005).triangles.size(),
              2 * inner_rotor_mesh(design, ERROR_MM).triangles.size());
    EXPECT_GT(outer_rotor_mesh(design, 0.0005).triangles.size(),
              2 * outer_rotor_mesh(design, ERROR_MM).triangles.size());
}

}  // namespace
}  // namespace kvt
