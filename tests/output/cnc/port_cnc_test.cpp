// The CNC files of the ports: outlines, sections, codes.
#include "output/cnc/port_cnc.hpp"

#include "base/constants.hpp"
#include "core/app_state.hpp"
#include "output/cnc/contour_gap.hpp"
#include "output/cnc/port_gcode.hpp"
#include "ports/build_ports.hpp"
#include "ports/metering_groove.hpp"
#include "support/cnc_reader.hpp"
#include "support/expect_failure.hpp"
#include "support/port_design.hpp"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

namespace kvt {

namespace {

struct port_files {
    port_design tested;
    perf_results results;  ///< none: no file of the ports has any
    cnc_choices choices{.cnc_res_digits = 5, .tool_diameter = 2.0, .groove_tool_diameter = 1.0};

    explicit port_files(const std::string& port_radius = "1.5") {
        tested.boxes.port_radii = port_radius;
        port_work work = tested.work();
        build_inlet_port(work);
        build_outlet_port(work);
        build_metering_groove(work);
    }

    file_source source() const {
        return {tested.design, tested.rotors, tested.ports, results, tested.boxes, choices, "pump"};
    }

    std::vector<cnc_section> sections(void (*write)(const file_source&, port_side, text_lines&),
                                      port_side side) const {
        text_lines text;
        write(source(), side, text);
        return cnc_reader(text.bytes(), choices.cnc_res_digits).sections();
    }
};

/// The path of a G-code section while the tool is down.
std::vector<point2> cut_path(const cnc_section& section) {
    return swept_path({section.moves.begin() + 2, section.moves.end()}, section.moves[1].end);
}

double turn_of(const std::vector<point2>& path) {
    double area = 0.0;
    for (std::size_t i = 0; i + 1 < path.size(); ++i) {
        area += path[i].x * path[i + 1].y - path[i].y * path[i + 1].x;
    }
    return area;
}

void expect_same_paths(const port_files& files, port_side side) {
    const std::vector<cnc_section> xy = files.sections(write_port_xy, side);
    const std::vector<cnc_section> gcode = files.sections(write_port_gcode, side);
    ASSERT_EQ(gcode.size(), xy.size());
    for (std::size_t i = 0; i < xy.size(); ++i) {
        const std::vector<point2> outline = ends_of(xy[i]);
        const std::vector<point2> path = cut_path(gcode[i]);
        EXPECT_LT(largest_distance(outline, path, 9), 0.001) << i;
        EXPECT_LT(largest_distance(path, outline, 9), 0.001) << i;
        EXPECT_GT(turn_of(outline) * turn_of(path), 0.0) << i;
    }
}

}  // namespace

TEST(port_cnc, writes_point_0_twice_behind_the_outline) {
    const port_files files;
    const std::vector<cnc_section> sections = files.sections(write_port_xy, port_side::inlet);
    ASSERT_EQ(sections.size(), 1U);
    const std::vector<cnc_move>& moves = sections[0].moves;
    ASSERT_EQ(moves.size(), static_cast<std::size_t>(files.tested.ports.inlet.last) + 2U);
    EXPECT_EQ(moves.back().end, moves.front().end);
    EXPECT_EQ(moves[moves.size() - 2].end, moves.front().end);
}

TEST(port_cnc, stops_an_outline_at_the_first_x_of_0) {
    port_files files;
    files.tested.ports.inlet.x[20] = 0.0;
    EXPECT_EQ(port_contour(files.tested.ports, port_side::inlet).size(), 20U);
    EXPECT_EQ(files.sections(write_port_xy, port_side::inlet)[0].moves.size(), 21U);
}

TEST(port_cnc, writes_the_closing_line_alone_for_a_port_that_was_not_designed) {
    port_files files;
    files.tested.ports = {};
    const std::vector<cnc_section> sections = files.sections(write_port_xy, port_side::outlet);
    ASSERT_EQ(sections[0].moves.size(), 1U);
    EXPECT_EQ(sections[0].moves[0].end, point2{});
    EXPECT_TRUE(groove_contour(files.tested.ports).empty());
}

TEST(port_cnc, mirrors_the_shadow_port_and_keeps_its_order) {
    port_files files;
    files.tested.boxes.shadow_ports = "1";
    const std::vector<cnc_section> sections = files.sections(write_port_xy, port_side::inlet);
    ASSERT_EQ(sections.size(), 2U);
    ASSERT_EQ(sections[1].moves.size(), sections[0].moves.size());
    for (std::size_t i = 0; i < sections[0].moves.size(); i += 10) {
        EXPECT_EQ(sections[1].moves[i].end.x, -sections[0].moves[i].end.x);
        EXPECT_EQ(sections[1].moves[i].end.y, sections[0].moves[i].end.y);
    }
}

TEST(port_cnc, repeats_the_same_outline_for_the_upper_housing) {
    port_files files;
    files.tested.boxes.outlet_double_sided = "1";
    const std::vector<cnc_section> sections = files.sections(write_port_gcode, port_side::outlet);
    ASSERT_EQ(sections.size(), 3U);  // lower, groove, upper
    EXPECT_EQ(sections[2].comments,
              std::vector<std::string>{"//Section 3: Upper housing Outlet port//"});
    EXPECT_EQ(ends_of(sections[2]), ends_of(sections[0]));
}

TEST(port_cnc, sweeps_the_same_path_in_codes_and_in_points) {
    for (const char* radius : {"1.5", "0.75", "0.3", "0"}) {
        port_files files(radius);
        files.tested.boxes.shadow_ports = "1";
        expect_same_paths(files, port_side::inlet);
        expect_same_paths(files, port_side::outlet);
    }
}

TEST(port_gcode, has_arcs_by_the_sense_of_the_outline) {
    const port_files files;
    const auto kinds = [&](port_side side, bool shadow) {
        std::string codes;
        for (const tool_move& move : port_moves(files.tested.ports, side, shadow).moves) {
            codes += move.kind == move_kind::line_g01
                         ? '1'
                         : (move.kind == move_kind::clockwise_g02 ? '2' : '3');
        }
        return codes;
    };
    EXPECT_EQ(kinds(port_side::inlet, false), "32313331");
    EXPECT_EQ(kinds(port_side::inlet, true), "23212221");
    EXPECT_EQ(kinds(port_side::outlet, false), "23212221");
    EXPECT_EQ(kinds(port_side::outlet, true), "32313331");
}

TEST(port_gcode, leaves_out_fillets_of_radius_0) {
    const port_files files("0");
    EXPECT_EQ(port_moves(files.tested.ports, port_side::inlet, false).moves.size(), 4U);
    EXPECT_EQ(groove_moves(files.tested.ports).moves.size(), 6U);
}

TEST(port_gcode, has_a_nose_line_where_the_groove_is_wider_than_its_corners) {
    const port_files round("1.5");  // the nose is a half circle: 1.5 mm wide, corners 0.75
    EXPECT_EQ(groove_moves(round.tested.ports).moves.size(), 7U);
    const port_files flat("0.3");
    const tool_contour contour = groove_moves(flat.tested.ports);
    ASSERT_EQ(contour.moves.size(), 8U);
    EXPECT_EQ(contour.moves[2].kind, move_kind::line_g01);
    EXPECT_EQ(contour.moves[1].radius, 0.3);
    EXPECT_EQ(contour.moves.back().end, contour.start);
}

TEST(port_gcode, fails_without_a_groove) {
    EXPECT_FAILURE(groove_moves({}), failure::subscript_out_of_range);
}

TEST(port_cnc, leaves_out_the_groove_pocket_without_a_tool_for_it) {
    port_files files;
    EXPECT_EQ(files.sections(write_port_pocket, port_side::outlet).size(), 2U);
    files.choices.leaves_out_groove_pocket = true;
    const std::vector<cnc_section> sections = files.sections(write_port_pocket, port_side::outlet);
    ASSERT_EQ(sections.size(), 1U);
    EXPECT_EQ(sections[0].comments[6], "//This file contains 1 sections.//");
    EXPECT_EQ(files.sections(write_port_xy, port_side::outlet).size(), 2U);
}

TEST(port_cnc, leaves_out_a_groove_that_was_refused) {
    port_files files;
    files.tested.boxes.groove_length = "200";
    port_work work = files.tested.work();
    ASSERT_EQ(build_metering_groove(work), port_end::refused);
    ASSERT_GT(files.tested.ports.groove_last, 0) << "the outline of the earlier groove stands";
    for (const auto write : {write_port_xy, write_port_pocket, write_port_gcode}) {
        const std::vector<cnc_section> sections = files.sections(write, port_side::outlet);
        ASSERT_EQ(sections.size(), 1U);
        // The X/Y file ends the line with the marks that its two neighbours leave out.
        const auto& told = sections[0].comments;
        EXPECT_EQ(std::ranges::count(told, "//This file contains 1 sections.//") +
                      std::ranges::count(told, "//This file contains 1 sections."),
                  1);
    }
}

TEST(port_cnc, follows_each_outline_as_it_was_built) {
    // The radius fits the inlet; the outlet goes back to sharp corners without building the inlet
    // again.
    port_files files("0");
    port_design& tested = files.tested;
    tested.boxes.port_radii = "2.5";
    tested.boxes.Outlet_outer_radius = "20";
    port_work work = tested.work();
    ASSERT_EQ(build_inlet_port(work), port_end::finished);
    ASSERT_EQ(build_outlet_port(work), port_end::finished);
    ASSERT_EQ(tested.ports.port_radius, 0.0);
    EXPECT_EQ(port_moves(tested.ports, port_side::inlet, false).moves.size(), 8U);
    EXPECT_EQ(port_moves(tested.ports, port_side::outlet, false).moves.size(), 4U);
    expect_same_paths(files, port_side::inlet);
    expect_same_paths(files, port_side::outlet);
}

TEST(port_cnc, keeps_an_outline_and_its_codes_together_after_a_refusal) {
    port_files files;
    port_design& tested = files.tested;
    tested.boxes.inlet_start_inner = "20";
    tested.boxes.inlet_inner_radius = "15";
    tested.boxes.inlet_end_inner = "190";
    tested.boxes.inlet_end_outer = "188";
    port_work work = tested.work();
    ASSERT_EQ(build_inlet_port(work), port_end::refused);
    ASSERT_EQ(tested.ports.inlet.inner_r, 15.0);
    EXPECT_EQ(tested.ports.inlet.built.R, 14.5);
    expect_same_paths(files, port_side::inlet);
}

TEST(contour_gap, is_that_of_the_worst_point) {
    // A square of 10 mm, cut as a square, with one side 0.5 mm too far out, and with an arc that
    // does not reach its end.
    const std::vector<point2> square = {{0, 0}, {10, 0}, {10, 10}, {0, 10}, {0, 0}};
    const auto line = [](point2 end) { return tool_move{move_kind::line_g01, end, 0.0}; };
    tool_contour contour{{0, 0}, {line({10, 0}), line({10, 10}), line({0, 10}), line({0, 0})}};
    EXPECT_EQ(contour_gap(contour, square, {}), 0.0);
    contour.moves[1] = line({10, 10.5});
    EXPECT_NEAR(contour_gap(contour, square, {}), 0.5, 1e-12);
    contour.moves[1] = {move_kind::clockwise_g02, {10, 10}, 4.9};
    EXPECT_TRUE(std::isinf(contour_gap(contour, square, {})));
    contour.moves[1] = {move_kind::clockwise_g02, {10, 10}, 5.0};
    EXPECT_NEAR(contour_gap(contour, square, {}), 5.0, 1e-6) << "half a circle into the square";
}

TEST(contour_gap, takes_the_chords_of_an_arc_for_the_arc) {
    // A quarter turn of 40 mm in steps of half a degree and a last one of 0.99 degrees, whose chord
    // lies 0.0015 mm within the arc.
    std::vector<point2> quarter;
    for (int k = 0; k <= 178; ++k) {
        quarter.push_back(polar_point(40.0, k * PI_D / 360.0));
    }
    quarter.push_back(polar_point(40.0, 89.99 * PI_D / 180.0));
    const tool_contour contour{quarter.front(),
                               {{move_kind::counterclockwise_g03, quarter.back(), 40.0}}};
    EXPECT_GT(contour_gap(contour, quarter, {}), CONTOUR_TOLERANCE_MM);
    EXPECT_LT(contour_gap(contour, quarter, {{{}, 40.0}}), 1e-9);
    EXPECT_NEAR(contour_gap(contour, quarter, {{{0.0, 0.002}, 40.0}}), 0.0015, 1e-4);
    // A chord of more than a degree is a straight line of the outline, whatever circle its ends are
    // on.
    quarter.erase(quarter.begin() + 20, quarter.begin() + 24);
    EXPECT_NEAR(contour_gap(contour, quarter, {{{}, 40.0}}),
                40.0 * (1.0 - std::cos(1.25 * PI_D / 180.0)), 1e-3);
}

TEST(port_gcode_gap, measures_the_arcs_and_not_their_chords) {
    // The outer radius lies so far out that the last chord of its arc lies 0.0011 mm within it.
    port_files files("0");
    files.tested.boxes.Outlet_outer_radius = "40";
    files.tested.boxes.outlet_end_outer = "143.48";
    files.tested.boxes.outlet_start_outer = "14.5";
    port_work work = files.tested.work();
    ASSERT_EQ(build_outlet_port(work), port_end::finished);
    const file_source source = files.source();
    EXPECT_LT(port_gcode_gap(source, port_side::outlet), 1e-6);
}

TEST(port_gcode_gap, is_small_for_sound_ports_and_tells_codes_that_leave_their_outline) {
    port_files files;
    const file_source source = files.source();
    EXPECT_LT(port_gcode_gap(source, port_side::inlet), CONTOUR_TOLERANCE_MM);
    EXPECT_LT(port_gcode_gap(source, port_side::outlet), CONTOUR_TOLERANCE_MM);
    files.tested.ports.inlet.built.f = 0.0;
    EXPECT_GT(port_gcode_gap(source, port_side::inlet), 1.0);
    EXPECT_LT(port_gcode_gap(source, port_side::outlet), CONTOUR_TOLERANCE_MM);
}

}  // namespace kvt
