// perf_results: everything that Calculate Performance computes, over 6 speeds by 6 pressures.
// Sources: docs/formulas/flow.md, docs/formulas/power.md, docs/formulas/contact.md and
// docs/formulas/ripple.md, each with the fields that it fills.
#pragma once

#include "base/zeroed_array.hpp"

#include <array>
#include <cstddef>
#include <vector>

namespace kvt {

/// Speeds, and pressures, of the grid.
inline constexpr std::size_t GRID_SIZE = 6;
/// Last index of the arrays over the rotation angle in degrees.
inline constexpr std::size_t ANGLE_ARRAY_LAST = 360;
/// Last angle in degrees at which contact forces are computed; the first is 1.
inline constexpr int CONTACT_ANGLE_LAST = 179;
/// Last lobe number of the lobe arrays.
inline constexpr std::size_t LOBE_ARRAY_LAST = 100;
/// Steps of the ripple model in a revolution of the inner rotor, 0.1 degree each.
inline constexpr int RIPPLE_STEPS = 3600;
/// Last indexes of the ripple arrays.
inline constexpr int CHAMBER_RATE_LAST = 72000;
inline constexpr int RIPPLE_SECTOR_LAST = 5000;
inline constexpr int RIPPLE_PRESSURE_LAST = 36000;

using perf_list = std::array<double, GRID_SIZE>;              ///< [speed], or [pressure]
using perf_grid = std::array<perf_list, GRID_SIZE>;           ///< [speed][pressure]
using perf_array = zeroed_array;                              ///< [degree], or [0.1 degree]
using perf_speed_angles = std::array<perf_array, GRID_SIZE>;  ///< [speed][degree]
using perf_grid_angles =
    std::array<std::array<perf_array, GRID_SIZE>, GRID_SIZE>;  ///< [speed][pressure][degree]
using perf_lobe_angles = std::vector<perf_array>;              ///< [lobe][degree], lobe 1 .. N

/// Values keep what the last run left. The first index is the speed, the second the pressure.
struct perf_results {
    static perf_array angle_array() { return perf_array(ANGLE_ARRAY_LAST + 1); }
    static perf_array step_array(int last) {
        return perf_array(static_cast<std::size_t>(last) + 1);
    }
    static perf_lobe_angles lobe_arrays() {
        return perf_lobe_angles(LOBE_ARRAY_LAST + 1, angle_array());
    }
    static perf_speed_angles speed_arrays();
    static perf_grid_angles grid_arrays();

    // Fluid and grid.
    double dyn_visc = 0.0;        ///< dynamic viscosity, Pa s
    double tip_radius = 0.0;      ///< largest radius of the inner rotor, mm
    double press_step_bar = 0.0;  ///< step of the pressure grid, bar
    double speed_step = 0.0;      ///< step of the speed grid, rpm
    perf_list press_pa{};         ///< pressures of the grid, Pa
    perf_list speed_rpm{};        ///< speeds of the grid, rpm

    // Maximum speed without cavitation.
    double fill_velocity = 0.0;   ///< velocity at which the atmosphere can fill a chamber, m/s
    double tip_speed_rpm = 0.0;   ///< speed at which the rotor tip moves that fast, rpm
    double sector_outer = 0.0;    ///< sector of the inlet's outer radius, mm2
    double sector_inner = 0.0;    ///< sector of its inner radius, mm2
    double port_area = 0.0;       ///< area of the inlet port, m2
    double port_equiv_r = 0.0;    ///< radius of a round pipe of that area, m
    double port_velocity = 0.0;   ///< velocity at Reynolds number 2000 on that radius, m/s
    double port_flow = 0.0;       ///< flow through the inlet at that velocity, m3/s
    double port_speed_rpm = 0.0;  ///< speed at which the pump takes that flow, rpm
    double max_speed_rpm = 0.0;   ///< the lower of both speeds; kept when they are equal

    // Delivered flow.
    double flow_max = 0.0, flow_min = 0.0;        ///< extremes over the grid, m3/s
    double vol_eff_max = 0.0, vol_eff_min = 0.0;  ///< extremes, ratio
    double effective_cc = 0.0;  ///< capacity that the outlet port uncovers, cm3/rev
    double seal_len_a = 0.0, seal_len_b = 0.0, seal_len_c = 0.0;  ///< lengths of the face seal, m
    double tip_gap_r = 0.0;     ///< radius of the round pipe of the tip gap's area, m
    perf_list face_gradient{};  ///< pressure gradient over the face land, Pa/m, [pressure]
    perf_list face_velocity{};  ///< velocity of the leak over the faces, m/s, [pressure]
    perf_list leak_tip{};       ///< leak through the tip gap, m3/s, [pressure]
    perf_list leak_face{};      ///< leak over the faces, m3/s, [pressure]
    perf_grid flow_m3s{};       ///< delivered flow, m3/s
    perf_grid vol_eff{};        ///< volumetric efficiency, ratio

    // Torque and power.
    double power_max = 0.0, power_min = 0.0;                   ///< extremes of the drive power, W
    double mech_eff_max = 0.0, mech_eff_min = 0.0;             ///< extremes, ratio
    double overall_eff_max = 0.0, overall_eff_min = 0.0;       ///< extremes, ratio
    double inner_mean_r = 0.0, outer_mean_r = 0.0;             ///< mean radii of the faces, mm
    double area_tip = 0.0, area_root = 0.0, area_shaft = 0.0;  ///< circles of the inner rotor, mm2
    double area_max = 0.0, area_outer_root = 0.0,
           area_pitch = 0.0;                                ///< circles of the outer rotor, mm2
    double land_share_inner = 0.0, land_share_outer = 0.0;  ///< share of a turn without ports
    double face_area_inner = 0.0, face_area_outer = 0.0;    ///< film areas of the faces, mm2
    double outlet_span_deg = 0.0;  ///< angle of the outlet on its outer radius, degrees
    double od_band = 0.0;          ///< width of the film on the periphery, mm
    perf_list tip_drag_power{};    ///< film power at the tips, W, [speed]; no term of the total
    perf_list face_load_inner{},
        face_load_outer{};  ///< friction force of the loaded faces, N, [pressure]
    perf_list friction_torque_inner{}, friction_torque_outer{};  ///< their torque, N m, [pressure]
    perf_list face_shear_inner{}, face_shear_outer{};  ///< torque of the face films, N m, [speed]
    perf_list face_shear_inner_2{}, face_shear_outer_2{};  ///< torque of a second film: always 0
    perf_list face_power_inner{}, face_power_outer{};      ///< power of the face films, W, [speed]
    perf_list od_shear{}, od_power{};  ///< torque N m and power W of the periphery, [speed]
    perf_grid hyd_power{};             ///< hydraulic power, W
    perf_grid hyd_torque{};            ///< hydraulic torque, N m
    perf_grid friction_power{};        ///< power of the loaded faces, W
    perf_grid drive_power{};           ///< shaft input power, W
    perf_grid drive_torque{};          ///< shaft input torque, N m
    perf_grid mech_eff{};              ///< mechanical efficiency, ratio
    perf_grid overall_eff{};           ///< overall efficiency, ratio

    // Lobe contact. Angles a of the inner rotor in degrees.
    double n_ecc = 0.0;             ///< N ecc, mm
    double trochoid_ratio = 0.0;    ///< trochoid_r / (N ecc)
    double arm_base = 0.0;          ///< (N - 1) ecc, mm
    double combined_modulus = 0.0;  ///< of both materials, MPa
    double hertz_max = 0.0;         ///< largest contact stress, MPa
    double cutter_r = 0.0;  ///< tightest concave curvature of the inner rotor, mm, two decimals
    double root_arc = 0.0;  ///< area of the shaft side load, mm2
    perf_list sliding_max{}, sliding_mean{};  ///< sliding velocity over a turn, mm/s, [speed]
    perf_array contact_dist = angle_array();  ///< mm, a = 1 .. 360
    perf_speed_angles sliding_velocity = speed_arrays();  ///< mm/s, a = 1 .. 360
    perf_lobe_angles lobe_dist = lobe_arrays();           ///< mm, a = 1 .. 179
    perf_lobe_angles lobe_angle = lobe_arrays();          ///< radians
    perf_lobe_angles lobe_arm_dist = lobe_arrays();       ///< mm
    perf_lobe_angles lobe_arm = lobe_arrays();            ///< lever arm of the contact force, mm
    perf_grid_angles contact_force = grid_arrays();       ///< N, a = 1 .. 179
    perf_grid_angles hertz_stress =
        grid_arrays();  ///< MPa, a = 1 .. 179; kept where equiv_r is negative
    perf_grid_angles hertz_sliding =
        grid_arrays();  ///< stress times sliding a radian of turn, MPa mm; likewise
    perf_array pressure_angle = angle_array();  ///< radians, a = 1 .. 179
    perf_array troch_curv_r = angle_array();    ///< radius of curvature of the trochoid, mm
    perf_array inner_curv_r = angle_array();    ///< radius of curvature of the inner rotor, mm
    perf_array equiv_r = angle_array();         ///< equivalent radius of the contact, mm
    perf_array side_x = angle_array(),
               side_y = angle_array();  ///< side load of the grid point computed last, N
    perf_array side_mag = angle_array(),
               side_dir = angle_array();  ///< its size, N, and direction, radians
    perf_grid side_load{};                ///< load on the shaft, N
    perf_grid side_load_angle{};          ///< radians

    // Pressure ripple.
    double ratio = 0.0;                               ///< radouter / trochoid_r
    double width_ecc = 0.0;                           ///< ecc thick / ratio, m2
    double ecc_n = 0.0;                               ///< N ecc, m
    double rate_sum = 0.0;                            ///< sum of the positive rates, m3
    double port_centre_x = 0.0, port_centre_y = 0.0;  ///< middle of the outlet's end side, mm
    double port_edge_angle = 0.0;                     ///< its angle, radians
    double port_edge_r = 0.0;                         ///< its distance, mm
    double port_volume = 0.0;                         ///< volume of the outlet port, m3
    double nose_angle = 0.0;  ///< angle of the groove nose, radians; kept without a groove
    double trapped_volume =
        0.0;  ///< volume of the chamber that meets the outlet, m3, at the end of the march
    double recovery = 0.0;  ///< slope of the line back to the lowest pressure, Pa a step
    double ripple_max = 0.0, ripple_min = 0.0;  ///< extremes of the outlet pressure, Pa
    double ripple_percent = 0.0;                ///< (max - min) / max, percent, two decimals
    perf_array chamber_rate = step_array(CHAMBER_RATE_LAST);  ///< m3 a step, 0 .. 3599; 0 beyond
    perf_array ripple_sector =
        step_array(RIPPLE_SECTOR_LAST);  ///< outlet pressure over one lobe passage, Pa
    perf_array ripple_pressure =
        step_array(RIPPLE_PRESSURE_LAST);  ///< repeated over a revolution, Pa
};

}  // namespace kvt
