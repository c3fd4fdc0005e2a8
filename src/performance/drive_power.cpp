#include "performance/drive_power.hpp"

#include "base/checked_math.hpp"
#include "base/constants.hpp"
#include "performance/face_films.hpp"
#include "performance/perf_grid.hpp"
#include "performance/perf_units.hpp"

namespace kvt {

namespace {

/// Torque of a power in W at a speed in rpm, N m.
double torque_of(double power, double speed_rpm) {
    return checked_divide(power * 60.0, 2.0 * speed_rpm * PI_D);
}

void set_hydraulic_power(const rotor_profiles& rotors, perf_results& results) {
    for (std::size_t i = 0; i < GRID_SIZE; ++i) {
        for (std::size_t j = 0; j < GRID_SIZE; ++j) {
            results.hyd_power[i][j] =
                rotors.capacity_cc * results.speed_rpm[i] * results.press_pa[j] / CC_RPM_PER_M3S;
            results.hyd_torque[i][j] = torque_of(results.hyd_power[i][j], results.speed_rpm[i]);
        }
    }
}

/// Kept: the film at the tips is worked out and is no term of the total; drive_power_test holds it.
void set_tip_drag(const design_params& design, perf_results& results) {
    const double gap_mm = 2.0 * design.clearn_half;
    const double numlobes = design.numlobes;
    for (std::size_t i = 0; i < GRID_SIZE; ++i) {
        results.tip_drag_power[i] =
            checked_divide(shaft_speed(results.speed_rpm[i]) * (numlobes - 1.0) *
                               (results.tip_radius / 1000.0) * (gap_mm * design.thick / 1000000.0) *
                               results.dyn_visc * (results.sliding_mean[i] / 1000.0),
                           gap_mm / 1000.0);
    }
}

void set_total(perf_results& results) {
    results.power_max = 0.0;
    results.power_min = 10000000.0;
    for (std::size_t i = 0; i < GRID_SIZE; ++i) {
        for (std::size_t j = 0; j < GRID_SIZE; ++j) {
            results.drive_power[i][j] = checked_finite(
                results.hyd_power[i][j] + results.friction_power[i][j] +
                results.face_power_inner[i] + results.face_power_outer[i] + results.od_power[i]);
            results.drive_torque[i][j] = torque_of(results.drive_power[i][j], results.speed_rpm[i]);
            take_extremes(results.drive_power[i][j], results.power_max, results.power_min);
        }
    }
}

}  // namespace

void calc_drive_power(const design_params& design, const rotor_profiles& rotors,
                      const port_params& ports, const perf_inputs& inputs, perf_results& results) {
    set_hydraulic_power(rotors, results);
    set_tip_drag(design, results);
    set_mean_radii(design, results);
    set_face_areas(design, ports, inputs, results);
    set_pressure_friction(inputs, ports, results);
    set_face_shear(design, inputs, results);
    set_periphery_shear(design, inputs, results);
    set_total(results);
}

void calc_mech_efficiency(const rotor_profiles& rotors, perf_results& results) {
    results.mech_eff_max = 0.0;
    results.mech_eff_min = 1000.0;
    for (std::size_t i = 0; i < GRID_SIZE; ++i) {
        for (std::size_t j = 0; j < GRID_SIZE; ++j) {
            results.mech_eff[i][j] =
                checked_divide(rotors.capacity_cc * results.press_pa[j] / CC_PA_PER_NM,
                               results.drive_torque[i][j]);
            take_extremes(results.mech_eff[i][j], results.mech_eff_max, results.mech_eff_min);
        }
    }
}

void calc_overall_efficiency(perf_results& results) {
    results.overall_eff_max = 0.0;
    results.overall_eff_min = 1000.0;
    for (std::size_t i = 0; i < GRID_SIZE; ++i) {
        for (std::size_t j = 0; j < GRID_SIZE; ++j) {
            results.overall_eff[i][j] = results.vol_eff[i][j] * results.mech_eff[i][j];
            take_extremes(results.overall_eff[i][j], results.overall_eff_max,
                          results.overall_eff_min);
        }
    }
}

}  // namespace kvt
