// The outlines and bodies that the CAD packages draw.
#include "cad/model_outlines.hpp"

#include "geometry/circle_arc.hpp"
#include "support/cad/closed_spline.hpp"
#include "support/cnc_design.hpp"
#include "support/sample_design.hpp"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

namespace kvt {
namespace {

constexpr const char* GROOVE_DESIGN = "n07_engine_oil_groove";
constexpr const char* SHARP_DESIGN = "n03_transfer_sharp";

double outline_area(const std::vector<point2>& points) {
    double sum = 0.0;
    point2 before = points.back();
    for (const point2& point : points) {
        sum += before.x * point.y - point.x * before.y;
        before = point;
    }
    return sum / 2.0;
}

/// How far a smooth closed spline through points strays from the lines of an outline, mm.
double swing(const std::vector<point2>& points, const std::vector<point2>& outline) {
    double farthest = 0.0;
    for (const point2& at : closed_spline(points, 2)) {
        double nearest = distance(at, outline.front());
        for (std::size_t i = 0; i < outline.size(); ++i) {
            const point2 end = outline[(i + 1) % outline.size()];
            nearest = std::min(nearest, distance(at, nearest_on_line(outline[i], end, at)));
        }
        farthest = std::max(farthest, nearest);
    }
    return farthest;
}

struct height {
    port_body_kind kind;
    double from_z, to_z;
    bool operator==(const height&) const = default;
};

std::vector<height> heights_of(const program& kavetta) {
    std::vector<height> heights;
    for (const port_body& body :
         port_bodies(kavetta.design_params, kavetta.port_params, kavetta.entries)) {
        heights.push_back({body.kind, body.from_z, body.to_z});
    }
    return heights;
}

program double_sided_design() {
    program kavetta = design_with_ports(GROOVE_DESIGN);
    kavetta.design_params.thick = 10.0;
    kavetta.design_params.axial_clear = 0.5;
    kavetta.port_params.groove_depth_mm = 1.25;
    kavetta.entries.metering_groove = "1";
    kavetta.entries.inlet_double_sided = "0";
    kavetta.entries.outlet_double_sided = "1";
    kavetta.entries.shadow_ports = "0";
    return kavetta;
}

}  // namespace

TEST(model_outlines, have_the_points_that_the_packages_are_told) {
    const program kavetta = design_with_ports(GROOVE_DESIGN);
    const rotor_profiles& rotors = kavetta.rotor_profiles;
    const std::vector<point2> trochoid = trochoid_points(rotors);
    ASSERT_EQ(trochoid.size(), 3601U);
    EXPECT_EQ(trochoid.front(), trochoid.back());
    const std::vector<point2> inner = inner_rotor_points(rotors);
    ASSERT_EQ(inner.size(), 3600U);
    EXPECT_EQ(inner[3599], (point2{rotors.inner_x[3599], rotors.inner_y[3599]}));
    EXPECT_EQ(plotted_inner_points(rotors), inner);
}

TEST(model_outlines, of_the_plotted_inner_rotor_follow_the_drawing_resolution) {
    program kavetta = opened_design(GROOVE_DESIGN);
    scripted_user person;
    kavetta.entries.coarseness = "9";
    calculate_profiles(kavetta, person);
    const std::vector<point2> plotted = plotted_inner_points(kavetta.rotor_profiles);
    ASSERT_EQ(plotted.size(), 400U);
    const std::vector<point2> inner = inner_rotor_points(kavetta.rotor_profiles);
    EXPECT_EQ(plotted.front(), inner[8]);
    EXPECT_EQ(plotted.back(), inner[3599]);
}

TEST(model_outlines, of_the_outer_rotor_stand_beside_the_inner_and_close_by_themselves) {
    design_params design = sample_design();
    const std::vector<point2> rounded = outer_rotor_points(design);
    EXPECT_EQ(rounded.size(), 320U * 7U);
    double longest = 0.0;
    for (const point2& point : rounded) {
        longest = std::max(longest, std::hypot(point.x + 2.85, point.y));
    }
    EXPECT_NEAR(longest, 22.9, 1e-9);
    EXPECT_GT(distance(rounded.back(), rounded.front()), 0.001);
    design.fillet = 0.0;
    EXPECT_EQ(outer_rotor_points(design).size(), 300U * 7U);
}

TEST(model_outlines, read_the_boxes_in_their_unit) {
    entries boxes = sample_entries();
    boxes.thick = "10";
    boxes.maxdiameter = "52";
    const design_params design = rotor_model_entries(boxes, length_unit_of(INCHES));
    EXPECT_EQ(design.thick, 254.0);
    EXPECT_EQ(design.maxdiameter, 52.0 * 25.4);
    EXPECT_EQ(design.ecc, 2.85 * 25.4);
    EXPECT_EQ(rotor_model_entries(boxes, length_unit_of(MILLIMETRES)).thick, 10.0);
}

TEST(port_bodies, are_those_of_the_table) {
    using enum port_body_kind;
    const program kavetta = double_sided_design();
    EXPECT_EQ(heights_of(kavetta), (std::vector<height>{{inlet_lower, -10.0, 0.0},
                                                        {outlet_lower, -5.0, 0.0},
                                                        {groove, -1.25, 0.0},
                                                        {outlet_upper, 10.5, 15.5}}));
}

TEST(port_bodies, stand_as_shadow_ports_where_they_are_not_double_sided) {
    using enum port_body_kind;
    program kavetta = double_sided_design();
    kavetta.entries.shadow_ports = "1";
    kavetta.entries.metering_groove = "0";
    EXPECT_EQ(heights_of(kavetta), (std::vector<height>{{inlet_lower, -10.0, 0.0},
                                                        {outlet_lower, -5.0, 0.0},
                                                        {outlet_upper, 10.5, 15.5},
                                                        {inlet_upper, 10.5, 12.5}}));
}

TEST(port_bodies, are_left_out_where_an_outline_is_missing) {
    using enum port_body_kind;
    program kavetta = double_sided_design();
    kavetta.port_params.inlet.last = 0;
    kavetta.port_params.groove_last = 0;
    EXPECT_EQ(heights_of(kavetta),
              (std::vector<height>{{outlet_lower, -5.0, 0.0}, {outlet_upper, 10.5, 15.5}}));
    kavetta.port_params.outlet.last = 0;
    EXPECT_TRUE(heights_of(kavetta).empty());
}

TEST(port_bodies, of_a_port_share_its_outline_without_the_closing_point) {
    const program kavetta = double_sided_design();
    const std::vector<port_body> bodies =
        port_bodies(kavetta.design_params, kavetta.port_params, kavetta.entries);
    ASSERT_EQ(bodies.size(), 4U);
    const auto last = static_cast<std::size_t>(kavetta.port_params.outlet.last);
    EXPECT_EQ(bodies[1].outline.size(), last);
    EXPECT_EQ(bodies[3].outline, bodies[1].outline);
    EXPECT_EQ(bodies[3].place, port_body_place::above_double_sided);
}

// A rectangle of 40 by 1 with points every millimetre but on one long side: 43 lines of 121/43...
// mm.
TEST(closed_spline_points, divide_long_lines_and_stand_close_to_corners) {
    std::vector<point2> outline = {{0.0, 0.0}, {40.0, 0.0}, {40.0, 1.0}};
    for (int x = 39; x >= 0; --x) {
        outline.push_back({1.0 * x, 1.0});
    }
    // 43 lines, 82 mm: a = 82 / 43 / 2, and the long line is 40 / a = 41.95 of it.
    const std::vector<point2> points = closed_spline_points(outline);
    // Each of the four corners has three points more on both its lines.
    ASSERT_EQ(points.size(), 43U + 41U + 4U * 6U);
    EXPECT_EQ(points[0], (point2{0.0, 0.0}));
    const double part = 40.0 / 42.0;
    EXPECT_NEAR(points[1].x, 0.02 * part, 1e-12);
    EXPECT_NEAR(points[2].x, 0.1 * part, 1e-12);
    EXPECT_NEAR(points[3].x, 0.4 * part, 1e-12);
    EXPECT_NEAR(points[4].x, part, 1e-12);
    EXPECT_NEAR(outline_area(points), 40.0, 1e-12);
}

TEST(closed_spline_points, leave_out_what_repeats_and_what_encloses_nothing) {
    const std::vector<point2> line = {{0.0, 0.0}, {1.0, 0.0}};
    EXPECT_EQ(closed_spline_points(line), line);
    const std::vector<point2> square = {{0, 0}, {1, 0}, {1, 0}, {1, 1}, {0, 1}, {0, 0}};
    // 4 lines of 1, a = 1/2, none longer than 3/2.
    EXPECT_EQ(closed_spline_points(square).size(), 4U + 4U * 6U);
}

TEST(closed_spline_points, keep_the_area_of_every_outline) {
    const program kavetta = double_sided_design();
    for (const port_body& body :
         port_bodies(kavetta.design_params, kavetta.port_params, kavetta.entries)) {
        const double area = outline_area(body.outline);
        EXPECT_NEAR(outline_area(closed_spline_points(body.outline)), area, 1e-12 * std::abs(area));
    }
}

// The lines of an outline stand for its arcs, so the spline has a right to their 0.0005 mm.
TEST(closed_spline_points, keep_a_smooth_spline_on_the_outline) {
    const program rounded = design_with_ports(GROOVE_DESIGN),
                  sharp = design_with_ports(SHARP_DESIGN);
    for (const program* made : {&rounded, &sharp}) {
        for (const port_body& body :
             port_bodies(made->design_params, made->port_params, made->entries)) {
            if (body.is_lower()) {
                EXPECT_LT(swing(closed_spline_points(body.outline), body.outline), 0.001)
                    << static_cast<int>(body.kind);
            }
        }
    }
    const std::vector<point2> rotor = outer_rotor_points(sharp.design_params);
    EXPECT_LT(swing(closed_spline_points(rotor), rotor), 0.001);
}

TEST(closed_spline_points, are_needed_by_the_groove) {
    const program kavetta = design_with_ports(GROOVE_DESIGN);
    const std::vector<port_body> bodies =
        port_bodies(kavetta.design_params, kavetta.port_params, kavetta.entries);
    ASSERT_EQ(bodies.at(2).kind, port_body_kind::groove);
    EXPECT_GT(swing(bodies[2].outline, bodies[2].outline), 0.1);
}

TEST(drawing_length, is_in_the_unit_of_the_project) {
    EXPECT_EQ(drawing_length(50.8, length_unit_of(INCHES)), 2.0);
    EXPECT_EQ(drawing_length(50.8, length_unit_of(MILLIMETRES)), 50.8);
    EXPECT_EQ(flat_coordinates({{10.0, 20.0}}, 10.0), (std::vector<double>{1.0, 2.0}));
}

}  // namespace kvt
