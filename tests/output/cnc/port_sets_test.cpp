// Random sets of ports, built once or twice over the same records: the G-codes of every outline are
// replayed against its X/Y file, or refused with their distance.
#include "base/run_time_error.hpp"
#include "output/cnc/contour_gap.hpp"
#include "output/cnc/port_cnc.hpp"
#include "ports/build_ports.hpp"
#include "ports/metering_groove.hpp"
#include "support/cnc_reader.hpp"
#include "support/port_design.hpp"
#include "support/property_runs.hpp"

#include <gtest/gtest.h>
#include <iostream>

namespace kvt {

namespace {

/// 3,000 with KVT_PROPERTY_SCALE=20.
constexpr int SETS = 150;
constexpr std::int16_t DECIMALS = 6;

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
    int followed = 0, refused = 0, grooves = 0;
};

void replay(const port_design& tested, port_side side, tally& count) {
    const cnc_choices choices{.cnc_res_digits = DECIMALS};
    const file_source source{tested.design, tested.rotors, tested.ports,
                             tested.boxes,  choices,       "pump"};
    if (port_gcode_gap(source, side) > CONTOUR_TOLERANCE_MM) {
        ++count.refused;
        return;
    }
    text_lines xy;
    text_lines gcode;
    write_port_xy(source, side, xy);
    write_port_gcode(source, side, gcode);
    const std::vector<cnc_section> outlines = cnc_reader(xy.bytes(), DECIMALS).sections();
    const std::vector<cnc_section> codes = cnc_reader(gcode.bytes(), DECIMALS).sections();
    ASSERT_EQ(codes.size(), outlines.size());
    for (std::size_t i = 0; i < codes.size(); ++i) {
        const std::vector<cnc_move>& moves = codes[i].moves;
        const std::vector<point2> path = swept_path({moves.begin() + 2, moves.end()}, moves[1].end);
        const std::vector<point2> outline = ends_of(outlines[i]);
        ASSERT_LT(largest_distance(outline, path, 3), CONTOUR_TOLERANCE_MM + 1e-5);
        ASSERT_LT(largest_distance(path, outline, 3), CONTOUR_TOLERANCE_MM + 1e-5);
    }
    ++count.followed;
    count.grooves += side == port_side::outlet && tested.ports.has_groove ? 1 : 0;
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
              << " refused, " << count.grooves << " with a groove\n";
    EXPECT_GT(count.followed, sets / 2) << "most of the sets have files to replay";
}

}  // namespace kvt
