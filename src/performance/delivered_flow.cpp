#include "performance/delivered_flow.hpp"

#include "base/checked_math.hpp"
#include "base/constants.hpp"
#include "performance/perf_grid.hpp"
#include "performance/perf_units.hpp"

namespace kvt {

namespace {

void set_seal_lengths(const design_params& design, const port_params& ports,
                      perf_results& results) {
    results.seal_len_a = (design.ecc + ports.outlet.outer_r - ports.outlet.inner_r) / 1000.0;
    results.seal_len_b = (ports.outlet.outer_r - design.ecc - ports.outlet.inner_r) / 1000.0;
    results.seal_len_c = design.shaftdiameter * PI_D / 2000.0;
}

/// Flow between parallel plates over the land between the outlet port and the shaft, for pressure
/// j. Kept: balanced rotors halve the gap in the velocity only, not in the area;
/// delivered_flow_test holds it.
void set_face_leak(const design_params& design, const port_params& ports, const perf_inputs& inputs,
                   std::size_t j, perf_results& results) {
    const double land_m = (ports.outlet.inner_r - design.shaftdiameter / 2.0) / 1000.0;
    const double gap_m =
        is_balanced(inputs) ? design.axial_clear / 2000.0 : design.axial_clear / 1000.0;
    results.face_gradient[j] = checked_divide(results.press_pa[j], land_m);
    results.face_velocity[j] =
        checked_divide(results.face_gradient[j] * (gap_m * gap_m), results.dyn_visc * 12.0);
    results.leak_face[j] =
        checked_finite((results.seal_len_c + results.seal_len_a + results.seal_len_b) *
                       design.axial_clear * results.face_velocity[j] / 1000.0);
}

void set_leaks(const design_params& design, const port_params& ports, const perf_inputs& inputs,
               perf_results& results) {
    results.tip_gap_r = checked_sqrt((2.0 * design.clearn_half) * design.thick / PIPE_MM2_PER_M2);
    set_seal_lengths(design, ports, results);
    for (std::size_t j = 0; j < GRID_SIZE; ++j) {
        results.leak_tip[j] =
            tip_leak(results.tip_gap_r, results.tip_radius, results.dyn_visc, results.press_pa[j]);
        set_face_leak(design, ports, inputs, j, results);
    }
}

double not_negative(double x) {
    return x < 0.0 ? 0.0 : x;
}

}  // namespace

double tip_leak(double tip_gap_r, double tip_radius, double dyn_visc, double press_pa) {
    return (PI_D / 8.0) * checked_divide(checked_pow(tip_gap_r, 4.0), dyn_visc) *
           checked_divide(press_pa, 2.0 * tip_radius * PI_D / 1000.0);
}

double effective_capacity(const design_params& design, const rotor_profiles& rotors,
                          const port_params& ports) {
    const double r_out =
        ports.outlet.outer_r > design.outer_root ? design.outer_root : ports.outlet.outer_r;
    const double r_in =
        ports.outlet.inner_r < design.radinnroot ? design.radinnroot : ports.outlet.inner_r;
    const double chamber_arc_deg =
        180.0 - rotors.max_chamber_outer_angle - rotors.min_chamber_outer_angle;
    const double effective_cc = checked_divide(
        (ports.outlet.corners[END_OUTER].angle_deg - ports.outlet.corners[START_OUTER].angle_deg) *
            rotors.capacity_cc * (r_out - r_in),
        chamber_arc_deg * (design.outer_root - design.radinnroot));
    return effective_cc > rotors.capacity_cc ? rotors.capacity_cc : effective_cc;
}

void calc_flow(const design_params& design, const rotor_profiles& rotors, const port_params& ports,
               const perf_inputs& inputs, perf_results& results) {
    results.flow_max = 0.0;
    results.flow_min = 100000.0;
    results.vol_eff_max = 0.0;
    results.vol_eff_min = 2.0;
    set_leaks(design, ports, inputs, results);
    results.effective_cc = effective_capacity(design, rotors, ports);
    for (std::size_t j = 0; j < GRID_SIZE; ++j) {
        for (std::size_t i = 0; i < GRID_SIZE; ++i) {
            const double speed = results.speed_rpm[i];
            const double flow = results.effective_cc * speed / CC_RPM_PER_M3S -
                                results.leak_tip[j] - results.leak_face[j];
            results.flow_m3s[i][j] = not_negative(checked_finite(flow));
            results.vol_eff[i][j] = not_negative(checked_divide(
                results.flow_m3s[i][j], rotors.capacity_cc * speed / CC_RPM_PER_M3S));
            take_extremes(results.flow_m3s[i][j], results.flow_max, results.flow_min);
            take_extremes(results.vol_eff[i][j], results.vol_eff_max, results.vol_eff_min);
        }
    }
}

}  // namespace kvt
