#include "performance/maximum_speed.hpp"

#include "base/checked_math.hpp"
#include "base/constants.hpp"
#include "performance/perf_units.hpp"

#include <algorithm>

namespace kvt {

namespace {

constexpr double REYNOLDS_LIMIT = 2000.0;

double end_or_half_turn(double end_deg) {
    return end_deg == 0.0 ? 180.0 : end_deg;
}

double sector_mm2(double radius, double start_deg, double end_deg) {
    return radius * radius * PI_D * (end_deg - start_deg) / 360.0;
}

}  // namespace

void calc_maximum_speed(const rotor_profiles& rotors, const port_params& ports,
                        const perf_inputs& inputs, perf_results& results) {
    const double density = inputs.density_kgm3;
    results.fill_velocity = checked_sqrt(checked_divide(2.0 * (BAR_PA - inputs.pv), density));
    results.tip_speed_rpm =
        checked_divide(results.fill_velocity * 1000.0, results.tip_radius) * (60.0 / TWO_PI_P);

    const inlet_sectors inlet = sectors_of_inlet(ports);
    results.sector_outer = inlet.outer_mm2;
    results.sector_inner = inlet.inner_mm2;
    results.port_area = (results.sector_outer - results.sector_inner) / 1000000.0;
    results.port_equiv_r = checked_sqrt(results.port_area / PI_D);
    results.port_velocity =
        checked_divide(REYNOLDS_LIMIT * results.dyn_visc, density * results.port_equiv_r);
    results.port_flow = results.port_area * results.port_velocity;
    if (inputs.inlet_double_sided) {
        results.port_flow = results.port_flow * 2.0;
    }
    results.port_speed_rpm = checked_divide(results.port_flow, rotors.capacity_cc / CC_RPM_PER_M3S);
    if (limit_of_speed(results)) {
        results.max_speed_rpm = std::min(results.tip_speed_rpm, results.port_speed_rpm);
    }
}

inlet_sectors sectors_of_inlet(const port_params& ports) {
    return {sector_mm2(ports.inlet.outer_r, ports.inlet.corners[START_OUTER].angle_deg,
                       end_or_half_turn(ports.inlet.corners[END_OUTER].angle_deg)),
            sector_mm2(ports.inlet.inner_r, ports.inlet.corners[START_INNER].angle_deg,
                       end_or_half_turn(ports.inlet.corners[END_INNER].angle_deg))};
}

std::optional<speed_limit> limit_of_speed(const perf_results& results) {
    if (results.tip_speed_rpm < results.port_speed_rpm) {
        return speed_limit::tip_velocity;
    }
    if (results.tip_speed_rpm > results.port_speed_rpm) {
        return speed_limit::port_velocity;
    }
    return std::nullopt;
}

}  // namespace kvt
