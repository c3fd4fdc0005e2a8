#include "views/overlay_drawing.hpp"

#include "views/port_lines.hpp"
#include "views/rotation.hpp"

namespace kvt {

namespace {

/// As Calculate Profiles left it, whatever size the box has by now.
bool is_first_drawing(const view_state& state) {
    const double half = state.drawn_size / 2.0;
    return state.rotation_angle == 0.0 && state.view_zoom == 1.0 && state.view_cx == half &&
           state.view_cy == half;
}

void draw_rotors(const design_params& design, const rotor_profiles& rotors, view_state& state,
                 design_view& drawing) {
    if (is_first_drawing(state)) {
        state.view_size = state.drawn_size;
        draw_inner_rotor(design, rotors, state, drawing);
        draw_outer_rotor(design, rotors, state, drawing);
        return;
    }
    turn_to(design, state.rotation_angle, state);
    redraw_rotated(design, rotors, state, drawing);
    drawing.Shape1 = {state.view_cx, state.view_cy, state.view_scale * design.maxdiameter, true};
}

}  // namespace

design_view overlay_drawing(const design_params& design, const rotor_profiles& rotors,
                            const port_params& ports, const overlaid_outlines& which,
                            view_state state) {
    design_view drawing;
    state.view_ecc = design.ecc * state.view_scale;
    if (which.rotors) {
        draw_rotors(design, rotors, state, drawing);
    }
    if (which.inlet) {
        draw_inlet_port(ports, state, drawing);
    }
    if (which.outlet) {
        draw_outlet_port(ports, state, drawing);
    }
    if (which.groove) {
        draw_metering_groove(ports, state, drawing);
    }
    return drawing;
}

}  // namespace kvt
