// Random designs with ports, as an engineer would type them, drawn until every command accepts
// them.
#pragma once

#include "app/program.hpp"
#include "app/stages/calculate_profiles.hpp"
#include "app/stages/design_ports.hpp"
#include "base/number_text.hpp"
#include "support/property_runs.hpp"
#include "support/scripted_user.hpp"

#include <cmath>
#include <stdexcept>
#include <string>

namespace kvt {

/// A value with four decimals, as an entry.
inline std::string typed_number(double value) {
    return number_text(std::round(value * 10000.0) / 10000.0);
}

/// The rotors in the unit of the entries: 25.4 for inches makes them as large as those of 1 for
/// millimetres.
inline void type_random_rotors(random_values& random, entries& boxes, double unit) {
    const int lobes = random.whole(3, 14);
    const double ratio = random.real(1.12, 2.6);
    const double ecc = random.real(8.0, 30.0) / (ratio * lobes) / unit;
    const double radouter = ecc * random.real(1.0, 6.0);
    const double radinnroot = ratio * lobes * ecc - radouter - ecc;
    boxes.numlobes = number_text(lobes);
    boxes.ecc = typed_number(ecc);
    boxes.radouter = typed_number(radouter);
    boxes.radinnroot = typed_number(radinnroot);
    boxes.clearn = typed_number(random.real(0.01, 0.2) / unit);
    boxes.thick = typed_number(10.0 / unit);
    boxes.shaftdiameter = typed_number(radinnroot);
    boxes.minmaterial = typed_number(radinnroot / 2.0);
    boxes.maxdiameter = typed_number(2.1 * (radinnroot * 1.5 + 3.0 * ecc));
    boxes.axial_clear = boxes.radial_clear = typed_number(0.05 / unit);
    boxes.fillet = random.whole(0, 1) == 0 ? "0" : typed_number(ecc * random.real(0.05, 0.9));
}

inline void type_random_ports(random_values& random, entries& boxes) {
    const double width = 2.0 * val(boxes.ecc);
    const bool sharp = random.whole(0, 4) == 0;
    boxes.port_radii = sharp ? "" : typed_number(random.real(0.05, 0.2) * width);
    for (const char* port : {"inlet", "outlet"}) {
        const auto box = [&](const char* place) -> std::string& {
            return boxes.*find_entry(std::string(port) + place)->member;
        };
        const double start = random.real(5.0, 45.0);
        const double end = random.real(5.0, 50.0);
        box("_start_inner") = typed_number(start);
        box("_start_outer") = typed_number(start * random.real(0.75, 0.95));
        box("_end_inner") = typed_number(180.0 - end);
        box("_end_outer") = typed_number(180.0 - end * random.real(1.05, 1.3));
    }
    const auto ticked = [&random] { return random.whole(0, 1) == 0 ? "0" : "1"; };
    boxes.inlet_double_sided = ticked();
    boxes.outlet_double_sided = ticked();
    boxes.shadow_ports = ticked();
    boxes.metering_groove = ticked();
    boxes.groove_length = typed_number(random.real(8.0, 15.0));
    boxes.groove_width = typed_number(random.real(0.1, 0.3) * width);
    boxes.groove_depth = typed_number(0.2 * width);
}

/// A program whose profiles and ports (and groove, when it has one) are done without a message:
/// designs with hints among them, whose lobes are more than half a turn or whose groove lies on the
/// wrong side of the pump.
inline program random_design(random_values& random) {
    for (int draw = 0; draw < 1000; ++draw) {
        program kavetta;
        scripted_user person;
        const bool inches = random.whole(0, 3) == 0;
        kavetta.app_state.drawing_units = inches ? INCHES : MILLIMETRES;
        kavetta.app_state.project_name = "random";
        type_random_rotors(random, kavetta.entries, inches ? 25.4 : 1.0);
        type_random_ports(random, kavetta.entries);
        kavetta.design_params.ecc = val(kavetta.entries.ecc);
        kavetta.design_params.radinnroot = val(kavetta.entries.radinnroot);
        if (calculate_profiles(kavetta, person) != run_end::ok || !person.messages.empty()) {
            continue;
        }
        const ports_designed done = design_ports(kavetta, person);
        const bool groove = kavetta.entries.metering_groove == "0" || done.groove;
        if (done.inlet && done.outlet && groove && person.messages.empty()) {
            return kavetta;
        }
    }
    throw std::runtime_error("no sound design in 1000 draws");
}

}  // namespace kvt
