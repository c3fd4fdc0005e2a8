// The lines of the CNC files and their heads.
#include "output/cnc/cnc_lines.hpp"

#include "output/cnc/cnc_heads.hpp"
#include "support/expect_failure.hpp"

#include <gtest/gtest.h>

namespace kvt {

namespace {

/// Everything a writer takes, empty.
struct cnc_records {
    design_params design;
    rotor_profiles rotors;
    port_params ports;
    perf_results results;
    entries boxes;
    cnc_choices choices{.cnc_res_digits = 3};
    std::int16_t language = ENGLISH;
    std::int16_t unit = MILLIMETRES;

    file_source source() const {
        return {
            design, rotors, ports, results, boxes, choices, "pump", language, length_unit_of(unit)};
    }
};

template <typename writing>
std::string written(const cnc_records& records, const writing& write) {
    text_lines text;
    const file_source source = records.source();
    cnc_lines lines(text, source);
    write(lines, source);
    return text.bytes();
}

std::string rotor_head(const cnc_records& records, const rotor_preamble& head) {
    return written(records, [&](cnc_lines& lines, const file_source& source) {
        add_rotor_preamble(lines, source, head);
    });
}

std::string port_head(const cnc_records& records, const port_preamble& head) {
    return written(records, [&](cnc_lines& lines, const file_source& source) {
        add_port_preamble(lines, source, head);
    });
}

std::string section_head(const cnc_records& records, port_side side, port_section section,
                         section_file file) {
    return written(records, [&](cnc_lines& lines, const file_source& source) {
        add_section_head(lines, source, side, section, file);
    });
}

}  // namespace

TEST(cnc_lines, have_words_without_blanks) {
    EXPECT_EQ(written({},
                      [](cnc_lines& lines, const file_source&) {
                          lines.xy(point2{1.5, -2.25});
                          lines.feed_g01({0.0, -0.0001});
                          lines.arc_cw_g02({1.0, 2.0}, 7.5);
                          lines.arc_ccw_g03({-1.0, 2.0}, 22.9);
                          lines.lathe_feed_g01(14.09, 359.65264);
                      }),
              "X1.500Y-2.250\r\n"
              "G01X0.000Y0.000\r\n"
              "G02X1.000Y2.000R7.500\r\n"
              "G03X-1.000Y2.000R22.900\r\n"
              "G01X14.090C359.653\r\n");
}

TEST(cnc_lines, divide_lengths_but_no_angles_in_inches) {
    cnc_records records;
    records.unit = INCHES;
    EXPECT_EQ(written(records,
                      [](cnc_lines& lines, const file_source&) {
                          lines.arc_cw_g02({25.4, -12.7}, 2.54);
                          lines.lathe_feed_g01(25.4, 90.0);
                      }),
              "G02X1.000Y-0.500R0.100\r\n"
              "G01X1.000C90.000\r\n");
}

TEST(cnc_lines, turn_points_into_lathe_lines_by_their_quadrant) {
    EXPECT_EQ(written({},
                      [](cnc_lines& lines, const file_source&) {
                          add_lathe_line(lines, {3.0, 4.0});
                          add_lathe_line(lines, {-3.0, 4.0});
                          add_lathe_line(lines, {-3.0, -4.0});
                          add_lathe_line(lines, {3.0, -4.0});
                          add_lathe_line(lines, {-5.0, 0.0});  // kept: no half turn is added
                          add_lathe_line(lines, {5.0, 0.0});
                      }),
              "G01X5.000C53.130\r\n"
              "G01X5.000C126.870\r\n"
              "G01X5.000C233.130\r\n"
              "G01X5.000C306.870\r\n"
              "G01X5.000C0.000\r\n"
              "G01X5.000C0.000\r\n");
    EXPECT_FAILURE(written({},
                           [](cnc_lines& lines, const file_source&) {
                               add_lathe_line(lines, {0.0, 5.0});
                           }),
                   failure::division_by_zero);
}

TEST(cnc_preamble, tells_what_a_rotor_file_holds) {
    cnc_records records;
    records.choices.tool_diameter = 2.5;
    EXPECT_EQ(rotor_head(records, {.content = "inner_offset_checked",
                                   .has_cutter = true,
                                   .checked = "side_checked"}),
              "//This file contains the offset profile coordinates for the inner//\r\n"
              "//rotor of project: pump.//\r\n"
              "//The coordinates are for a cutter radius of 1.25.//\r\n"
              "//The origin (datum) for the coordinates is the centre of the//\r\n"
              "//inner rotor (centre of drive shaft).//\r\n"
              "//The coordinates in this file are in MM.//\r\n"
              "//Cutter side checked for every point.//\r\n");
    records.unit = INCHES;
    EXPECT_EQ(rotor_head(records, {.content = "outer_lathe", .outer = true, .lathe = true}),
              "//This file contains the X&C G-Code coordinates for the outer//\r\n"
              "//rotor of project: pump.//\r\n"
              "//This file is for use on a LATHE.//\r\n"
              "//The origin (datum) for the coordinates is the centre of the//\r\n"
              "//outer rotor.//\r\n"
              "//The coordinates in this file are in INCHES.//\r\n");
}

TEST(cnc_preamble, is_german_for_language_2) {
    cnc_records records;
    records.language = GERMAN;
    EXPECT_EQ(rotor_head(records, {.content = "outer_xy", .outer = true}),
              "//Diese Datei enth\xE4lt die Profilkoordinaten f\xFCr den \xE4u\xDF"
              "eren//\r\n"
              "//Rotor des Projekts: pump.//\r\n"
              "//Der Ursprung (Datensatz) f\xFCr die Koordinaten ist die Mitte des//\r\n"
              "//\xE4u\xDF"
              "eren Rotors.//\r\n"
              "//Die Koordinaten in dieser Datei sind in MM.//\r\n");
}

TEST(cnc_preamble, counts_the_sections_of_a_port_file) {
    cnc_records records;
    records.choices.tool_diameter = 3.0;
    EXPECT_EQ(port_head(records, {.content = "outlet_pocket", .section_count = 3, .pocket = true}),
              "//This file contains the pocket milling coordinates for the outlet//\r\n"
              "//ports of project: pump.//\r\n"
              "//The coordinates are for a cutter radius of 1.5.//\r\n"
              "//The origin (datum) for the coordinates is the centre of the inner//\r\n"
              "//rotor (centre of drive shaft).//\r\n"
              "//The coordinates in this file are in MM.//\r\n"
              "//This file contains 3 sections.//\r\n");
    EXPECT_EQ(port_head(records, {.content = "inlet_gcode", .gcode = true}),
              "//This file contains the G-Code coordinates for the inlet//\r\n"
              "//ports of project: pump.//\r\n"
              "//The origin (datum) for the coordinates is the centre of the//\r\n"
              "//inner rotor (centre of drive shaft).//\r\n"
              "//The coordinates in this file are in MM.//\r\n"
              "//This file contains 1 sections.\r\n");
}

TEST(port_sections, are_one_without_any_option) {
    for (const port_side side : {port_side::inlet, port_side::outlet}) {
        ASSERT_EQ(port_sections({}, side).size(), 1U);
        EXPECT_EQ(port_sections({}, side)[0].kind, section_kind::lower);
    }
}

TEST(port_sections, count_on_for_the_outlet_and_stay_2_for_the_inlet) {
    entries boxes;
    boxes.inlet_double_sided = boxes.outlet_double_sided = boxes.shadow_ports =
        boxes.metering_groove = "1";
    const std::vector<port_section> outlet = port_sections(boxes, port_side::outlet);
    ASSERT_EQ(outlet.size(), 4U);
    EXPECT_EQ(outlet[1].kind, section_kind::groove);
    EXPECT_EQ(outlet[2].kind, section_kind::upper);
    EXPECT_EQ(outlet[3].kind, section_kind::shadow);
    EXPECT_EQ(outlet[3].number, 4);
    const std::vector<port_section> inlet = port_sections(boxes, port_side::inlet);
    ASSERT_EQ(inlet.size(), 3U);
    EXPECT_EQ(inlet[1].kind, section_kind::upper);
    EXPECT_EQ(inlet[2].kind, section_kind::shadow);
    EXPECT_EQ(inlet[2].number, 2);
}

TEST(port_sections, have_heads_by_kind_and_file) {
    cnc_records records;
    records.ports.groove_depth_mm = 12.7;
    records.choices.groove_tool_diameter = 1.0;
    EXPECT_EQ(
        section_head(records, port_side::inlet, {section_kind::upper, 2}, section_file::gcode),
        "//Section 2: Upper housing Inlet port//\r\n");
    EXPECT_EQ(section_head(records, port_side::outlet, {section_kind::shadow, 4}, section_file::xy),
              "//Section 4: Upper housing Outlet shadow port//\r\n"
              "//Use a tool depth of 10-20% of the main port depth//\r\n");
    EXPECT_EQ(
        section_head(records, port_side::inlet, {section_kind::shadow, 2}, section_file::gcode),
        "//Section 2: Shadow Inlet port//\r\n"
        "//Use port depth of 10-20% of main port//\r\n");
    EXPECT_EQ(section_head(records, port_side::outlet, {section_kind::groove, 2}, section_file::xy),
              "//Section 2: Metering groove//\r\n"
              "//Ensure to change tool if necessary and to change depth to 12.7//\r\n");
    EXPECT_EQ(
        section_head(records, port_side::outlet, {section_kind::groove, 2}, section_file::gcode),
        "//Section 2: Metering groove profile//\r\n");
    records.unit = INCHES;
    EXPECT_EQ(
        section_head(records, port_side::outlet, {section_kind::groove, 2}, section_file::pocket),
        "//Section 2: Metering groove//\r\n"
        "//These coordinates are for a cutter radius of 0.5//\r\n"
        "//Ensure to change tool if necessary and to change depth to 0.5//\r\n");
    records.language = GERMAN;
    EXPECT_EQ(section_head(records, port_side::outlet, {section_kind::lower, 1}, section_file::xy),
              "//Abschnitt 1: Unteres Geh\xE4use Auslaufhafen//\r\n");
}

}  // namespace kvt
