// Tests of the path data: numbers, lines, arcs in parts, splines.
#include "output/svg/svg_path.hpp"

#include <gtest/gtest.h>
#include <numbers>

namespace kvt {
namespace {

TEST(svg_path, has_short_numbers) {
    EXPECT_EQ(svg_number(12.5), "12.5");
    EXPECT_EQ(svg_number(-3.0), "-3");
    EXPECT_EQ(svg_number(100.0), "100");
    EXPECT_EQ(svg_number(-1e-9), "0");
    EXPECT_EQ(svg_number(0.1234567), "0.123457");
}

TEST(svg_path, of_a_half_disc_has_two_parts_of_an_arc_and_a_line) {
    const exact_contour contour = {arc_piece({{0.0, 0.0}, 2.0, 0.0, std::numbers::pi}),
                                   line_piece({-2.0, 0.0}, {2.0, 0.0})};
    EXPECT_EQ(svg_path(contour), "M2,0A2,2 0 0 0 0,-2A2,2 0 0 0 -2,0L2,0Z");
    EXPECT_EQ(svg_path(reversed_contour(contour)), "M2,0L-2,0A2,2 0 0 1 0,-2A2,2 0 0 1 2,0Z");
}

TEST(svg_path, of_a_spline_has_its_curves) {
    exact_piece piece;
    piece.kind = piece_kind::spline;
    piece.spline = {{0.0, 3.0}, {{0.0, 0.0}, {3.0, 0.0}}, {{1.0, 1.0}, {1.0, -1.0}}};
    piece.end = {3.0, 0.0};
    EXPECT_EQ(svg_path({piece}), "M0,0C1,-1 2,-1 3,0Z");
}

}  // namespace
}  // namespace kvt
