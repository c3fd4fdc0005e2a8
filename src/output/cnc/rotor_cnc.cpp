#include "output/cnc/rotor_cnc.hpp"

#include "base/checked_math.hpp"
#include "base/constants.hpp"
#include "base/number_text.hpp"
#include "geometry/outer_path.hpp"
#include "output/cnc/cnc_heads.hpp"
#include "output/cnc/inner_offset.hpp"

namespace kvt {

namespace {

/// Point 0 is written once more behind the last one.
std::vector<point2> closed_inner_profile(const rotor_profiles& rotors) {
    std::vector<point2> points;
    for (std::int64_t i = 0; i <= PROFILE_POINTS; ++i) {
        points.push_back({checked_at(rotors.inner_x, i % PROFILE_POINTS),
                          checked_at(rotors.inner_y, i % PROFILE_POINTS)});
    }
    return points;
}

/// A y of 0 stays as it is: no "-0.000".
void turn_clockwise(const file_source& source, std::vector<point2>& points) {
    if (!source.choices.Opp_Plot) {
        return;
    }
    for (point2& point : points) {
        point.y = point.y != 0.0 ? -point.y : point.y;
    }
}

double tool_radius(const file_source& source) {
    return source.unit.half_to_mm(source.choices.tool_diameter);
}

void add_cutter_path(const file_source& source, cnc_lines& lines, std::vector<point2> centres) {
    turn_clockwise(source, centres);
    lines.xy(centres);
    lines.xy(centres.front());
}

design_params outer_design(const file_source& source) {
    return outer_rotor_entries(source.boxes, source.boxes_unit.mm);
}

/// Arc by arc, so that a failure leaves the arcs before it.
void add_points_of_path(cnc_lines& lines, const outer_path& path) {
    lines.xy(path.first);
    for (const outer_path_arc& arc : path.arcs) {
        lines.xy(arc_points(arc));
    }
    lines.xy(path.first);
}

void add_lathe_lines(cnc_lines& lines, const std::vector<point2>& points) {
    for (const point2& point : points) {
        add_lathe_line(lines, point);
    }
}

/// The moves round the rotor and back to the origin.
void add_moves(cnc_lines& lines, const tool_contour& contour) {
    lines.feed_g01(contour.start);
    for (const tool_move& move : contour.moves) {
        lines.move(move);
    }
    lines.literal("G01X0.0000Y0.0000");
}

}  // namespace

void write_inner_xy(const file_source& source, text_lines& text) {
    cnc_lines lines(text, source);
    add_rotor_preamble(lines, source, {.content = "inner_xy"});
    std::vector<point2> points = closed_inner_profile(source.rotors);
    turn_clockwise(source, points);
    lines.xy(points);
}

void write_inner_offset(const file_source& source, text_lines& text) {
    cnc_lines lines(text, source);
    add_rotor_preamble(lines, source, {.content = "inner_offset", .has_cutter = true});
    add_cutter_path(source, lines,
                    inner_offset_points(source.design, source.rotors, tool_radius(source)));
}

std::string inner_offset_notice(const file_source& source) {
    const int count = wrong_side_count(source.design, source.rotors, tool_radius(source));
    return count == 0 ? ""
                      : std::string(cnc_text("wrong_side", source.language)) + number_text(count) +
                            std::string(cnc_text("wrong_side_advice", source.language));
}

void write_inner_offset_checked(const file_source& source, text_lines& text) {
    cnc_lines lines(text, source);
    add_rotor_preamble(
        lines, source,
        {.content = "inner_offset_checked", .has_cutter = true, .checked = "side_checked"});
    add_cutter_path(source, lines,
                    checked_inner_offset_points(source.design, source.rotors, tool_radius(source)));
}

void write_inner_lathe(const file_source& source, text_lines& text) {
    cnc_lines lines(text, source);
    add_rotor_preamble(lines, source, {.content = "inner_lathe", .lathe = true});
    add_lathe_lines(lines, closed_inner_profile(source.rotors));
}

void write_outer_xy(const file_source& source, text_lines& text) {
    cnc_lines lines(text, source);
    add_rotor_preamble(lines, source, {.content = "outer_xy", .outer = true});
    add_points_of_path(lines, outer_rotor_path(outer_design(source)));
}

void write_outer_offset(const file_source& source, text_lines& text) {
    cnc_lines lines(text, source);
    add_rotor_preamble(lines, source,
                       {.content = "outer_offset", .outer = true, .has_cutter = true});
    add_points_of_path(lines, outer_rotor_offset_path(outer_design(source), tool_radius(source)));
}

void write_outer_offset_checked(const file_source& source, text_lines& text) {
    cnc_lines lines(text, source);
    add_rotor_preamble(lines, source,
                       {.content = "outer_offset_checked",
                        .outer = true,
                        .has_cutter = true,
                        .checked = "distance_checked"});
    lines.xy(checked_outer_offset_points(outer_design(source), tool_radius(source)));
}

strayed_arcs outer_gcode_strayed_arcs(const file_source& source) {
    return strayed_arcs_of(outer_rotor_path(outer_design(source)));
}

cutter_gouges outer_offset_gouges(const file_source& source) {
    return outer_offset_gouges(outer_design(source), tool_radius(source));
}

void write_outer_gcode(const file_source& source, text_lines& text) {
    cnc_lines lines(text, source);
    add_rotor_preamble(lines, source, {.content = "outer_gcode", .outer = true});
    lines.xy(point2{});
    add_moves(lines, outer_moves(outer_rotor_path(outer_design(source))));
}

void write_outer_gcode_checked(const file_source& source, text_lines& text) {
    cnc_lines lines(text, source);
    add_rotor_preamble(
        lines, source,
        {.content = "outer_gcode_checked", .outer = true, .checked = "arcs_checked"});
    lines.xy(point2{});
    add_moves(lines, checked_outer_moves(outer_rotor_path(outer_design(source))));
}

void write_outer_lathe(const file_source& source, text_lines& text) {
    cnc_lines lines(text, source);
    add_rotor_preamble(lines, source, {.content = "outer_lathe", .outer = true, .lathe = true});
    const outer_path path = outer_rotor_path(outer_design(source));
    add_lathe_line(lines, path.first);
    for (const outer_path_arc& arc : path.arcs) {
        add_lathe_lines(lines, arc_points(arc));
    }
    add_lathe_line(lines, path.first);
}

}  // namespace kvt
