// The name tables of perf_results, and its arrays over the grid.
#include "performance/perf_results.hpp"

namespace kvt {

namespace {

#define KVT_PERF_FIELD(name) \
    { #name, &perf_results::name }
#define KVT_PERF_ARRAY(name, used_count) \
    { #name, &perf_results::name, used_count }

constexpr perf_field<double> VALUES[] = {
    KVT_PERF_FIELD(dyn_visc),         KVT_PERF_FIELD(tip_radius),
    KVT_PERF_FIELD(flow_max),         KVT_PERF_FIELD(flow_min),
    KVT_PERF_FIELD(vol_eff_max),      KVT_PERF_FIELD(vol_eff_min),
    KVT_PERF_FIELD(power_max),        KVT_PERF_FIELD(power_min),
    KVT_PERF_FIELD(mech_eff_max),     KVT_PERF_FIELD(mech_eff_min),
    KVT_PERF_FIELD(overall_eff_max),  KVT_PERF_FIELD(overall_eff_min),
    KVT_PERF_FIELD(hertz_max),        KVT_PERF_FIELD(ripple_max),
    KVT_PERF_FIELD(ripple_min),       KVT_PERF_FIELD(ripple_percent),
    KVT_PERF_FIELD(effective_cc),     KVT_PERF_FIELD(seal_len_a),
    KVT_PERF_FIELD(seal_len_b),       KVT_PERF_FIELD(seal_len_c),
    KVT_PERF_FIELD(tip_gap_r),        KVT_PERF_FIELD(inner_mean_r),
    KVT_PERF_FIELD(outer_mean_r),     KVT_PERF_FIELD(face_area_inner),
    KVT_PERF_FIELD(face_area_outer),  KVT_PERF_FIELD(combined_modulus),
    KVT_PERF_FIELD(cutter_r),         KVT_PERF_FIELD(port_edge_angle),
    KVT_PERF_FIELD(port_edge_r),      KVT_PERF_FIELD(port_volume),
    KVT_PERF_FIELD(press_step_bar),   KVT_PERF_FIELD(speed_step),
    KVT_PERF_FIELD(fill_velocity),    KVT_PERF_FIELD(tip_speed_rpm),
    KVT_PERF_FIELD(sector_outer),     KVT_PERF_FIELD(sector_inner),
    KVT_PERF_FIELD(port_area),        KVT_PERF_FIELD(port_equiv_r),
    KVT_PERF_FIELD(port_velocity),    KVT_PERF_FIELD(port_flow),
    KVT_PERF_FIELD(port_speed_rpm),   KVT_PERF_FIELD(area_tip),
    KVT_PERF_FIELD(area_root),        KVT_PERF_FIELD(area_shaft),
    KVT_PERF_FIELD(area_max),         KVT_PERF_FIELD(area_outer_root),
    KVT_PERF_FIELD(area_pitch),       KVT_PERF_FIELD(land_share_inner),
    KVT_PERF_FIELD(land_share_outer), KVT_PERF_FIELD(outlet_span_deg),
    KVT_PERF_FIELD(od_band),          KVT_PERF_FIELD(n_ecc),
    KVT_PERF_FIELD(trochoid_ratio),   KVT_PERF_FIELD(arm_base),
    KVT_PERF_FIELD(root_arc),         KVT_PERF_FIELD(ratio),
    KVT_PERF_FIELD(width_ecc),        KVT_PERF_FIELD(ecc_n),
    KVT_PERF_FIELD(rate_sum),         KVT_PERF_FIELD(port_centre_x),
    KVT_PERF_FIELD(port_centre_y),    KVT_PERF_FIELD(nose_angle),
    KVT_PERF_FIELD(trapped_volume),   KVT_PERF_FIELD(recovery),
};

constexpr perf_field<perf_list> LISTS[] = {
    KVT_PERF_FIELD(press_pa),
    KVT_PERF_FIELD(speed_rpm),
    KVT_PERF_FIELD(leak_tip),
    KVT_PERF_FIELD(leak_face),
    KVT_PERF_FIELD(tip_drag_power),
    KVT_PERF_FIELD(face_load_inner),
    KVT_PERF_FIELD(face_load_outer),
    KVT_PERF_FIELD(friction_torque_inner),
    KVT_PERF_FIELD(friction_torque_outer),
    KVT_PERF_FIELD(face_shear_inner),
    KVT_PERF_FIELD(face_shear_outer),
    KVT_PERF_FIELD(face_power_inner),
    KVT_PERF_FIELD(face_power_outer),
    KVT_PERF_FIELD(od_shear),
    KVT_PERF_FIELD(od_power),
    KVT_PERF_FIELD(sliding_max),
    KVT_PERF_FIELD(sliding_mean),
    KVT_PERF_FIELD(face_gradient),
    KVT_PERF_FIELD(face_velocity),
    KVT_PERF_FIELD(face_shear_inner_2),
    KVT_PERF_FIELD(face_shear_outer_2),
};

constexpr perf_field<perf_grid> GRIDS[] = {
    KVT_PERF_FIELD(flow_m3s),     KVT_PERF_FIELD(vol_eff),         KVT_PERF_FIELD(hyd_power),
    KVT_PERF_FIELD(hyd_torque),   KVT_PERF_FIELD(friction_power),  KVT_PERF_FIELD(drive_power),
    KVT_PERF_FIELD(drive_torque), KVT_PERF_FIELD(mech_eff),        KVT_PERF_FIELD(overall_eff),
    KVT_PERF_FIELD(side_load),    KVT_PERF_FIELD(side_load_angle),
};

constexpr std::size_t WHOLE_TURN = ANGLE_ARRAY_LAST + 1;
constexpr std::size_t CONTACT_ANGLES = CONTACT_ANGLE_LAST + 1;
constexpr std::size_t STEPS_OF_A_TURN = RIPPLE_STEPS;

constexpr perf_array_field ARRAYS[] = {
    KVT_PERF_ARRAY(chamber_rate, STEPS_OF_A_TURN), KVT_PERF_ARRAY(ripple_pressure, STEPS_OF_A_TURN),
    KVT_PERF_ARRAY(contact_dist, WHOLE_TURN),      KVT_PERF_ARRAY(pressure_angle, CONTACT_ANGLES),
    KVT_PERF_ARRAY(troch_curv_r, CONTACT_ANGLES),  KVT_PERF_ARRAY(inner_curv_r, CONTACT_ANGLES),
    KVT_PERF_ARRAY(equiv_r, CONTACT_ANGLES),       KVT_PERF_ARRAY(side_x, CONTACT_ANGLES),
    KVT_PERF_ARRAY(side_y, CONTACT_ANGLES),        KVT_PERF_ARRAY(side_mag, CONTACT_ANGLES),
    KVT_PERF_ARRAY(side_dir, CONTACT_ANGLES),
};

constexpr perf_field<perf_speed_angles> SPEED_ARRAYS[] = {KVT_PERF_FIELD(sliding_velocity)};

constexpr perf_field<perf_grid_angles> GRID_ARRAYS[] = {
    KVT_PERF_FIELD(contact_force), KVT_PERF_FIELD(hertz_stress), KVT_PERF_FIELD(hertz_sliding)};

#undef KVT_PERF_FIELD
#undef KVT_PERF_ARRAY

}  // namespace

perf_speed_angles perf_results::speed_arrays() {
    perf_speed_angles arrays;
    arrays.fill(angle_array());
    return arrays;
}

perf_grid_angles perf_results::grid_arrays() {
    perf_grid_angles arrays;
    arrays.fill(speed_arrays());
    return arrays;
}

std::span<const perf_field<double>> perf_values() {
    return VALUES;
}

std::span<const perf_field<perf_list>> perf_lists() {
    return LISTS;
}

std::span<const perf_field<perf_grid>> perf_grids() {
    return GRIDS;
}

std::span<const perf_array_field> perf_arrays() {
    return ARRAYS;
}

std::span<const perf_field<perf_speed_angles>> perf_speed_arrays() {
    return SPEED_ARRAYS;
}

std::span<const perf_field<perf_grid_angles>> perf_grid_arrays() {
    return GRID_ARRAYS;
}

}  // namespace kvt
