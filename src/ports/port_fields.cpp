#include "ports/port_fields.hpp"

namespace kvt {

namespace {

#define KVT_POINT(name)                                \
    point_fields {                                     \
        &port_params::name##_x, &port_params::name##_y \
    }
#define KVT_CORNER(port, n, where, failure, default_angle, is_end)                              \
    corner_fields {                                                                             \
        &port_params::port##_t##n##_deg, KVT_POINT(port##_c##n), KVT_POINT(port##_s##n),        \
            KVT_POINT(port##_r##n), KVT_POINT(port##_p##n), &port_params::port##_##where##_deg, \
            &entries::port##_##where, #port "_" #where, message::failure,                       \
            &rotor_profiles::default_angle, is_end                                              \
    }
#define KVT_CORNERS(port)                                                                          \
    {                                                                                              \
        KVT_CORNER(port, 1, start_inner, start_angle_inner_radius, min_chamber_inner_angle,        \
                   false),                                                                         \
            KVT_CORNER(port, 2, end_inner, end_angle_inner_radius, max_chamber_inner_angle, true), \
            KVT_CORNER(port, 3, end_outer, end_angle_outer_radius, max_chamber_outer_angle, true), \
            KVT_CORNER(port, 4, start_outer, start_angle_outer_radius, min_chamber_outer_angle,    \
                       false)                                                                      \
    }
#define KVT_MARKS(port)                                                                        \
    {                                                                                          \
        &port_params::port##_mark_a, &port_params::port##_mark_b, &port_params::port##_mark_c, \
            &port_params::port##_mark_d                                                        \
    }

constexpr port_fields INLET = {
    .corners = {KVT_CORNERS(inlet)},
    .inner_r = &port_params::inlet_inner_r,
    .outer_r = &port_params::inlet_outer_r,
    .inner_radius_box = &entries::inlet_inner_radius,
    .outer_radius_box = &entries::inlet_outer_radius,
    .x = &port_params::inlet_port_x,
    .y = &port_params::inlet_port_y,
    .last = &port_params::inlet_port_last,
    .built = &port_params::inlet_built,
    .marks = {KVT_MARKS(inlet)},
    .out_of_range = message::port_into_outlet,
    .radius_too_large = message::port_radius_too_large_inlet,
    .mirrored = true,
    .keeps_start_outer_angle = false,
};

// Kept: the outlet's start angle on the outer radius stays as entered after its search;
// build_ports_test holds it.
constexpr port_fields OUTLET = {
    .corners = {KVT_CORNERS(outlet)},
    .inner_r = &port_params::outlet_inner_r,
    .outer_r = &port_params::outlet_outer_r,
    .inner_radius_box = &entries::Outlet_inner_radius,
    .outer_radius_box = &entries::Outlet_outer_radius,
    .x = &port_params::outlet_port_x,
    .y = &port_params::outlet_port_y,
    .last = &port_params::outlet_port_last,
    .built = &port_params::outlet_built,
    .marks = {KVT_MARKS(outlet)},
    .out_of_range = message::port_into_inlet,
    .radius_too_large = message::port_radius_too_large_outlet,
    .mirrored = false,
    .keeps_start_outer_angle = true,
};

#undef KVT_POINT
#undef KVT_CORNER
#undef KVT_CORNERS
#undef KVT_MARKS

}  // namespace

const port_fields& inlet_fields() {
    return INLET;
}

const port_fields& outlet_fields() {
    return OUTLET;
}

}  // namespace kvt
