// What holds for the STEP and DXF files of every design: random designs, every file written into
// memory and read back.
#include "base/constants.hpp"
#include "core/text_table.hpp"
#include "geometry/outer_flank.hpp"
#include "geometry/outer_path.hpp"
#include "output/step/step_rotors.hpp"
#include "support/cnc_design.hpp"
#include "support/dxf_reader.hpp"
#include "support/random_design.hpp"
#include "support/step_reader.hpp"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <span>

namespace kvt {
namespace {

constexpr int DESIGNS = 60;
/// Coordinates have 15 significant digits.
constexpr double AREA_TOLERANCE = 1e-8;

void expect_sound(const step_reader& read) {
    ASSERT_TRUE(read.unresolved().empty());
    ASSERT_TRUE(read.edges_not_used_twice().empty());
    ASSERT_EQ(read.spline_problems(), std::vector<std::string>());
}

/// A prism of a contour: both its heights, counter-clockwise, with its points and area.
void expect_prism(const step_solid& solid, const std::vector<point2>& contour, double bottom,
                  double top) {
    ASSERT_EQ(solid.contours.size(), 2U) << solid.name;
    EXPECT_NEAR(solid.contours[0].z, bottom, 1e-12) << solid.name;
    EXPECT_NEAR(solid.contours[1].z, top, 1e-12) << solid.name;
    const double area = signed_area(contour);
    EXPECT_GT(area, 0.0) << solid.name;
    for (const step_contour& written : solid.contours) {
        EXPECT_EQ(written.points.size(), contour.size()) << solid.name;
        EXPECT_NEAR(signed_area(written.points), area, AREA_TOLERANCE * area) << solid.name;
    }
}

void expect_inner(const program& kavetta, const step_solid& solid) {
    EXPECT_EQ(solid.name, "INNER ROTOR");
    expect_prism(solid, inner_rotor_contour(kavetta.rotor_profiles), 0.0,
                 kavetta.design_params.thick);
}

void expect_outer(const program& kavetta, const step_solid& solid) {
    const design_params& design = kavetta.design_params;
    EXPECT_EQ(solid.name, "Outer rotor");
    const std::size_t points =
        static_cast<std::size_t>(design.numlobes) * (design.fillet == 0.0 ? 300 : 500);
    EXPECT_EQ(solid.contours.at(0).points.size(), points);
    expect_prism(solid, outer_rotor_contour(kavetta.rotor_profiles), 0.0, design.thick);
    ASSERT_EQ(solid.circle_radii.size(), 4U);
    for (const double radius : solid.circle_radii) {
        EXPECT_NEAR(radius, design.maxdiameter / 2.0, 1e-12 * radius);
    }
    for (const point2& point : solid.contours[0].points) {  // the bore stays within the rim
        ASSERT_LT(std::hypot(point.x + design.ecc, point.y), design.maxdiameter / 2.0);
    }
}

/// The area within a closed outline whichever way it runs.
double outline_area(std::span<const double> x, std::span<const double> y, std::int16_t last) {
    std::vector<point2> points;
    for (std::size_t i = 0; i < static_cast<std::size_t>(last); ++i) {
        points.push_back({x[i], y[i]});
    }
    return std::abs(signed_area(points));
}

void expect_port(const step_solid& solid, double area, double bottom, double top) {
    ASSERT_EQ(solid.contours.size(), 2U);
    EXPECT_NEAR(solid.contours[0].z, bottom, 1e-12);
    EXPECT_NEAR(solid.contours[1].z, top, 1e-12);
    EXPECT_NEAR(signed_area(solid.contours[0].points), area, AREA_TOLERANCE * area);
    EXPECT_NEAR(signed_area(solid.contours[1].points), area, AREA_TOLERANCE * area);
}

void expect_ports(const program& kavetta) {
    const std::string bytes = step_bytes(kavetta, "ports");
    const step_reader read(bytes);
    expect_sound(read);
    const std::vector<step_solid> solids = read.solids();
    const port_params& ports = kavetta.port_params;
    const entries& boxes = kavetta.entries;
    const double thick = kavetta.design_params.thick;
    const double above = kavetta.design_params.axial_clear + thick;
    const double inlet = outline_area(ports.inlet.x, ports.inlet.y, ports.inlet.last);
    const double outlet = outline_area(ports.outlet.x, ports.outlet.y, ports.outlet.last);
    const double inlet_below = boxes.inlet_double_sided == "1" ? thick / 2.0 : thick;
    const double outlet_below = boxes.outlet_double_sided == "1" ? thick / 2.0 : thick;
    const bool shadow = boxes.shadow_ports == "1";
    std::size_t at = 0;
    expect_port(solids.at(at++), inlet, -inlet_below, 0.0);
    expect_port(solids.at(at++), outlet, -outlet_below, 0.0);
    if (shadow || boxes.outlet_double_sided == "1") {
        expect_port(solids.at(at++), outlet, above,
                    above + thick * (boxes.outlet_double_sided == "1" ? 0.5 : 0.2));
    }
    if (shadow || boxes.inlet_double_sided == "1") {
        expect_port(solids.at(at++), inlet, above,
                    above + thick * (boxes.inlet_double_sided == "1" ? 0.5 : 0.2));
    }
    if (boxes.metering_groove == "1") {
        const double groove = outline_area(ports.groove_x, ports.groove_y, ports.groove_last);
        expect_port(solids.at(at++), groove, -ports.groove_depth_mm, 0.0);
    }
    EXPECT_EQ(at, solids.size());
}

void expect_vertices(const dxf_content& read, std::span<const double> x, std::span<const double> y,
                     std::size_t count, double unit) {
    EXPECT_EQ(read.polylines, 1);
    ASSERT_EQ(read.vertices.size(), count + 1);
    EXPECT_EQ(read.vertices.front(), read.vertices.back());
    for (std::size_t i = 0; i < count; ++i) {
        ASSERT_NEAR(read.vertices[i].x * unit, x[i], 0.5e-6 * unit + 1e-9);
        ASSERT_NEAR(read.vertices[i].y * unit, y[i], 0.5e-6 * unit + 1e-9);
    }
}

/// Kept: where the fillet centres lie beyond the lobe centres, the arcs of fillet and lobe don't
/// meet, because the formula of their common point takes its angle at the lobe centre below 90
/// degrees. Profile and path have gaps of their own then, and a hint has told so.
bool has_joined_lobes(const program& kavetta) {
    const design_params& design = kavetta.design_params;
    const bool joined = largest_gap(outer_rotor_path(design)) <= 0.001;
    const std::string told(message_text(message::hint_arcs_apart, ENGLISH));
    EXPECT_EQ(joined, std::ranges::none_of(kavetta.hints, [&told](const hint& row) {
                  return row.text.starts_with(told);
              }));
    EXPECT_TRUE(joined || fillets_stand_beyond_lobes(
                              design, lobe_centre_radius(design, kavetta.rotor_profiles)));
    return joined;
}

/// The outer rotor's drawing has the points of the path that its entries give, whatever they are.
void expect_outer_drawing(const program& kavetta, const dxf_content& read, double unit) {
    const std::vector<point2> points =
        outer_path_points(outer_rotor_path(outer_rotor_entries(kavetta.entries, unit)));
    ASSERT_EQ(read.vertices.size(), points.size());
    for (std::size_t i = 0; i < points.size(); ++i) {
        ASSERT_NEAR(read.vertices[i].x * unit, points[i].x, 0.5e-6 * unit + 1e-9);
        ASSERT_NEAR(read.vertices[i].y * unit, points[i].y, 0.5e-6 * unit + 1e-9);
    }
}

void expect_dxf_files(const program& kavetta) {
    const double unit = kavetta.app_state.drawing_units == INCHES ? MM_PER_INCH : 1.0;
    const rotor_profiles& rotors = kavetta.rotor_profiles;
    const port_params& ports = kavetta.port_params;
    const auto content = [&](const char* file) { return read_dxf(dxf_bytes(kavetta, file)); };
    expect_vertices(content("inner"), rotors.inner_x, rotors.inner_y, 3600, unit);
    // No outline of these designs meets x = 0 exactly.
    const auto count = [](std::int16_t last) { return static_cast<std::size_t>(last) + 1; };
    expect_vertices(content("inlet"), ports.inlet.x, ports.inlet.y, count(ports.inlet.last), unit);
    expect_vertices(content("outlet"), ports.outlet.x, ports.outlet.y, count(ports.outlet.last),
                    unit);
    if (kavetta.entries.metering_groove == "1") {
        expect_vertices(content("groove"), ports.groove_x, ports.groove_y, count(ports.groove_last),
                        unit);
    }
    const dxf_content outer = content("outer");
    const design_params& design = kavetta.design_params;
    const std::size_t lobes = static_cast<std::size_t>(design.numlobes);
    EXPECT_EQ(outer.vertices.size(), 2U + lobes * (design.fillet == 0.0 ? 300 : 320));
    EXPECT_EQ(outer.vertices.front(), outer.vertices.back());
    expect_outer_drawing(kavetta, outer, unit);
    if (has_joined_lobes(kavetta)) {
        // The same curve with 10 chords a fillet: of a half turn's they cut off 10 f^2/2 (s - sin
        // s), s = PI/10.
        const double profile = signed_area(outer_rotor_contour(rotors));
        const double cut =
            2.0 * design.numlobes * 5.0 * design.fillet * design.fillet * (0.314159 - 0.309017);
        EXPECT_NEAR(signed_area(outer.vertices) * unit * unit, profile, 2e-4 * profile + cut);
    }
}

TEST(drawing_files, of_every_design_read_back_to_its_profiles) {
    random_values random;
    const int designs = property_count(DESIGNS);
    for (int tried = 0; tried < designs && !testing::Test::HasFailure(); ++tried) {
        const program kavetta = random_design(random);
        SCOPED_TRACE("design " + std::to_string(tried) + ": N " + kavetta.entries.numlobes +
                     " ecc " + kavetta.entries.ecc + " fillet " + kavetta.entries.fillet);
        const std::string inner = step_bytes(kavetta, "inner");
        const step_reader read_inner(inner);
        expect_sound(read_inner);
        expect_inner(kavetta, read_inner.solids().at(0));
        const std::string outer = step_bytes(kavetta, "outer");
        const step_reader read_outer(outer);
        expect_sound(read_outer);
        expect_outer(kavetta, read_outer.solids().at(0));
        expect_ports(kavetta);
        expect_dxf_files(kavetta);
        if (tried % 10 == 0) {
            const std::string both = step_bytes(kavetta, "assembly");
            const step_reader read_both(both);
            expect_sound(read_both);
            ASSERT_EQ(read_both.solids().size(), 2U);
            expect_inner(kavetta, read_both.solids()[0]);
            expect_outer(kavetta, read_both.solids()[1]);
        }
    }
}

}  // namespace
}  // namespace kvt
