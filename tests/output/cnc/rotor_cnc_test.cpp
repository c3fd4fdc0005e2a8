// The CNC files of the rotors: counts, directions, and what a failure leaves.
#include "output/cnc/rotor_cnc.hpp"

#include "support/cnc_reader.hpp"
#include "support/expect_failure.hpp"
#include "support/sample_design.hpp"

#include <gtest/gtest.h>

namespace kvt {

namespace {

struct rotor_files {
    design_params design = sample_design();
    rotor_profiles rotors = inner_rotor_of(design);
    port_params ports;
    perf_results results;
    entries boxes = sample_entries();
    cnc_choices choices{.cnc_res_digits = 3, .tool_diameter = 2.0};
    std::int16_t unit = MILLIMETRES;

    std::string bytes(void (*write)(const file_source&, text_lines&)) const {
        text_lines text;
        write(
            {design, rotors, ports, results, boxes, choices, "pump", ENGLISH, length_unit_of(unit)},
            text);
        return text.bytes();
    }
    std::vector<cnc_move> moves(void (*write)(const file_source&, text_lines&)) const {
        return cnc_reader(bytes(write), choices.cnc_res_digits).sections().at(0).moves;
    }
};

}  // namespace

TEST(rotor_cnc, has_3601_lines_for_the_inner_rotor) {
    const rotor_files files;
    for (const auto write :
         {write_inner_xy, write_inner_offset, write_inner_offset_checked, write_inner_lathe}) {
        const std::vector<cnc_move> moves = files.moves(write);
        ASSERT_EQ(moves.size(), 3601U);
        EXPECT_EQ(moves.front().end, moves.back().end);
    }
}

TEST(rotor_cnc, turns_the_points_of_the_inner_rotor_clockwise) {
    rotor_files files;
    files.rotors.inner_y[10] = 0.0;
    for (const auto write : {write_inner_xy, write_inner_offset, write_inner_offset_checked}) {
        files.choices.Opp_Plot = false;
        const std::vector<cnc_move> moves = files.moves(write);
        files.choices.Opp_Plot = true;
        const std::vector<cnc_move> turned = files.moves(write);
        for (std::size_t i = 0; i < moves.size(); i += 11) {
            EXPECT_EQ(turned[i].end.x, moves[i].end.x);
            EXPECT_EQ(turned[i].end.y, moves[i].end.y == 0.0 ? 0.0 : -moves[i].end.y);
        }
    }
    EXPECT_EQ(files.bytes(write_inner_xy).find("Y-0.000\r\n"), std::string::npos);
}

TEST(rotor_cnc, turns_no_other_file) {
    rotor_files files;
    for (const auto write : {write_inner_lathe, write_outer_xy, write_outer_offset,
                             write_outer_gcode, write_outer_lathe}) {
        files.choices.Opp_Plot = false;
        const std::string bytes = files.bytes(write);
        files.choices.Opp_Plot = true;
        EXPECT_EQ(files.bytes(write), bytes);
    }
}

TEST(rotor_cnc, has_two_arcs_a_lobe_fewer_without_fillets) {
    rotor_files files;
    EXPECT_EQ(files.moves(write_outer_gcode).size(), 2U + 4U * 7U + 1U);
    EXPECT_EQ(files.moves(write_outer_xy).size(), 1U + 320U * 7U + 1U);
    files.boxes.fillet = "0";
    EXPECT_EQ(files.moves(write_outer_gcode).size(), 2U + 2U * 7U + 1U);
    EXPECT_EQ(files.moves(write_outer_xy).size(), 1U + 300U * 7U + 1U);
    EXPECT_EQ(files.moves(write_outer_lathe).size(), 1U + 300U * 7U + 1U);
}

TEST(rotor_cnc, walks_the_same_way_in_codes_and_in_points) {
    const rotor_files files;
    std::vector<cnc_move> gcode = files.moves(write_outer_gcode);
    gcode.pop_back();
    const std::vector<point2> path = swept_path({gcode.begin() + 2, gcode.end()}, gcode[1].end);
    std::vector<point2> points;
    for (const cnc_move& move : files.moves(write_outer_xy)) {
        points.push_back(move.end);
    }
    EXPECT_LT(largest_distance(points, path, 9),
              0.0015);  // half a unit of the last decimal in both files
}

TEST(rotor_cnc, ends_the_codes_with_four_decimals_always) {
    rotor_files files;
    files.choices.cnc_res_digits = 6;
    files.unit = INCHES;
    const std::string bytes = files.bytes(write_outer_gcode);
    EXPECT_TRUE(bytes.ends_with("\r\nG01X0.0000Y0.0000\r\n"));
    // The entries are inches: the radius of the lobes comes out as it was typed.
    EXPECT_NE(bytes.find("R7.500000\r\n"), std::string::npos);
    EXPECT_NE(bytes.find("X0.000000Y0.000000\r\nG01X"), std::string::npos);
}

TEST(rotor_cnc, keeps_the_cutter_away_from_the_outer_rotor) {
    const rotor_files files;
    const std::vector<cnc_move> rotor = files.moves(write_outer_xy);
    const std::vector<cnc_move> cutter = files.moves(write_outer_offset);
    ASSERT_EQ(cutter.size(), rotor.size());
    std::vector<point2> path;
    for (const cnc_move& move : rotor) {
        path.push_back(move.end);
    }
    for (std::size_t i = 0; i < cutter.size(); i += 29) {
        // The chords of a fillet in ten steps leave up to 0.005 mm.
        EXPECT_NEAR(distance_from_path(cutter[i].end, path), 1.0, 0.006) << i;
        EXPECT_LT(std::hypot(cutter[i].end.x, cutter[i].end.y), 22.0);
    }
}

TEST(rotor_cnc, leaves_what_it_wrote_until_a_failure) {
    rotor_files files;
    files.rotors.inner_x[2] = 0.0;
    text_lines text;
    const file_source source{files.design, files.rotors,  files.ports, files.results,
                             files.boxes,  files.choices, "pump"};
    EXPECT_FAILURE(write_inner_lathe(source, text), failure::division_by_zero);
    const std::vector<cnc_section> sections = cnc_reader(text.bytes(), 3).sections();
    ASSERT_EQ(sections.size(), 1U);
    EXPECT_EQ(sections[0].comments.size(), 6U);
    EXPECT_EQ(sections[0].moves.size(), 2U);
}

}  // namespace kvt
