// Tests of the DXF files: their lines, their vertices, their numbers in millimetres and inches.
#include "output/dxf/dxf_files.hpp"

#include "support/dxf_reader.hpp"
#include "support/expect_failure.hpp"
#include "support/sample_design.hpp"

#include <cmath>
#include <gtest/gtest.h>

namespace kvt {
namespace {

const length_unit& MM = length_unit_of(MILLIMETRES);
const length_unit& IN = length_unit_of(INCHES);

TEST(dxf, is_written_line_by_line) {
    port_params ports;
    ports.inlet.x[0] = 1.5;
    ports.inlet.y[0] = -2.25;
    text_lines out;
    write_dxf_inlet_port(out, ports, MM);
    const std::string layer_end = "\r\n 70\r\n64\r\n 62\r\n30\r\n 6\r\nCONTINUOUS\r\n";
    const std::string vertex =
        "VERTEX\r\n 8\r\nLINELAYER\r\n 10\r\n1.500000\r\n 20\r\n-2.250000\r\n 30\r\n0.000000\r\n "
        "0\r\n";
    EXPECT_EQ(out.bytes(),
              " 0\r\nSECTION\r\n 2\r\nHEADER\r\n 0\r\nENDSEC\r\n"
              " 0\r\nSECTION\r\n 2\r\nTABLES\r\n 0\r\nTABLE\r\n 2\r\nLAYER\r\n 70\r\n6\r\n"
              " 0\r\nLAYER\r\n 2\r\n0\r\n 70\r\n64\r\n 62\r\n7\r\n 6\r\nCONTINUOUS\r\n"
              " 0\r\nLAYER\r\n 2\r\nPOINTLAYER" +
                  layer_end + " 0\r\nLAYER\r\n 2\r\nLINELAYER" + layer_end +
                  " 0\r\nLAYER\r\n 2\r\nCODELAYER" + layer_end + " 0\r\nLAYER\r\n 2\r\nDESCSLAYER" +
                  layer_end + " 0\r\nLAYER\r\n 2\r\nCOORDSLAYER" + layer_end +
                  " 0\r\nENDTAB\r\n 0\r\nENDSEC\r\n"
                  " 0\r\nSECTION\r\n 2\r\nBLOCKS\r\n 0\r\nENDSEC\r\n"
                  " 0\r\nSECTION\r\n 2\r\nENTITIES\r\n"
                  " 0\r\nPOLYLINE\r\n 8\r\nLINELAYER\r\n 70\r\n0\r\n 66\r\n1\r\n"
                  " 10\r\n0.000000\r\n 20\r\n0.000000\r\n 30\r\n0.000000\r\n 0\r\n" +
                  vertex + vertex + "SEQEND\r\n 0\r\nENDSEC\r\n 0\r\nEOF\r\n");
}

TEST(dxf_of_the_inner_rotor, repeats_its_first_point_at_the_end) {
    const rotor_profiles rotors = inner_rotor_of(sample_design());
    text_lines out;
    write_dxf_inner_rotor(out, rotors, MM);
    const dxf_content read = read_dxf(out.bytes());
    EXPECT_EQ(read.sections, (std::vector<std::string>{"HEADER", "TABLES", "BLOCKS", "ENTITIES"}));
    EXPECT_EQ(read.polylines, 1);
    ASSERT_EQ(read.vertices.size(), 3601U);
    EXPECT_EQ(read.vertices.front(), read.vertices.back());
    for (std::size_t i = 0; i < 3600; ++i) {
        ASSERT_NEAR(read.vertices[i].x, rotors.inner_x[i], 0.5e-6 + 1e-12);
        ASSERT_NEAR(read.vertices[i].y, rotors.inner_y[i], 0.5e-6 + 1e-12);
    }
}

TEST(dxf_of_the_inner_rotor, is_divided_before_it_is_rounded_in_inches) {
    rotor_profiles rotors;
    rotors.profile_points = 1.0;
    rotors.inner_x[0] = 25.4;
    rotors.inner_y[0] = -10.0;
    text_lines out;
    write_dxf_inner_rotor(out, rotors, IN);
    EXPECT_EQ(read_dxf(out.bytes()).number_texts,
              (std::vector<std::string>{"1.000000", "-0.393701", "1.000000", "-0.393701"}));
}

TEST(dxf_of_the_outer_rotor, is_about_its_own_centre_in_the_numbers_of_the_boxes) {
    entries boxes = sample_entries();
    text_lines out;
    write_dxf_outer_rotor(out, boxes);
    const dxf_content read = read_dxf(out.bytes());
    ASSERT_EQ(read.vertices.size(), 1U + 7U * 320U + 1U);
    EXPECT_EQ(read.vertices.front(), read.vertices.back());
    for (const point2& point : read.vertices) {
        const double radius = std::hypot(point.x, point.y);
        ASSERT_GT(radius, 24.5 - 7.5 - 1e-5);  // the lobes' tips
        ASSERT_LT(radius, 22.9 + 1e-5);        // the root
    }
}

TEST(dxf_of_the_outer_rotor, has_fewer_points_without_fillets) {
    entries boxes = sample_entries();
    boxes.fillet = "0";
    text_lines out;
    write_dxf_outer_rotor(out, boxes);
    EXPECT_EQ(read_dxf(out.bytes()).vertices.size(), 1U + 7U * 300U + 1U);
}

TEST(dxf_of_the_outer_rotor, ends_behind_its_head_for_boxes_that_make_no_rotor) {
    entries boxes = sample_entries();
    boxes.outer_root = "80";
    text_lines out;
    EXPECT_FAILURE(write_dxf_outer_rotor(out, boxes), failure::invalid_procedure_call);
    EXPECT_TRUE(out.bytes().ends_with("0.000000\r\n 0\r\n"));
}

struct small_outline : testing::Test {
    port_params ports;
    text_lines out;

    void set(std::initializer_list<point2> points) {
        std::size_t i = 0;
        for (const point2& point : points) {
            ports.outlet.x[i] = ports.groove_x[i] = point.x;
            ports.outlet.y[i] = ports.groove_y[i] = point.y;
            ++i;
        }
        ports.outlet.last = ports.groove_last = static_cast<std::int16_t>(points.size() - 1);
    }
    std::vector<point2> vertices() const { return read_dxf(out.bytes()).vertices; }
};

TEST_F(small_outline, is_written_to_its_last_point_and_closed_once_more) {
    set({{1, 2}, {3, 4}, {5, -6}, {1, 2}});
    write_dxf_outlet_port(out, ports, MM);
    EXPECT_EQ(vertices(), (std::vector<point2>{{1, 2}, {3, 4}, {5, -6}, {1, 2}, {1, 2}}));
}

TEST_F(small_outline, of_a_port_ends_before_an_x_of_exactly_0) {
    set({{1, 2}, {3, 4}, {0, 7}, {5, -6}, {1, 2}});
    write_dxf_outlet_port(out, ports, MM);
    EXPECT_EQ(vertices(), (std::vector<point2>{{1, 2}, {3, 4}, {1, 2}}));
}

TEST_F(small_outline, of_a_port_never_goes_beyond_its_last_index) {
    set({{1, 2}, {3, 4}, {1, 2}});
    ports.outlet.x[3] = 99.0;  // of an older, longer outline
    write_dxf_outlet_port(out, ports, MM);
    EXPECT_EQ(vertices().size(), 4U);
}

TEST_F(small_outline, of_a_groove_goes_through_an_x_of_0) {
    set({{1, 2}, {0, 7}, {5, -6}, {1, 2}});
    write_dxf_metering_groove(out, ports, MM);
    EXPECT_EQ(vertices(), (std::vector<point2>{{1, 2}, {0, 7}, {5, -6}, {1, 2}, {1, 2}}));
}

TEST_F(small_outline, in_inches_is_rounded_in_millimetres_first) {
    set({{2.54, -12.7}, {1.23456789, 1e-5}, {25.4, 3}});
    write_dxf_outlet_port(out, ports, IN);
    const std::vector<std::string> numbers = read_dxf(out.bytes()).number_texts;
    EXPECT_EQ(numbers[0], "0.1");
    EXPECT_EQ(numbers[1], "-0.5");
    EXPECT_EQ(numbers[2], "0.0486050393700787");  // 1.234568 / 25.4
    EXPECT_EQ(numbers[3], "3.93700787401575E-07");
    EXPECT_EQ(numbers[4], "1");
}

TEST_F(small_outline, of_a_port_never_designed_is_the_closing_vertex_only) {
    write_dxf_inlet_port(out, ports, MM);
    EXPECT_EQ(vertices(), (std::vector<point2>{{0, 0}}));
}

}  // namespace
}  // namespace kvt
