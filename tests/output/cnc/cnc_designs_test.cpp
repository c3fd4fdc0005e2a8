// What holds for the CNC files of every design: random designs, every file written into memory and
// replayed.
#include "app/files/cnc_output.hpp"
#include "output/cnc/pocket_region.hpp"
#include "output/cnc/port_cnc.hpp"
#include "output/cnc/rotor_cnc.hpp"
#include "ports/groove_check.hpp"
#include "support/cnc_design.hpp"
#include "support/cnc_reader.hpp"
#include "support/random_design.hpp"

#include <cmath>
#include <gtest/gtest.h>
#include <iostream>
#include <limits>

namespace kvt {

namespace {

constexpr int DESIGNS = 60;
constexpr int POCKET_DESIGNS = 10;
constexpr int DECIMALS = 6;

/// Of the outer rotors: how many have codes or cutter positions that would scrap the part.
struct outer_tally {
    int strayed = 0, gouged = 0;
    double deepest = 0.0;
};

double unit_of(const program& kavetta) {
    return kavetta.app_state.drawing_units == INCHES ? 25.4 : 1.0;
}

/// A cutter that fits the corners, as typed.
double tool_for(const program& kavetta, double share) {
    return share * 2.0 * kavetta.port_params.port_radius / unit_of(kavetta);
}

cnc_reader read_file_of(const program& kavetta, std::string_view name) {
    return {cnc_bytes(kavetta, name), kavetta.cnc_choices.cnc_res_digits};
}

/// The path of a section in mm; in a G-code file the moves with the tool down, from the move
/// before.
std::vector<point2> path_mm(const cnc_section& section, double unit) {
    std::vector<cnc_move> moves = section.moves;
    point2 start = moves.front().end;
    if (moves.back().cutting) {
        start = moves[1].end;
        moves.erase(moves.begin(), moves.begin() + 2);
    }
    for (cnc_move& move : moves) {
        move.end = {move.end.x * unit, move.end.y * unit};
        move.radius *= unit;
    }
    return swept_path(moves, {start.x * unit, start.y * unit});
}

void expect_inner_files(const program& kavetta) {
    const cnc_reader xy = read_file_of(kavetta, "inner_xy");
    const cnc_reader lathe = read_file_of(kavetta, "inner_lathe");
    ASSERT_EQ(xy.sections().size(), 1U);
    const std::vector<cnc_move>& points = xy.sections()[0].moves;
    const std::vector<cnc_move>& polar = lathe.sections()[0].moves;
    ASSERT_EQ(points.size(), 3601U);
    ASSERT_EQ(polar.size(), 3601U);
    EXPECT_EQ(points.front().end, points.back().end);
    for (std::size_t i = 0; i < points.size(); i += 37) {
        const double angle = polar[i].degrees * std::acos(-1.0) / 180.0;
        EXPECT_NEAR(polar[i].end.x * std::cos(angle), points[i].end.x, 2e-5);
        EXPECT_NEAR(polar[i].end.x * std::sin(angle), points[i].end.y, 2e-5);
    }
}

/// The path of an outer rotor's codes without the moves from and to the origin.
std::vector<point2> outer_codes(const program& kavetta, std::string_view name) {
    cnc_section gcode = read_file_of(kavetta, name).sections()[0];
    EXPECT_EQ(gcode.moves.front().end, point2{});
    EXPECT_EQ(gcode.moves.back().end, point2{});
    gcode.moves.pop_back();
    gcode.moves.erase(gcode.moves.begin());
    return path_mm(gcode, unit_of(kavetta));
}

/// How far the told codes lie from the points; infinite for an arc that does not reach its end.
double told_codes_gap(const program& kavetta, const std::vector<point2>& points) {
    try {
        const std::vector<point2> path = outer_codes(kavetta, "outer_gcode");
        return std::max(largest_distance(points, path, 29), largest_distance(path, points, 29));
    } catch (const std::runtime_error&) {
        return std::numeric_limits<double>::infinity();
    }
}

/// The chords of the X/Y file's arcs, ten a fillet, lie this far from them at most, mm.
double chord_height(const program& kavetta) {
    return 0.0005 + 0.0125 * kavetta.design_params.fillet;
}

/// Kept: where a lobe is more than half a turn the told codes leave the points. They are counted
/// then, and the checked codes follow the points of every design.
void expect_outer_codes(const program& kavetta, const std::vector<point2>& points,
                        outer_tally& tally) {
    const std::vector<point2> checked = outer_codes(kavetta, "outer_gcode_checked");
    EXPECT_LT(largest_distance(points, checked, 29), 0.001);
    EXPECT_LT(largest_distance(checked, points, 29), 0.001 + chord_height(kavetta));
    const strayed_arcs strayed = outer_gcode_strayed_arcs(source_of(kavetta));
    const double gap = told_codes_gap(kavetta, points);
    if (strayed.count == 0) {
        EXPECT_LT(gap, 0.001 + chord_height(kavetta));
    } else {
        ++tally.strayed;
        EXPECT_GT(gap, 0.0005);
    }
}

/// The checked cutter positions keep their distance from the points of the profile, and where the
/// told ones do they are the same.
void expect_outer_offset(const program& kavetta, const std::vector<point2>& points,
                         outer_tally& tally) {
    const double unit = unit_of(kavetta);
    const double tool_radius = kavetta.cnc_choices.tool_diameter * unit / 2.0;
    const cutter_gouges gouges = outer_offset_gouges(source_of(kavetta));
    const auto positions = [&](const char* name) {
        return path_mm(read_file_of(kavetta, name).sections()[0], unit);
    };
    const std::vector<point2> checked = positions("outer_offset_checked");
    for (std::size_t i = 0; i < checked.size(); i += 11) {
        ASSERT_GT(distance_from_path(checked[i], points),
                  tool_radius - 0.002 - chord_height(kavetta))
            << i;
    }
    const std::vector<point2> told = positions("outer_offset");
    if (gouges.count > 0) {
        ++tally.gouged;
        tally.deepest = std::max(tally.deepest, gouges.depth_mm);
        EXPECT_NE(checked, told);
    }
}

/// Every end of the G-code file is a point of the X/Y file, and the points lie on the arcs.
void expect_outer_files(const program& kavetta, outer_tally& tally) {
    const double unit = unit_of(kavetta);
    const std::size_t lobes = static_cast<std::size_t>(kavetta.design_params.numlobes);
    const std::size_t steps = kavetta.design_params.fillet == 0.0 ? 300 : 320;
    const cnc_reader xy = read_file_of(kavetta, "outer_xy");
    const std::vector<point2> points = path_mm(xy.sections()[0], unit);
    ASSERT_EQ(xy.sections()[0].moves.size(), 1 + steps * lobes + 1);
    const std::vector<cnc_section> gcode = read_file_of(kavetta, "outer_gcode").sections();
    ASSERT_EQ(gcode[0].moves.size(), 2 + (steps == 300 ? 2 : 4) * lobes + 1);
    expect_outer_codes(kavetta, points, tally);
    expect_outer_offset(kavetta, points, tally);
}

/// The codes of a port follow its points, or a note refuses them.
void expect_port_files(const program& kavetta, const std::string& port) {
    const double unit = unit_of(kavetta);
    if (!refused_gcode_note(kavetta, *find_file(file_group::cnc, port + "_gcode")).empty()) {
        const port_side side = port == "inlet" ? port_side::inlet : port_side::outlet;
        EXPECT_GT(port_gcode_gap(source_of(kavetta), side), CONTOUR_TOLERANCE_MM);
        return;
    }
    const cnc_reader xy = read_file_of(kavetta, port + "_xy");
    const cnc_reader gcode = read_file_of(kavetta, port + "_gcode");
    ASSERT_EQ(gcode.sections().size(), xy.sections().size());
    EXPECT_EQ(gcode.tool_changes(), 2 * static_cast<int>(xy.sections().size()));
    for (std::size_t i = 0; i < xy.sections().size(); ++i) {
        const std::vector<point2> outline = path_mm(xy.sections()[i], unit);
        const std::vector<point2> path = path_mm(gcode.sections()[i], unit);
        EXPECT_LT(largest_distance(outline, path, 23), 0.001) << port << " " << i;
        EXPECT_LT(largest_distance(path, outline, 23), 0.001) << port << " " << i;
    }
}

/// Whether a ticked groove lies on the wrong side of the pump or crosses itself; a hint of Design
/// Ports has told so.
bool has_faulty_groove(const program& kavetta) {
    const bool faulty =
        kavetta.port_params.has_groove && faults_of_groove(kavetta.port_params.groove_built).any();
    const bool told = std::ranges::any_of(kavetta.hints, [](const hint& row) {
        return row.text.starts_with("The metering groove ");
    });
    EXPECT_EQ(faulty, told);
    return faulty;
}

/// Points every tenth of a mm along a path, and its corners.
std::vector<point2> fine_points(const std::vector<point2>& path) {
    std::vector<point2> points{path.front()};
    for (std::size_t i = 1; i < path.size(); ++i) {
        const double length = std::hypot(path[i].x - path[i - 1].x, path[i].y - path[i - 1].y);
        const int steps = 1 + static_cast<int>(length / 0.1);
        for (int k = 1; k <= steps; ++k) {
            const double share = static_cast<double>(k) / steps;
            points.push_back({path[i - 1].x + share * (path[i].x - path[i - 1].x),
                              path[i - 1].y + share * (path[i].y - path[i - 1].y)});
        }
    }
    return points;
}

void expect_no_gouge(const pocket_region& pocket, const std::vector<point2>& path,
                     double tool_radius) {
    for (const point2& point : fine_points(path)) {
        ASSERT_TRUE(pocket.is_clear(point, tool_radius - 0.005)) << point.x << " " << point.y;
        ASSERT_TRUE(pocket.contains(point)) << point.x << " " << point.y;
    }
}

/// Random points of the pocket lie within the cutter of the path; but for the surroundings of the
/// corners that it can't reach.
void expect_cleared(random_values& random, const pocket_region& pocket,
                    const std::vector<point2>& path, double tool_radius,
                    const std::vector<point2>& sharp_corners) {
    point2 low = pocket.outline()[0];
    point2 high = low;
    for (const point2& point : pocket.outline()) {
        low = {std::min(low.x, point.x), std::min(low.y, point.y)};
        high = {std::max(high.x, point.x), std::max(high.y, point.y)};
    }
    for (int draw = 0; draw < 150; ++draw) {
        const point2 point = {random.real(low.x, high.x), random.real(low.y, high.y)};
        bool excepted = !pocket.contains(point);
        for (const point2& corner : sharp_corners) {
            excepted =
                excepted || std::hypot(point.x - corner.x, point.y - corner.y) < 3.0 * tool_radius;
        }
        if (!excepted) {
            ASSERT_LE(distance_from_path(point, path), tool_radius + 0.005)
                << point.x << " " << point.y;
        }
    }
}

void expect_pocket_file(random_values& random, const program& kavetta, const std::string& port) {
    const double unit = unit_of(kavetta);
    const cnc_reader outlines = read_file_of(kavetta, port + "_xy");
    const cnc_reader pockets = read_file_of(kavetta, port + "_pocket");
    ASSERT_EQ(pockets.sections().size(), outlines.sections().size());
    for (std::size_t i = 0; i < pockets.sections().size(); ++i) {
        const bool groove = port == "outlet" && i == 1 && kavetta.entries.metering_groove == "1";
        const double diameter =
            groove ? kavetta.cnc_choices.groove_tool_diameter : kavetta.cnc_choices.tool_diameter;
        const pocket_region pocket(path_mm(outlines.sections()[i], unit));
        const std::vector<point2> path = path_mm(pockets.sections()[i], unit);
        const double tool_radius = diameter * unit / 2.0;
        if (groove && has_faulty_groove(kavetta)) {
            continue;  // no pocket; the hint says so
        }
        expect_no_gouge(pocket, path, tool_radius);
        const port_params& ports = kavetta.port_params;
        std::vector<point2> sharp;
        if (groove) {
            sharp = {{ports.groove_tail_inner},
                     {ports.groove_tail_outer},
                     {ports.groove_n1},
                     {ports.groove_n2}};
        }
        expect_cleared(random, pocket, path, tool_radius, sharp);
    }
}

}  // namespace

TEST(cnc_designs, have_files_that_describe_the_same_rotors_and_ports) {
    random_values random;
    outer_tally tally;
    const int designs = property_count(DESIGNS);
    for (int run = designs; run > 0 && !testing::Test::HasFailure(); --run) {
        program kavetta = random_design(random);
        SCOPED_TRACE("design " + std::to_string(designs - run) + ": N " + kavetta.entries.numlobes +
                     " ecc " + kavetta.entries.ecc + " radouter " + kavetta.entries.radouter +
                     " radinnroot " + kavetta.entries.radinnroot + " fillet " +
                     kavetta.entries.fillet);
        kavetta.cnc_choices = {DECIMALS, 0.8 / unit_of(kavetta), tool_for(kavetta, 0.1), false};
        expect_inner_files(kavetta);
        expect_outer_files(kavetta, tally);
        expect_port_files(kavetta, "inlet");
        expect_port_files(kavetta, "outlet");
    }
    std::cout << designs << " designs: " << tally.strayed << " with codes that leave the profile, "
              << tally.gouged << " with cutter positions that gouge it, " << tally.deepest
              << " mm at most\n";
    EXPECT_GT(tally.strayed, 0);
}

TEST(cnc_designs, have_pockets_that_are_cleared_and_never_gouged) {
    random_values random;
    for (int run = property_count(POCKET_DESIGNS); run > 0;) {
        program kavetta = random_design(random);
        if (kavetta.port_params.port_radius == 0.0) {
            continue;  // no cutter fits sharp corners
        }
        --run;
        const double width = kavetta.port_params.groove_width_mm / unit_of(kavetta);
        kavetta.cnc_choices = {DECIMALS, tool_for(kavetta, random.real(0.3, 1.0)),
                               width * random.real(0.4, 1.0), false};
        expect_pocket_file(random, kavetta, "inlet");
        expect_pocket_file(random, kavetta, "outlet");
        ASSERT_FALSE(testing::Test::HasFailure()) << run;
    }
}

}  // namespace kvt
