#include "views/zoom.hpp"

#include "base/checked_math.hpp"
#include "views/inner_outline.hpp"
#include "views/port_lines.hpp"
#include "views/twips.hpp"

#include <utility>

namespace kvt {

namespace {

/// Which port arrays show something, noted before they are cleared.
struct noted_ports {
    bool outlet, inlet, angles, groove;
};

noted_ports note_ports(const design_view& view) {
    return {shows_outline(view.outlet_portline), shows_outline(view.inlet_portline),
            shows_outline(view.angleline),
            shows_outline(view.metering_groove_portline) ||
                shows_outline(view.metering_groove_extraline)};
}

void redraw_inner_rotor(const rotor_profiles& rotors, const view_state& state, design_view& view) {
    draw_inner_outline(rotors, view.Line1, [&](const point2& point) {
        return screen_point{single(state.view_scale * point.x + state.view_cx + state.view_ecc),
                            single(state.view_scale * point.y + state.view_cy)};
    });
}

void redraw_ports(const noted_ports& noted, const design_params& design, const port_params& ports,
                  const view_state& state, design_view& view) {
    if (noted.outlet) {
        draw_outlet_port(ports, state, view);
    }
    if (noted.inlet) {
        draw_inlet_port(ports, state, view);
    }
    if (noted.angles) {
        draw_port_angles(ports, design, state, view);
    }
    if (noted.groove) {
        draw_metering_groove(ports, state, view);
    }
}

}  // namespace

bool has_rotors(const design_view& view) {
    return view.Line1.element0_visible;
}

void start_rubber_band(double x, double y, view_state& state, design_view& view) {
    state.zoom_start_x = to_int16(x);
    state.zoom_start_y = to_int16(y);
    const float left = single(x);
    const float top = single(y);
    view.Line3.lines.fill({left, top, left, top});
    view.Line3.visible = true;
}

void stretch_rubber_band(double x, double y, design_view& view) {
    const float right = single(x);
    const float bottom = single(y);
    auto& lines = view.Line3.lines;
    lines[0].x2 = right;
    lines[1].y2 = bottom;
    lines[2].x2 = right;
    lines[2].y1 = bottom;
    lines[2].y2 = bottom;
    lines[3].y2 = bottom;
    lines[3].x1 = right;
    lines[3].x2 = right;
}

bool end_rubber_band(double x, double y, view_state& state, design_view& view) {
    view.Line3.visible = false;
    state.zoom_end_x = to_int16(x);
    state.zoom_end_y = to_int16(y);
    if (state.zoom_end_x < state.zoom_start_x) {
        std::swap(state.zoom_start_x, state.zoom_end_x);
    }
    if (state.zoom_end_y < state.zoom_start_y) {
        std::swap(state.zoom_start_y, state.zoom_end_y);
    }
    return state.zoom_end_x != state.zoom_start_x && state.zoom_end_y != state.zoom_start_y;
}

void zoom_to_band(const design_params& design, view_state& state) {
    const double w = state.zoom_end_x - state.zoom_start_x;
    const double h = state.zoom_end_y - state.zoom_start_y;
    state.view_zoom = checked_divide(state.view_size, w > h ? w : h);
    state.view_scale = state.view_scale * state.view_zoom;
    state.view_ecc = design.ecc * state.view_scale;
    state.view_cx = (state.view_cx - state.zoom_start_x) * state.view_zoom;
    state.view_cy = (state.view_cy - state.zoom_start_y) * state.view_zoom;
    state.drawn_size = state.view_size;
}

bool zoom_at(const design_params& design, double factor, double x, double y, view_state& state) {
    const double m = state.drawn_size > 0 ? checked_divide(state.view_size, state.drawn_size) : 1.0;
    const double zoom = factor * m;
    const double whole = checked_divide(state.view_size * WHOLE_VIEW_SHARE, design.maxdiameter);
    const double scale = state.view_scale * zoom;
    if (scale < SMALLEST_ZOOM * whole || scale > LARGEST_ZOOM * whole) {
        return false;
    }
    state.view_zoom = zoom;
    state.view_scale = scale;
    state.view_ecc = design.ecc * scale;
    state.view_cx = x * m + (state.view_cx - x) * zoom;
    state.view_cy = y * m + (state.view_cy - y) * zoom;
    state.drawn_size = state.view_size;
    return true;
}

void pan_by(double dx, double dy, view_state& state) {
    state.view_cx += dx;
    state.view_cy += dy;
}

void redraw_zoomed(const design_params& design, const rotor_profiles& rotors,
                   const port_params& ports, view_state& state, design_view& view) {
    const noted_ports noted = note_ports(view);
    state.angleline_count = static_cast<double>(view.angleline.elements.size());
    clear_all(view);
    redraw_inner_rotor(rotors, state, view);
    redraw_ports(noted, design, ports, state, view);
    redraw_outer_rotor(design, {state.view_cx, state.view_cy, 0.0}, state, view);
    view.Shape1 = {state.view_cx, state.view_cy, state.view_scale * design.maxdiameter, true};
}

}  // namespace kvt
