// Tests of whole STEP files: header, bodies, what a reader finds in them.
#include "output/step/step_files.hpp"

#include "base/plain_number.hpp"
#include "output/step/step_ports.hpp"
#include "output/step/step_rotors.hpp"
#include "support/expect_failure.hpp"
#include "support/sample_design.hpp"
#include "support/step_reader.hpp"

#include <cmath>
#include <gtest/gtest.h>

namespace kvt {
namespace {

const step_header HEADER = {"C:\\pumps\\oil.stp", "11/03/21", "2021.1.1"};

struct rotor_files : testing::Test {
    design_params design = sample_design();
    rotor_profiles rotors = rotor_pair_of(design);
    text_lines out;

    std::vector<std::string> lines() const { return split_lines(out.bytes()); }
};

void expect_sound(const step_reader& read) {
    EXPECT_TRUE(read.unresolved().empty());
    EXPECT_TRUE(read.edges_not_used_twice().empty());
    EXPECT_EQ(read.spline_problems(), std::vector<std::string>());
}

TEST_F(rotor_files, begin_with_the_header_and_end_with_the_end) {
    write_step_inner_rotor(out, HEADER, design, rotors);
    const std::vector<std::string> written = lines();
    const std::vector<std::string> first(written.begin(), written.begin() + 15);
    const std::vector<std::string> expected = {"ISO-10303-21;",
                                               "HEADER;",
                                               "FILE_DESCRIPTION (( 'STEP AP203' ),",
                                               "    '1' );",
                                               "FILE_NAME ('C:\\pumps\\oil.stp',",
                                               "    '11/03/21',",
                                               "    ( '' ),",
                                               "    ( '' ),",
                                               "    '',",
                                               "    'Kavetta V2021.1.1',",
                                               "    '' );",
                                               "FILE_SCHEMA (( 'CONFIG_CONTROL_DESIGN' ));",
                                               "ENDSEC;",
                                               "",
                                               "DATA;"};
    EXPECT_EQ(first, expected);
    EXPECT_EQ(written.end()[-2], "ENDSEC;");
    EXPECT_EQ(written.end()[-1], "END-ISO-10303-21;");
}

TEST_F(rotor_files, double_apostrophes_and_keep_umlauts_in_the_code_page) {
    write_step_inner_rotor(out, {"d'Ölpumpe.stp", "", "1"}, design, rotors);
    EXPECT_EQ(lines()[4], "FILE_NAME ('d''\xD6lpumpe.stp',");
    EXPECT_EQ(lines()[5], "    '',");
}

TEST_F(rotor_files, hold_the_inner_rotor_as_one_solid) {
    write_step_inner_rotor(out, HEADER, design, rotors);
    const step_reader read(out.bytes());
    expect_sound(read);
    // 90 numbers less the unused 61, and four layers of 3600 points.
    EXPECT_EQ(read.entity_count(), 89U + 4U * 3600U);
    const std::vector<step_solid> solids = read.solids();
    ASSERT_EQ(solids.size(), 1U);
    EXPECT_EQ(solids[0].name, "INNER ROTOR");
    ASSERT_EQ(solids[0].contours.size(), 2U);
    EXPECT_EQ(solids[0].contours[0].z, 0.0);
    EXPECT_EQ(solids[0].contours[1].z, 10.0);
    EXPECT_EQ(solids[0].contours[0].points.size(), 3600U);
    EXPECT_NEAR(signed_area(solids[0].contours[1].points), signed_area(inner_rotor_contour(rotors)),
                1e-9);
}

TEST_F(rotor_files, write_the_corners_of_the_bottom_with_a_long_zero) {
    write_step_inner_rotor(out, HEADER, design, rotors);
    const std::string start =
        plain_number_text(rotors.inner_x[0]) + ", " + plain_number_text(rotors.inner_y[0]);
    EXPECT_EQ(lines()[49],
              "#37 = CARTESIAN_POINT ( 'NONE',  ( " + start + ", 0.0000000000000000000 ) ) ;");
    EXPECT_EQ(lines()[51], "#39 = CARTESIAN_POINT ( 'NONE',  ( " + start + ", 10 ) ) ;");
    EXPECT_EQ(lines()[98], "#91 = CARTESIAN_POINT ( 'NONE',  ( " + start + ", 0 ) ) ;");
}

TEST_F(rotor_files, hold_the_outer_rotor_about_its_own_centre) {
    write_step_outer_rotor(out, HEADER, design, rotors);
    const step_reader read(out.bytes());
    expect_sound(read);
    // Numbers 1 to 157 and four layers of 500 points a lobe.
    EXPECT_EQ(read.entity_count(), 157U + 4U * 3500U);
    const std::vector<step_solid> solids = read.solids();
    ASSERT_EQ(solids.size(), 1U);
    EXPECT_EQ(solids[0].name, "Outer rotor");
    EXPECT_EQ(solids[0].circle_radii, std::vector<double>(4, 26.0));
    EXPECT_EQ(solids[0].contours[0].points.size(), 3500U);
    EXPECT_NE(out.bytes().find("#49 = CARTESIAN_POINT ( 'NONE',  ( -2.85, 0, 10 ) ) ;"),
              std::string::npos);
    EXPECT_NEAR(signed_area(solids[0].contours[0].points), signed_area(outer_rotor_contour(rotors)),
                1e-9);
}

TEST_F(rotor_files, have_all_points_of_an_outer_rotor_without_fillets) {
    design.fillet = 0.0;
    rotors = rotor_pair_of(design);
    write_step_outer_rotor(out, HEADER, design, rotors);
    const step_reader read(out.bytes());
    expect_sound(read);
    EXPECT_EQ(read.solids().at(0).contours.at(1).points.size(), 2100U);  // 300 a lobe
}

TEST_F(rotor_files, turn_their_walls_away_from_the_material) {
    write_step_assembly(out, HEADER, design, rotors);
    const step_reader read(out.bytes());
    EXPECT_EQ(read.wall_sides(), (std::vector<std::string>{"#13 right", "#14 right",
                                                           "#1000026 left", "#1000027 left"}));
    for (const step_solid& solid : read.solids()) {
        EXPECT_GT(signed_area(solid.contours.at(1).points),
                  0.0);  // counter-clockwise: the inside lies to the left
    }
}

TEST_F(rotor_files, hold_two_separate_solids_in_the_assembly) {
    write_step_assembly(out, HEADER, design, rotors);
    const step_reader read(out.bytes());
    expect_sound(read);
    const std::vector<step_solid> solids = read.solids();
    ASSERT_EQ(solids.size(), 2U);
    EXPECT_EQ(solids[0].name, "INNER ROTOR");
    EXPECT_EQ(solids[1].name, "Outer rotor");
    EXPECT_NE(
        out.bytes().find(
            "#1000021 = CLOSED_SHELL ( 'NONE', ( #1000022, #1000023, #1000024, #1000025, #1000026, "
            "#1000027 ) ) ;\r\n"),
        std::string::npos);
    EXPECT_NE(out.bytes().find("\r\n#1000158 = CARTESIAN_POINT"), std::string::npos);
    EXPECT_EQ(read.entity_count(), 89U + 4U * 3600U + 157U + 4U * 3500U);
}

TEST_F(rotor_files, never_write_an_exponent) {
    design.thick = 1e-5;
    write_step_inner_rotor(out, HEADER, design, rotors);
    EXPECT_NE(out.bytes().find("#38 = VECTOR ( 'NONE', #44, 0.00001 ) ;"), std::string::npos);
    std::size_t exponents = 0;
    for (std::size_t at = out.bytes().find("E-"); at != std::string::npos;
         at = out.bytes().find("E-", at + 1)) {
        ++exponents;
    }
    EXPECT_EQ(exponents, 1U);  // the template's own uncertainty
}

TEST_F(rotor_files, end_where_a_profile_is_missing_and_keep_the_lines_before_it) {
    rotors = prepared_rotors(design);
    EXPECT_FAILURE(write_step_outer_rotor(out, HEADER, design, rotors),
                   failure::subscript_out_of_range);
    EXPECT_EQ(lines().back(), "DATA;");
}

TEST(rotors_never_calculated, leave_the_file_at_its_header) {
    text_lines out;
    EXPECT_FAILURE(write_step_inner_rotor(out, HEADER, {}, {}), failure::subscript_out_of_range);
    EXPECT_EQ(split_lines(out.bytes()).back(), "DATA;");
    EXPECT_FAILURE(write_step_outer_rotor(out, HEADER, {}, {}), failure::subscript_out_of_range);
}

}  // namespace
}  // namespace kvt
