#include "performance/face_films.hpp"

#include "base/checked_math.hpp"
#include "base/constants.hpp"

namespace kvt {

namespace {

double circle_mm2(double radius) {
    return PI_D * (radius * radius);
}

double middle(double outer, double inner) {
    return (outer - inner) / 2.0 + inner;
}

/// The part of a revolution that no port covers, from the start and end angles of both ports in
/// degrees.
double land_share(double outlet_start, double outlet_end, double inlet_start, double inlet_end) {
    return ((180.0 - outlet_end) + (180.0 - inlet_end) + (outlet_start + inlet_start)) / 360.0;
}

void set_face_loads(double friction, std::size_t j, perf_results& results) {
    const double pressure = results.press_pa[j];
    results.face_load_inner[j] =
        checked_finite(((pressure * 0.5 * (results.area_root - results.area_shaft) / 1000000.0) +
                        ((results.area_tip - results.area_root) * pressure / 2000000.0)) *
                       (results.outlet_span_deg / 360.0) * friction);
    results.face_load_outer[j] =
        checked_finite((((results.area_outer_root - results.area_pitch) * pressure / 2000000.0) +
                        ((results.area_max - results.area_outer_root) * pressure / 1000000.0)) *
                       (results.outlet_span_deg / 360.0) * friction);
    results.friction_torque_inner[j] = results.inner_mean_r * results.face_load_inner[j] / 1000.0;
    results.friction_torque_outer[j] = results.outer_mean_r * results.face_load_outer[j] / 1000.0;
}

}  // namespace

double shaft_speed(double speed_rpm) {
    return 2.0 * speed_rpm * PI_D / 60.0;
}

void set_mean_radii(const design_params& design, perf_results& results) {
    const double root = design.radinnroot;
    const double shaft = design.shaftdiameter / 2.0;
    const double m1 = middle(results.tip_radius, root);
    double m2 = middle(root, shaft);
    if (m2 < root * 3.0 / 4.0) {
        m2 = root * 3.0 / 4.0;
    }
    results.inner_mean_r = middle(m1, m2);
    const double m3 = middle(design.maxdiameter / 2.0, design.outer_root);
    const double m4 = middle(design.outer_root, design.ecc + root);
    results.outer_mean_r = middle(m3, m4);
}

void set_face_areas(const design_params& design, const port_params& ports,
                    const perf_inputs& inputs, perf_results& results) {
    results.area_tip = circle_mm2(results.tip_radius);
    results.area_root = circle_mm2(design.radinnroot);
    results.area_shaft = circle_mm2(design.shaftdiameter / 2.0);
    results.area_max = circle_mm2(design.maxdiameter / 2.0);
    results.area_outer_root = circle_mm2(design.outer_root);
    results.area_pitch = circle_mm2(design.ecc + design.radinnroot);

    results.land_share_inner = land_share(
        ports.outlet.corners[START_INNER].angle_deg, ports.outlet.corners[END_INNER].angle_deg,
        ports.inlet.corners[START_INNER].angle_deg, ports.inlet.corners[END_INNER].angle_deg);
    results.face_area_inner =
        checked_finite((((results.area_tip - results.area_root) / 2.0) * results.land_share_inner +
                        (results.area_root - results.area_shaft)) *
                       inputs.Face_area_value / 100.0);
    results.land_share_outer = land_share(
        ports.outlet.corners[START_OUTER].angle_deg, ports.outlet.corners[END_OUTER].angle_deg,
        ports.inlet.corners[START_OUTER].angle_deg, ports.inlet.corners[END_OUTER].angle_deg);
    results.face_area_outer = checked_finite(
        ((results.area_max - results.area_outer_root) +
         ((results.area_outer_root - results.area_pitch) / 2.0) * results.land_share_outer) *
        inputs.Face_area_value / 100.0);
}

void set_pressure_friction(const perf_inputs& inputs, const port_params& ports,
                           perf_results& results) {
    results.outlet_span_deg =
        ports.outlet.corners[END_OUTER].angle_deg - ports.outlet.corners[START_OUTER].angle_deg;
    for (std::size_t j = 0; j < GRID_SIZE; ++j) {
        set_face_loads(inputs.friction, j, results);
        for (std::size_t i = 0; i < GRID_SIZE; ++i) {
            // Kept: the inner term is a torque, added without a speed; face_films_test holds it.
            const double power =
                (2.0 * results.friction_torque_outer[j] * results.speed_rpm[i] * PI_D / 60.0) +
                results.friction_torque_inner[j];
            results.friction_power[i][j] = is_balanced(inputs) ? 0.0 : power;
        }
    }
}

void set_face_shear(const design_params& design, const perf_inputs& inputs, perf_results& results) {
    const bool balanced = is_balanced(inputs);
    const double gap_m = balanced ? design.axial_clear / 2000.0 : design.axial_clear / 1000.0;
    const double numlobes = design.numlobes;
    const double inner_r_m = results.inner_mean_r / 1000.0;
    const double outer_r_m = results.outer_mean_r / 1000.0;
    for (std::size_t i = 0; i < GRID_SIZE; ++i) {
        const double omega = shaft_speed(results.speed_rpm[i]);
        results.face_shear_inner[i] = checked_divide(
            omega * inner_r_m * ((results.face_area_inner / 1000000.0) * results.dyn_visc) *
                inner_r_m,
            gap_m);
        results.face_shear_outer[i] = checked_divide(
            omega * ((numlobes - 1.0) / numlobes) * outer_r_m *
                ((results.face_area_outer / 1000000.0) * results.dyn_visc) * outer_r_m,
            gap_m);
        results.face_shear_inner_2[i] = 0.0;
        results.face_shear_outer_2[i] = 0.0;
        const double inner_torque =
            balanced ? 2.0 * results.face_shear_inner[i]
                     : results.face_shear_inner[i] + results.face_shear_inner_2[i];
        const double outer_torque =
            balanced ? 2.0 * results.face_shear_outer[i]
                     : results.face_shear_outer[i] + results.face_shear_outer_2[i];
        results.face_power_inner[i] = 2.0 * inner_torque * results.speed_rpm[i] * PI_D / 60.0;
        results.face_power_outer[i] = outer_torque * omega * (numlobes - 1.0) / numlobes;
    }
}

void set_periphery_shear(const design_params& design, const perf_inputs& inputs,
                         perf_results& results) {
    results.od_band = (inputs.OD_area_value / 100.0) * design.thick;
    for (std::size_t i = 0; i < GRID_SIZE; ++i) {
        results.od_shear[i] = checked_divide(
            checked_pow(design.maxdiameter / 2000.0, 3.0) * TWO_PI_P * (results.od_band / 1000.0) *
                results.dyn_visc * shaft_speed(results.speed_rpm[i]),
            design.radial_clear / 1000.0);
        results.od_power[i] = 2.0 * results.od_shear[i] * results.speed_rpm[i] * PI_D / 60.0;
    }
}

}  // namespace kvt
