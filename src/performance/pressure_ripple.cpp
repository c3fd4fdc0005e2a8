#include "performance/pressure_ripple.hpp"

#include "base/checked_math.hpp"
#include "base/constants.hpp"
#include "performance/chamber_rate.hpp"
#include "performance/outlet_opening.hpp"

#include <algorithm>
#include <cmath>

namespace kvt {

namespace {

/// Kept: half a turn is added whatever the quadrant; pressure_ripple_test holds it.
double edge_angle(double x, double y) {
    return std::abs(std::atan(checked_divide(y, x))) + PI_D;
}

/// Steps of one lobe passage; a real number for most N.
double passage_steps(std::int32_t numlobes) {
    return checked_divide(RIPPLE_STEPS, numlobes - 1.0);
}

void repeat_passage(std::int32_t numlobes, perf_results& results) {
    const double steps = passage_steps(numlobes);
    for (std::int32_t c = 0; c <= numlobes - 2; ++c) {
        for (int t = 0; t <= steps; ++t) {
            checked_at(results.ripple_pressure, to_int32(steps * c + t)) =
                checked_at(results.ripple_sector, t);
        }
    }
}

void set_ripple_percent(perf_results& results) {
    const double percent =
        checked_divide((results.ripple_max - results.ripple_min) * 100.0, results.ripple_max);
    results.ripple_percent = floor_to_int(percent * 100.0) / 100.0;
}

}  // namespace

void set_outlet_edge(const design_params& design, const port_params& ports,
                     const perf_inputs& inputs, perf_results& results) {
    const double x =
        (ports.outlet.corners[END_OUTER].p.x + ports.outlet.corners[END_INNER].p.x) / 2.0;
    const double y =
        (ports.outlet.corners[END_OUTER].p.y + ports.outlet.corners[END_INNER].p.y) / 2.0;
    results.port_centre_x = x;
    results.port_centre_y = y;
    results.port_edge_angle = edge_angle(x, y);
    results.port_edge_r = checked_sqrt(x * x + y * y);
    const double outer_m = ports.outlet.outer_r / 1000.0;
    const double inner_m = ports.outlet.inner_r / 1000.0;
    // Kept: the end angle is that of the outer radius, the start angle that of the inner one;
    // pressure_ripple_test holds it.
    results.port_volume =
        (outer_m * outer_m - inner_m * inner_m) * PI_D *
        (ports.outlet.corners[END_OUTER].angle_deg - ports.outlet.corners[START_INNER].angle_deg) *
        (design.thick / 1000.0) / 360.0;
    if (inputs.metering_groove) {
        results.nose_angle = edge_angle((ports.groove_n1.x + ports.groove_n2.x) / 2.0,
                                        (ports.groove_n1.y + ports.groove_n2.y) / 2.0);
    }
}

double march_into_outlet(const design_params& design, const rotor_profiles& rotors,
                         const port_params& ports, const perf_inputs& inputs,
                         perf_results& results) {
    opening_march march(design, rotors, ports, inputs, results);
    while (!march.is_filled()) {
        march.step();
    }
    return march.outlet_pressure();
}

void recover_pressure(double end_pressure, std::int32_t numlobes, perf_results& results) {
    const double steps = passage_steps(numlobes);
    results.recovery = (results.press_pa[0] - end_pressure) / steps;
    results.ripple_max = 0.0;
    results.ripple_min = 100000000.0;
    for (int t = 0; t <= steps; ++t) {
        double& pressure = checked_at(results.ripple_sector, t);
        const double line = end_pressure + results.recovery * t;
        if (pressure <= line) {
            pressure = line;
        }
        results.ripple_max = std::max(results.ripple_max, pressure);
        results.ripple_min = std::min(results.ripple_min, pressure);
    }
}

void calc_pressure_ripple(const design_params& design, const rotor_profiles& rotors,
                          const port_params& ports, const perf_inputs& inputs,
                          perf_results& results) {
    set_chamber_rate(design, rotors, results);
    set_outlet_edge(design, ports, inputs, results);
    std::ranges::fill(results.ripple_sector, 0.0);
    const double end_pressure = march_into_outlet(design, rotors, ports, inputs, results);
    recover_pressure(end_pressure, design.numlobes, results);
    repeat_passage(design.numlobes, results);
    set_ripple_percent(results);
}

}  // namespace kvt
