#include "gtsuite/pump_values.hpp"

#include "base/checked_math.hpp"
#include "base/constants.hpp"
#include "performance/perf_units.hpp"

namespace kvt {

namespace {

constexpr double RAD_S_PER_RPM = 2.0 * PI_D / 60.0;
constexpr double UM_PER_MM = 1000.0;
/// The gap of both faces together, twice that of each side, in micrometres to the metre.
constexpr double SIDES_UM_PER_M = 500000.0;
constexpr double MM4_PER_M4 = 1e12;

/// Moment of the mean radius in m and a loaded area in mm2, N m a Pa.
double loaded_moment(double mean_radius, double area_mm2) {
    return mean_radius / 1000.0 * area_mm2 / 1000000.0;
}

/// G = r_i^2 A_i + ((N - 1) / N)^2 r_o^2 A_o, m4: the shear of both face films over speed,
/// viscosity and gap.
double face_moment(const design_params& design, const perf_results& results) {
    const double numlobes = design.numlobes;
    const double rotor_ratio = checked_divide(numlobes - 1.0, numlobes);
    const double inner_r = results.inner_mean_r / 1000.0;
    const double outer_r = results.outer_mean_r / 1000.0;
    return inner_r * inner_r * results.face_area_inner / 1000000.0 +
           rotor_ratio * rotor_ratio * (outer_r * outer_r) * results.face_area_outer / 1000000.0;
}

double pressure_friction(const perf_results& results) {
    const double inner_area = 0.5 * (results.area_root - results.area_shaft) +
                              0.5 * (results.area_tip - results.area_root);
    const double outer_area = 0.5 * (results.area_outer_root - results.area_pitch) +
                              (results.area_max - results.area_outer_root);
    return BAR_PA * (results.outlet_span_deg / 360.0) *
           (loaded_moment(results.inner_mean_r, inner_area) +
            loaded_moment(results.outer_mean_r, outer_area));
}

void set_faces(const design_params& design, const perf_results& results, pump_values& pump) {
    pump.velocity_factor = RAD_S_PER_RPM * results.inner_mean_r / 1000.0;
    pump.face_area_mm2 = results.face_area_inner + results.face_area_outer;
    // Faces that carry no film shear at no radius.
    pump.face_radius =
        pump.face_area_mm2 == 0.0
            ? 0.0
            : checked_sqrt(face_moment(design, results) * MM4_PER_M4 / pump.face_area_mm2);
}

void set_grid_of_cases(const perf_results& results, pump_values& pump) {
    pump.speed_rpm = results.speed_rpm;
    for (std::size_t j = 0; j < GRID_SIZE; ++j) {
        pump.pressure_bar[j] = results.press_pa[j] / BAR_PA;
    }
}

}  // namespace

drag_constants drag_constants_of(const design_params& design, const perf_inputs& inputs,
                                 const perf_results& results) {
    drag_constants constants;
    constants.pressure_friction = pressure_friction(results);
    constants.face_shear = RAD_S_PER_RPM * face_moment(design, results) * SIDES_UM_PER_M;
    constants.shaft_rate = RAD_S_PER_RPM;
    constants.periphery_shear = TWO_PI_P * (inputs.OD_area_value / 100.0) * 1000000.0;
    return constants;
}

pump_values pump_values_of(const design_params& design, const port_params& ports,
                           const perf_inputs& inputs, const perf_results& results) {
    pump_values pump;
    pump.numlobes = design.numlobes;
    pump.thick = design.thick;
    pump.maxdiameter = design.maxdiameter;
    pump.shaftdiameter = design.shaftdiameter;
    pump.tip_clearance_um = 2.0 * UM_PER_MM * design.clearn_half;
    pump.axial_clearance_each_side_um = UM_PER_MM / 2.0 * design.axial_clear;
    pump.radial_clearance_um = UM_PER_MM * design.radial_clear;
    pump.density_kgm3 = inputs.density_kgm3;
    pump.kin_visc_cst = inputs.kin_visc_cst;
    pump.friction = inputs.friction;
    pump.shadow_ports = inputs.shadow_ports;
    pump.inlet_gap_width = ports.inlet.outer_r - ports.inlet.inner_r;
    pump.outlet_gap_width = ports.outlet.outer_r - ports.outlet.inner_r;
    pump.drag = drag_constants_of(design, inputs, results);
    set_faces(design, results, pump);
    set_grid_of_cases(results, pump);
    pump.bearing_length = design.shaftdiameter;
    // 0.001 of the diameter: as many micrometres as the diameter has millimetres.
    pump.bearing_clearance_um = design.shaftdiameter;
    return pump;
}

}  // namespace kvt
