// Random sets of ports, built once or twice over the same records: G-codes, drawings and pocket
// paths of every outline are replayed against its X/Y file; codes that cannot follow it are refused
// with their distance.
#include "base/run_time_error.hpp"
#include "output/cnc/contour_gap.hpp"
#include "output/cnc/pocket_region.hpp"
#include "output/cnc/port_cnc.hpp"
#include "output/dxf/dxf_files.hpp"
#include "ports/build_ports.hpp"
#include "ports/groove_check.hpp"
#include "ports/metering_groove.hpp"
#include "support/cnc_reader.hpp"
#include "support/dxf_reader.hpp"
#include "support/port_design.hpp"
#include "support/property_runs.hpp"

#include <gtest/gtest.h>
#include <iostream>

namespace kvt {

namespace {

/// 3,000 with KVT_PROPERTY_SCALE=20.
constexpr int SETS = 150;
constexpr std::int16_t DECIMALS = 6;
/// A pocket takes as long as ten outlines, so one file in eight has its pocket replayed.
constexpr int FILES_PER_POCKET = 8;

std::string typed(double value) {
    return number_text(std::round(value * 100.0) / 100.0);
}

/// Angles without any relation to each other, radii that often fit one port only, grooves up to a
/// whole turn long.
void type_ports(random_values& random, entries& boxes) {
    for (const char* port : {"inlet", "outlet"}) {
        const auto box = [&](const char* place) -> std::string& {
            return boxes.*find_entry(std::string(port) + place)->member;
        };
        box("_start_inner") = typed(random.real(0.0, 60.0));
        box("_start_outer") = typed(random.real(0.0, 60.0));
        box("_end_inner") = typed(random.real(90.0, 182.0));
        box("_end_outer") = typed(random.real(90.0, 182.0));
    }
    const auto radius = [&](double lowest, double above) {
        return random.whole(0, 1) == 0 ? std::string() : typed(random.real(lowest, above));
    };
    boxes.inlet_inner_radius = radius(12.0, 17.0);
    boxes.Outlet_inner_radius = radius(12.0, 17.0);
    boxes.inlet_outer_radius = radius(19.0, 24.0);
    boxes.Outlet_outer_radius = radius(19.0, 24.0);
    boxes.port_radii = random.whole(0, 4) == 0 ? "0" : typed(random.real(0.1, 4.5));
    boxes.groove_length = typed(random.real(-10.0, 90.0) * (random.whole(0, 5) == 0 ? 4.0 : 1.0));
    boxes.groove_width = typed(random.real(0.2, 5.0));
    boxes.metering_groove = random.whole(0, 3) == 0 ? "0" : "1";
    boxes.shadow_ports = random.whole(0, 1) == 0 ? "0" : "1";
}

/// Design Ports as far as the outlines go. A quotient by 0 or a groove that doesn't meet its side
/// ends it.
void design(port_design& tested) {
    port_work work = tested.work();
    try {
        build_inlet_port(work);
        build_outlet_port(work);
        if (tested.boxes.metering_groove == "1") {
            build_metering_groove(work);
        } else {
            tested.ports.has_groove = false;
        }
    } catch (const run_time_error&) {
        tested.ports.has_groove = false;
    }
}

struct tally {
    int followed = 0, refused = 0, grooves = 0, faulty_grooves = 0, pockets = 0;
};

/// The chord of the last step of an arc lies this far within it at most, mm: the outer radius is
/// below 24 mm, the step below a degree.
constexpr double CHORD_HEIGHT_MM = 24.0 * 3.81e-5;
/// How much nearer than its radius a cutter may come to an outline, mm.
constexpr double POCKET_GOUGE_MM = 0.005;

using port_writer = void (*)(const file_source&, port_side, text_lines&);

std::vector<cnc_section> sections_of(const file_source& source, port_side side, port_writer write) {
    text_lines text;
    write(source, side, text);
    return cnc_reader(text.bytes(), DECIMALS).sections();
}

/// The drawing has the points of the X/Y file, without the one that closes its last line.
void replay_drawing(const file_source& source, port_side side, std::vector<point2> outline) {
    text_lines text;
    (side == port_side::inlet ? write_dxf_inlet_port : write_dxf_outlet_port)(text, source.ports,
                                                                              source.unit);
    const std::vector<point2> vertices = read_dxf(text.bytes()).vertices;
    outline.pop_back();
    ASSERT_GE(vertices.size(), outline.size());
    for (std::size_t i = 0; i < outline.size(); ++i) {
        ASSERT_LT(distance(vertices[i], outline[i]), 2e-6);
    }
}

/// The cutter of a pocket never comes nearer to the X/Y file than its radius.
void replay_pocket(const file_source& source, port_side side,
                   const std::vector<cnc_section>& outlines) {
    const std::vector<cnc_section> paths = sections_of(source, side, write_port_pocket);
    ASSERT_EQ(paths.size(), outlines.size());
    const double tool_radius = source.choices.tool_diameter / 2.0;
    const pocket_region pocket(ends_of(outlines[0]));
    for (const point2& centre : ends_of(paths[0])) {
        ASSERT_TRUE(pocket.is_clear(centre, tool_radius - POCKET_GOUGE_MM));
        ASSERT_TRUE(pocket.contains(centre));
    }
}

void replay(const port_design& tested, port_side side, tally& count) {
    const port_shape& built = tested.ports.of(side).built;
    const cnc_choices choices{.cnc_res_digits = DECIMALS,
                              .tool_diameter = 1.6 * built.f,
                              .groove_tool_diameter = 0.8 * tested.ports.groove_width_mm};
    const perf_results none;
    const file_source source{tested.design, tested.rotors, tested.ports, none,
                             tested.boxes,  choices,       "pump"};
    const std::vector<cnc_section> outlines = sections_of(source, side, write_port_xy);
    replay_drawing(source, side, ends_of(outlines[0]));
    const bool has_groove = side == port_side::outlet && tested.ports.has_groove;
    count.faulty_grooves += has_groove && faults_of_groove(tested.ports.groove_built).any() ? 1 : 0;
    if (port_gcode_gap(source, side) > CONTOUR_TOLERANCE_MM) {
        ++count.refused;
        return;
    }
    const std::vector<cnc_section> codes = sections_of(source, side, write_port_gcode);
    ASSERT_EQ(codes.size(), outlines.size());
    for (std::size_t i = 0; i < codes.size(); ++i) {
        const std::vector<cnc_move>& moves = codes[i].moves;
        const std::vector<point2> path = swept_path({moves.begin() + 2, moves.end()}, moves[1].end);
        const std::vector<point2> outline = ends_of(outlines[i]);
        ASSERT_LT(largest_distance(outline, path, 3), CONTOUR_TOLERANCE_MM + 1e-5);
        ASSERT_LT(largest_distance(path, outline, 3),
                  CONTOUR_TOLERANCE_MM + CHORD_HEIGHT_MM + 1e-5);
    }
    ++count.followed;
    count.grooves += has_groove ? 1 : 0;
    if (count.followed % FILES_PER_POCKET == 0 && built.f > 0.0 &&
        (!has_groove || !faults_of_groove(tested.ports.groove_built).any())) {
        replay_pocket(source, side, outlines);
        ++count.pockets;
    }
}

}  // namespace

TEST(port_sets, have_codes_that_follow_their_outlines_or_are_refused) {
    random_values random;
    tally count;
    const int sets = property_count(SETS);
    for (int run = 0; run < sets; ++run) {
        port_design tested;
        type_ports(random, tested.boxes);
        design(tested);
        if (random.whole(0, 1) == 1) {
            type_ports(random, tested.boxes);
            design(tested);
        }
        for (const port_side side : {port_side::inlet, port_side::outlet}) {
            const bool built =
                (side == port_side::inlet ? tested.ports.inlet.last : tested.ports.outlet.last) > 0;
            if (built) {
                replay(tested, side, count);
                ASSERT_FALSE(testing::Test::HasFatalFailure())
                    << run << " " << (side == port_side::inlet ? "inlet" : "outlet");
            }
        }
    }
    std::cout << sets << " sets: " << count.followed << " files replayed, " << count.refused
              << " refused, " << count.grooves << " with a groove, " << count.pockets
              << " pockets, " << count.faulty_grooves << " faulty grooves told\n";
    EXPECT_GT(count.followed, sets / 2) << "most of the sets have files to replay";
}

}  // namespace kvt
