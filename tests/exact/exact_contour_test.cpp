// Tests of the exact contours: closed, smooth, of the right size, near the product's own points.
#include "exact/exact_contour.hpp"

#include "exact/exact_designs.hpp"
#include "exact/plane.hpp"
#include "geometry/circle_arc.hpp"
#include "support/cnc_design.hpp"
#include "support/random_design.hpp"
#include "support/undercut_design.hpp"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

namespace kvt {
namespace {

constexpr double PI = std::numbers::pi;

void expect_closed(const exact_contour& contour) {
    ASSERT_GE(contour.size(), 2U);
    for (std::size_t i = 0; i < contour.size(); ++i) {
        const exact_piece& piece = contour[i];
        ASSERT_LT(distance(piece.end, contour[(i + 1) % contour.size()].start), 1e-9) << i;
        if (piece.kind == piece_kind::arc) {
            ASSERT_LT(distance(piece.arc.at(piece.arc.from), piece.start), 1e-8) << i;
            ASSERT_LT(distance(piece.arc.at(piece.arc.to), piece.end), 1e-8) << i;
        }
    }
}

/// The distance of a point from the nearest piece; of arcs and lines.
double distance_to(const exact_contour& contour, const point2& point) {
    double least = 1e9;
    for (const exact_piece& piece : contour) {
        least = std::min({least, distance(point, piece.start), distance(point, piece.end)});
        if (piece.kind == piece_kind::line) {
            least =
                std::min(least, distance(point, nearest_on_line(piece.start, piece.end, point)));
        } else {
            const circle_arc arc{piece.arc.centre, piece.arc.radius, piece.arc.from, piece.sweep()};
            least = std::min(least, distance(point, nearest_on(arc, point)));
        }
    }
    return least;
}

TEST(exact_contour, knows_the_area_within) {
    const exact_contour half_disc = {arc_piece({{1.0, 2.0}, 3.0, 0.0, PI}),
                                     line_piece({-2.0, 2.0}, {4.0, 2.0})};
    EXPECT_NEAR(enclosed_area(half_disc), 4.5 * PI, 1e-12);
    EXPECT_NEAR(enclosed_area(reversed_contour(half_disc)), -4.5 * PI, 1e-12);
}

TEST(exact_contour, of_the_outer_rotor_has_four_arcs_a_lobe_and_no_kinks) {
    const design_params design = pair_design(6, 3.0, 25.0, 9.0, 20.0);
    const exact_contour contour = outer_rotor_arcs(design);
    ASSERT_EQ(contour.size(), 24U);
    expect_closed(contour);
    for (std::size_t i = 0; i < contour.size(); ++i) {
        const auto direction = [](const exact_piece& piece, double angle) {
            const double side = piece.sweep() > 0.0 ? 1.0 : -1.0;
            return point2{-side * std::sin(angle), side * std::cos(angle)};
        };
        const exact_piece& next = contour[(i + 1) % contour.size()];
        EXPECT_LT(std::abs(cross(direction(contour[i], contour[i].arc.to),
                                 direction(next, next.arc.from))),
                  1e-7);
    }
    EXPECT_GT(enclosed_area(contour), 0.0);
}

TEST(exact_contour, of_the_outer_rotor_without_fillets_has_two_arcs_a_lobe) {
    design_params design = pair_design(6, 3.0, 25.0, 9.0, 20.0);
    design.fillet = 0.0;
    EXPECT_EQ(outer_rotor_arcs(design).size(), 12U);
    expect_closed(outer_rotor_arcs(design));
}

TEST(exact_contour, of_the_outer_rotor_lies_on_the_points_of_the_product) {
    for (const char* name : {"n03_transfer_sharp", "n04_fuel", "n09_crank_oil"}) {
        const program kavetta = design_with_ports(name);
        const exact_contour contour = outer_rotor_arcs(kavetta.design_params);
        for (std::size_t i = 0; i < static_cast<std::size_t>(kavetta.rotor_profiles.outer_last);
             i += 5) {
            ASSERT_LT(distance_to(contour, {kavetta.rotor_profiles.outer_x[i],
                                            kavetta.rotor_profiles.outer_y[i]}),
                      2e-5)
                << name << " " << i;
        }
    }
}

TEST(exact_contour, of_lobes_of_more_than_half_a_turn_is_closed) {
    const exact_contour contour = outer_rotor_arcs(undercut_design());
    expect_closed(contour);
    EXPECT_TRUE(std::ranges::any_of(
        contour, [](const exact_piece& piece) { return std::abs(piece.sweep()) > PI; }));
}

/// The outline of a port lies within its steps of half a degree.
void expect_outline(const exact_contour& contour, std::span<const double> x,
                    std::span<const double> y, std::int16_t last, double tolerance) {
    expect_closed(contour);
    EXPECT_GT(enclosed_area(contour), 0.0);
    for (std::size_t i = 0; i < static_cast<std::size_t>(last); ++i) {
        ASSERT_LT(distance_to(contour, {x[i], y[i]}), tolerance) << i;
    }
}

/// Of an outline: fillets begin where the corner search stopped, which is not where the angles of
/// the corners say.
constexpr double SEARCH_MM = 0.02;

TEST(exact_contour, of_ports_and_groove_lies_on_the_points_of_the_product) {
    random_values random;
    for (int i = 0; i < property_count(60); ++i) {
        SCOPED_TRACE(i);
        const program kavetta = random_design(random);
        const port_params& ports = kavetta.port_params;
        expect_outline(port_arcs(ports.inlet.built, true), ports.inlet.x, ports.inlet.y,
                       ports.inlet.last, SEARCH_MM);
        expect_outline(port_arcs(ports.outlet.built, false), ports.outlet.x, ports.outlet.y,
                       ports.outlet.last, SEARCH_MM);
        if (ports.has_groove) {
            expect_outline(groove_arcs(ports.groove_built), ports.groove_x, ports.groove_y,
                           ports.groove_last, SEARCH_MM);
        }
    }
}

TEST(exact_contour, of_a_sharp_port_has_four_pieces) {
    const program kavetta = design_with_ports("n03_transfer_sharp");
    EXPECT_EQ(port_arcs(kavetta.port_params.inlet.built, true).size(), 4U);
    EXPECT_LT(port_arcs(kavetta.port_params.inlet.built, true).front().start.y, 0.0);
    EXPECT_GT(port_arcs(kavetta.port_params.outlet.built, false).front().start.y, 0.0);
}

}  // namespace
}  // namespace kvt
