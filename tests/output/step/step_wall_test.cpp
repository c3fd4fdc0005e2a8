// Tests of the side wall of a STEP body: control points, curves, surfaces, knots of a small
// contour.
#include "output/step/step_wall.hpp"

#include "base/text_file.hpp"
#include "support/expect_failure.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

/// Seven corners; the numbers tell them apart.
std::vector<point2> seven_points() {
    return {{10.0, 0.0},  {6.0, 8.0},   {0.5, 9.0},     {-7.0, 5.0},
            {-9.0, -1.0}, {-3.0, -8.0}, {5.0, -0.00001}};
}

std::vector<std::string> lines_of(const text_lines& text) {
    return split_lines(text.bytes());
}

TEST(step_wall, numbers_its_points_layer_by_layer_from_the_bottom) {
    text_lines out;
    step_wall wall(out, seven_points(), -2.0, 3.0, 91, 1000000);
    wall.write_points();
    const std::vector<std::string> lines = lines_of(out);
    ASSERT_EQ(lines.size(), 28U);
    EXPECT_EQ(lines[0], "#1000091 = CARTESIAN_POINT ( 'NONE',  ( 10, 0, -2 ) ) ;");
    EXPECT_EQ(lines[7], "#1000098 = CARTESIAN_POINT ( 'NONE',  ( 10, 0, -1 ) ) ;");
    EXPECT_EQ(lines[14], "#1000105 = CARTESIAN_POINT ( 'NONE',  ( 10, 0, 0 ) ) ;");
    EXPECT_EQ(lines[27], "#1000118 = CARTESIAN_POINT ( 'NONE',  ( 5, -0.00001, 1 ) ) ;");
}

TEST(step_wall, refuses_a_contour_that_is_too_small_for_a_cubic) {
    text_lines out;
    std::vector<point2> points = seven_points();
    points.resize(SMALLEST_CONTOUR - 1);
    EXPECT_FAILURE(step_wall(out, points, 0.0, 1.0, 91, 0), failure::subscript_out_of_range);
}

TEST(step_wall, divides_the_height_in_thirds) {
    text_lines out;
    step_wall wall(out, seven_points(), 0.0, 10.0, 91, 0);
    wall.write_points();
    const std::vector<std::string> lines = lines_of(out);
    EXPECT_EQ(lines[0], "#91 = CARTESIAN_POINT ( 'NONE',  ( 10, 0, 0 ) ) ;");
    EXPECT_EQ(lines[7], "#98 = CARTESIAN_POINT ( 'NONE',  ( 10, 0, 3.33333333333333 ) ) ;");
    EXPECT_EQ(lines[14], "#105 = CARTESIAN_POINT ( 'NONE',  ( 10, 0, 6.66666666666667 ) ) ;");
}

TEST(step_wall, cuts_an_odd_contour_at_the_lower_middle) {
    text_lines out;
    step_wall wall(out, seven_points(), 0.0, 1.0, 91, 0);
    EXPECT_EQ(wall.start(), "10, 0");
    EXPECT_EQ(wall.middle(), "-7, 5");
    // Points 0 to 3: four control points, no inner knot, knots 0.5 and 0.5 + 1/7.
    wall.write_curve(33, wall_half::first, 0);
    // Points 3 to 7, which is 0: five control points, knots 0, 1/7, 2/7; layer 3 begins at 91 + 3
    // * 7.
    wall.write_curve(55, wall_half::second, 3);
    EXPECT_EQ(lines_of(out)[0],
              "#33 = B_SPLINE_CURVE_WITH_KNOTS ( 'NONE', 3, ( #91, #92, #93, #94 ), .UNSPECIFIED., "
              ".F., .F., ( 4, 4 ), "
              "( 0.5, 0.642857142857143), .UNSPECIFIED. ) ;");
    EXPECT_EQ(lines_of(out)[1],
              "#55 = B_SPLINE_CURVE_WITH_KNOTS ( 'NONE', 3, ( #115, #116, #117, #118, #112 ), "
              ".UNSPECIFIED., .F., .F., "
              "( 4, 1, 4 ), ( 0, 0.142857142857143, 0.285714285714286), .UNSPECIFIED. ) ;");
}

TEST(step_wall, writes_a_surface_with_a_row_for_each_point_of_a_half) {
    text_lines out;
    step_wall wall(out, seven_points(), 0.0, 1.0, 91, 0);
    wall.write_surface(47, wall_half::second);
    EXPECT_EQ(out.bytes(),
              "#47 = B_SPLINE_SURFACE_WITH_KNOTS ( 'NONE', 3, 3, (\r\n"
              " ( #115, #108, #101, #94 ),\r\n"
              " ( #116, #109, #102, #95 ),\r\n"
              " ( #117, #110, #103, #96 ),\r\n"
              " ( #118, #111, #104, #97 ),\r\n"
              " ( #112, #105, #98, #91 ) ),\r\n"
              " .UNSPECIFIED., .F., .F., .F.,\r\n"
              " ( 4, 1, 4 ),\r\n"
              " ( 4, 4 ),\r\n"
              " ( 0, 0.142857142857143, 0.285714285714286),\r\n"
              " ( 0, 1 ),\r\n"
              " .UNSPECIFIED. ) ;\r\n");
}

}  // namespace
}  // namespace kvt
