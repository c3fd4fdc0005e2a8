#include "ports/port_fields.hpp"

namespace kvt {

namespace {

constexpr port_fields INLET = {
    .side = port_side::inlet,
    .corners = {{
        {&entries::inlet_start_inner, "inlet_start_inner", message::start_angle_inner_radius,
         &rotor_profiles::min_chamber_inner_angle, false},
        {&entries::inlet_end_inner, "inlet_end_inner", message::end_angle_inner_radius,
         &rotor_profiles::max_chamber_inner_angle, true},
        {&entries::inlet_end_outer, "inlet_end_outer", message::end_angle_outer_radius,
         &rotor_profiles::max_chamber_outer_angle, true},
        {&entries::inlet_start_outer, "inlet_start_outer", message::start_angle_outer_radius,
         &rotor_profiles::min_chamber_outer_angle, false},
    }},
    .inner_radius_box = &entries::inlet_inner_radius,
    .outer_radius_box = &entries::inlet_outer_radius,
    .out_of_range = message::port_into_outlet,
    .radius_too_large = message::port_radius_too_large_inlet,
    .mirrored = true,
    .keeps_start_outer_angle = false,
};

// Kept: the outlet's start angle on the outer radius stays as entered after its search;
// build_ports_test holds it.
constexpr port_fields OUTLET = {
    .side = port_side::outlet,
    .corners = {{
        {&entries::outlet_start_inner, "outlet_start_inner", message::start_angle_inner_radius,
         &rotor_profiles::min_chamber_inner_angle, false},
        {&entries::outlet_end_inner, "outlet_end_inner", message::end_angle_inner_radius,
         &rotor_profiles::max_chamber_inner_angle, true},
        {&entries::outlet_end_outer, "outlet_end_outer", message::end_angle_outer_radius,
         &rotor_profiles::max_chamber_outer_angle, true},
        {&entries::outlet_start_outer, "outlet_start_outer", message::start_angle_outer_radius,
         &rotor_profiles::min_chamber_outer_angle, false},
    }},
    .inner_radius_box = &entries::Outlet_inner_radius,
    .outer_radius_box = &entries::Outlet_outer_radius,
    .out_of_range = message::port_into_inlet,
    .radius_too_large = message::port_radius_too_large_outlet,
    .mirrored = false,
    .keeps_start_outer_angle = true,
};

}  // namespace

const port_fields& inlet_fields() {
    return INLET;
}

const port_fields& outlet_fields() {
    return OUTLET;
}

const port_fields& fields_of(port_side side) {
    return side == port_side::inlet ? INLET : OUTLET;
}

}  // namespace kvt
