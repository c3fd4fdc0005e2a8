#include "ports/port_params.hpp"

namespace kvt {

namespace {

#define KVT_PORT_FIELD(name) \
    { #name, &port_params::name }
#define KVT_PORT_ARRAY(name, last) \
    { #name, &port_params::name, &port_params::last }

constexpr port_field<double> VALUES[] = {
    KVT_PORT_FIELD(port_radius),
    KVT_PORT_FIELD(last_good_port_radius),
    KVT_PORT_FIELD(side_angle_start),
    KVT_PORT_FIELD(side_angle_end),
    KVT_PORT_FIELD(inlet_start_inner_deg),
    KVT_PORT_FIELD(inlet_start_outer_deg),
    KVT_PORT_FIELD(inlet_end_inner_deg),
    KVT_PORT_FIELD(inlet_end_outer_deg),
    KVT_PORT_FIELD(inlet_inner_r),
    KVT_PORT_FIELD(inlet_outer_r),
    KVT_PORT_FIELD(inlet_t1_deg),
    KVT_PORT_FIELD(inlet_t2_deg),
    KVT_PORT_FIELD(inlet_t3_deg),
    KVT_PORT_FIELD(inlet_t4_deg),
    KVT_PORT_FIELD(inlet_c1_x),
    KVT_PORT_FIELD(inlet_c1_y),
    KVT_PORT_FIELD(inlet_c2_x),
    KVT_PORT_FIELD(inlet_c2_y),
    KVT_PORT_FIELD(inlet_c3_x),
    KVT_PORT_FIELD(inlet_c3_y),
    KVT_PORT_FIELD(inlet_c4_x),
    KVT_PORT_FIELD(inlet_c4_y),
    KVT_PORT_FIELD(inlet_s1_x),
    KVT_PORT_FIELD(inlet_s1_y),
    KVT_PORT_FIELD(inlet_s2_x),
    KVT_PORT_FIELD(inlet_s2_y),
    KVT_PORT_FIELD(inlet_s3_x),
    KVT_PORT_FIELD(inlet_s3_y),
    KVT_PORT_FIELD(inlet_s4_x),
    KVT_PORT_FIELD(inlet_s4_y),
    KVT_PORT_FIELD(inlet_r1_x),
    KVT_PORT_FIELD(inlet_r1_y),
    KVT_PORT_FIELD(inlet_r2_x),
    KVT_PORT_FIELD(inlet_r2_y),
    KVT_PORT_FIELD(inlet_r3_x),
    KVT_PORT_FIELD(inlet_r3_y),
    KVT_PORT_FIELD(inlet_r4_x),
    KVT_PORT_FIELD(inlet_r4_y),
    KVT_PORT_FIELD(inlet_p1_x),
    KVT_PORT_FIELD(inlet_p1_y),
    KVT_PORT_FIELD(inlet_p2_x),
    KVT_PORT_FIELD(inlet_p2_y),
    KVT_PORT_FIELD(inlet_p3_x),
    KVT_PORT_FIELD(inlet_p3_y),
    KVT_PORT_FIELD(inlet_p4_x),
    KVT_PORT_FIELD(inlet_p4_y),
    KVT_PORT_FIELD(outlet_start_inner_deg),
    KVT_PORT_FIELD(outlet_start_outer_deg),
    KVT_PORT_FIELD(outlet_end_inner_deg),
    KVT_PORT_FIELD(outlet_end_outer_deg),
    KVT_PORT_FIELD(outlet_inner_r),
    KVT_PORT_FIELD(outlet_outer_r),
    KVT_PORT_FIELD(outlet_t1_deg),
    KVT_PORT_FIELD(outlet_t2_deg),
    KVT_PORT_FIELD(outlet_t3_deg),
    KVT_PORT_FIELD(outlet_t4_deg),
    KVT_PORT_FIELD(outlet_c1_x),
    KVT_PORT_FIELD(outlet_c1_y),
    KVT_PORT_FIELD(outlet_c2_x),
    KVT_PORT_FIELD(outlet_c2_y),
    KVT_PORT_FIELD(outlet_c3_x),
    KVT_PORT_FIELD(outlet_c3_y),
    KVT_PORT_FIELD(outlet_c4_x),
    KVT_PORT_FIELD(outlet_c4_y),
    KVT_PORT_FIELD(outlet_s1_x),
    KVT_PORT_FIELD(outlet_s1_y),
    KVT_PORT_FIELD(outlet_s2_x),
    KVT_PORT_FIELD(outlet_s2_y),
    KVT_PORT_FIELD(outlet_s3_x),
    KVT_PORT_FIELD(outlet_s3_y),
    KVT_PORT_FIELD(outlet_s4_x),
    KVT_PORT_FIELD(outlet_s4_y),
    KVT_PORT_FIELD(outlet_r1_x),
    KVT_PORT_FIELD(outlet_r1_y),
    KVT_PORT_FIELD(outlet_r2_x),
    KVT_PORT_FIELD(outlet_r2_y),
    KVT_PORT_FIELD(outlet_r3_x),
    KVT_PORT_FIELD(outlet_r3_y),
    KVT_PORT_FIELD(outlet_r4_x),
    KVT_PORT_FIELD(outlet_r4_y),
    KVT_PORT_FIELD(outlet_p1_x),
    KVT_PORT_FIELD(outlet_p1_y),
    KVT_PORT_FIELD(outlet_p2_x),
    KVT_PORT_FIELD(outlet_p2_y),
    KVT_PORT_FIELD(outlet_p3_x),
    KVT_PORT_FIELD(outlet_p3_y),
    KVT_PORT_FIELD(outlet_p4_x),
    KVT_PORT_FIELD(outlet_p4_y),
    KVT_PORT_FIELD(groove_length_deg),
    KVT_PORT_FIELD(groove_width_mm),
    KVT_PORT_FIELD(groove_depth_mm),
    KVT_PORT_FIELD(groove_centre_r),
    KVT_PORT_FIELD(groove_inner_r),
    KVT_PORT_FIELD(groove_outer_r),
    KVT_PORT_FIELD(groove_corner_r),
    KVT_PORT_FIELD(groove_a_x),
    KVT_PORT_FIELD(groove_a_y),
    KVT_PORT_FIELD(groove_b_x),
    KVT_PORT_FIELD(groove_b_y),
    KVT_PORT_FIELD(groove_start_inner_deg),
    KVT_PORT_FIELD(groove_start_outer_deg),
    KVT_PORT_FIELD(nose_inner_deg),
    KVT_PORT_FIELD(nose_outer_deg),
    KVT_PORT_FIELD(overlap_deg),
    KVT_PORT_FIELD(groove_tail_outer_x),
    KVT_PORT_FIELD(groove_tail_outer_y),
    KVT_PORT_FIELD(groove_tail_inner_x),
    KVT_PORT_FIELD(groove_tail_inner_y),
    KVT_PORT_FIELD(groove_n1_x),
    KVT_PORT_FIELD(groove_n1_y),
    KVT_PORT_FIELD(groove_n2_x),
    KVT_PORT_FIELD(groove_n2_y),
    KVT_PORT_FIELD(groove_nose_inner_x),
    KVT_PORT_FIELD(groove_nose_inner_y),
    KVT_PORT_FIELD(groove_nose_outer_x),
    KVT_PORT_FIELD(groove_nose_outer_y),
};

constexpr port_field<std::int16_t> INDEXES[] = {
    KVT_PORT_FIELD(inlet_port_last),  KVT_PORT_FIELD(inlet_mark_a),
    KVT_PORT_FIELD(inlet_mark_b),     KVT_PORT_FIELD(inlet_mark_c),
    KVT_PORT_FIELD(inlet_mark_d),     KVT_PORT_FIELD(outlet_port_last),
    KVT_PORT_FIELD(outlet_mark_a),    KVT_PORT_FIELD(outlet_mark_b),
    KVT_PORT_FIELD(outlet_mark_c),    KVT_PORT_FIELD(outlet_mark_d),
    KVT_PORT_FIELD(groove_main_last), KVT_PORT_FIELD(groove_last),
    KVT_PORT_FIELD(groove_mark_a),    KVT_PORT_FIELD(groove_mark_b),
    KVT_PORT_FIELD(groove_mark_c),    KVT_PORT_FIELD(groove_mark_d),
};

constexpr port_array ARRAYS[] = {
    KVT_PORT_ARRAY(inlet_port_x, inlet_port_last),
    KVT_PORT_ARRAY(inlet_port_y, inlet_port_last),
    KVT_PORT_ARRAY(outlet_port_x, outlet_port_last),
    KVT_PORT_ARRAY(outlet_port_y, outlet_port_last),
    KVT_PORT_ARRAY(groove_x, groove_last),
    KVT_PORT_ARRAY(groove_y, groove_last),
};

#undef KVT_PORT_FIELD
#undef KVT_PORT_ARRAY

}  // namespace

std::span<const port_field<double>> port_values() {
    return VALUES;
}

std::span<const port_field<std::int16_t>> port_indexes() {
    return INDEXES;
}

std::span<const port_array> port_arrays() {
    return ARRAYS;
}

}  // namespace kvt
