#include "performance/outlet_opening.hpp"

#include "base/checked_math.hpp"
#include "base/constants.hpp"

#include <algorithm>
#include <cmath>

namespace kvt {

namespace {

/// Flow through a round pipe of radius r and length l, m3/s (Hagen-Poiseuille); d is the pressure
/// difference.
double pipe_flow(double radius_m, double dyn_visc, double difference, double length_m) {
    return (PI_D / 8.0) * checked_divide(checked_pow(radius_m, 4.0), dyn_visc) *
           checked_divide(difference, length_m);
}

}  // namespace

opening_march::opening_march(const design_params& design, const rotor_profiles& rotors,
                             const port_params& ports, const perf_inputs& inputs,
                             perf_results& results)
    : design_(design),
      ports_(ports),
      inputs_(inputs),
      results_(results),
      numlobes_(design.numlobes),
      outlet_pressure_(results.press_pa[0]) {
    results_.trapped_volume = checked_divide(rotors.capacity_cc, (numlobes_ - 1.0) * 1000000.0);
}

bool opening_march::is_open(double& height) const {
    const double alpha = (s_ / 10.0 + 180.0 / (numlobes_ - 1.0)) * PI_D / 180.0;
    const double edge_r_m = results_.port_edge_r / 1000.0;
    const double behind_edge = alpha - results_.port_edge_angle;
    if (!inputs_.metering_groove) {
        height = edge_r_m * std::sin(behind_edge);
        return !(height < 0.0);
    }
    const double behind_nose = alpha - results_.nose_angle;
    height = edge_r_m * std::sin(behind_edge > 0.0 ? behind_edge : behind_nose);
    return behind_nose > 0.0;
}

/// Oil that flows into the chamber in this step, m3. The opening is a triangle of this height, as
/// deep as the groove or, without one, as the rotor; a pipe of the same volume and of the rotor's
/// length has the same flow.
double opening_march::inflow(double height) const {
    const double thick_m = design_.thick / 1000.0;
    const double opening_area = height * checked_sqrt(height * height / 3.0);
    const double depth_mm = inputs_.metering_groove ? ports_.groove_depth_mm : design_.thick;
    const double opening_volume = (depth_mm / 1000.0) * opening_area;
    const double pipe_r =
        checked_sqrt(checked_divide(std::abs(opening_volume), design_.thick * PI_D / 1000.0));
    const double flow =
        pipe_flow(pipe_r, results_.dyn_visc, outlet_pressure_ - chamber_pressure_, thick_m);
    return flow * checked_divide(1.0, results_.speed_rpm[0] * 3600.0 / 60.0);
}

/// chamber_volume is the trapped volume less all positive rates from step 1400 to the chamber's
/// own. The chambers stand in the order of their steps and subtract the same rates from the same
/// start, so one pass serves them all.
void opening_march::set_other_chambers() {
    double volume = results_.trapped_volume;
    int t = FIRST_STEP;
    for (int k = 1; k <= design_.numlobes - 2; ++k) {
        double& index = checked_at(chamber_index_, k);
        index = s_ + (k / (numlobes_ - 1.0)) * RIPPLE_STEPS;
        checked_at(results_.chamber_rate, static_cast<std::int64_t>(floor_to_int(index)));
        const double last = std::min(index, RIPPLE_STEPS - 1.0);  // the rates beyond are 0
        for (; t <= last; ++t) {
            const double rate = results_.chamber_rate[static_cast<std::size_t>(t)];
            if (rate > 0.0) {
                volume = volume - rate;
            }
        }
        checked_at(chamber_volume_, k) = volume;
    }
}

opening_march::outlet_system opening_march::outlet() const {
    outlet_system system{results_.port_volume, 0.0};
    for (int k = 1; k <= design_.numlobes - 2; ++k) {
        const double index = checked_at(chamber_index_, k);
        if (index - 1800.0 / (numlobes_ - 1.0) <
            RIPPLE_STEPS - ports_.outlet.corners[START_INNER].angle_deg * 10.0) {
            system.volume = system.volume + checked_at(chamber_volume_, k);
            system.rate = system.rate + checked_at(results_.chamber_rate, to_int32(index));
        }
    }
    return system;
}

void opening_march::fill(double step_volume) {
    const double compressed = inputs_.bulk_mod_pa * step_volume;
    chamber_pressure_ = chamber_pressure_ + checked_divide(compressed, results_.trapped_volume);
    const outlet_system system = outlet();
    outlet_pressure_ =
        outlet_pressure_ -
        checked_divide(compressed, (system.volume + results_.trapped_volume) - system.rate);
    checked_at(results_.ripple_sector, row_) = checked_finite(outlet_pressure_);
    results_.trapped_volume = results_.trapped_volume - checked_at(results_.chamber_rate, s_);
    started_ = true;
    ++row_;
}

void opening_march::step() {
    double height = 0.0;
    if (is_open(height)) {
        const double step_volume = inflow(height);
        set_other_chambers();
        fill(step_volume);
    }
    ++s_;
    checked_at(results_.chamber_rate,
               s_);  // a chamber that never fills ends at the end of the array
}

}  // namespace kvt
