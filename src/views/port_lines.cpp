#include "views/port_lines.hpp"

#include "base/checked_math.hpp"
#include "geometry/point2.hpp"
#include "views/twips.hpp"

#include <array>
#include <span>
#include <vector>

namespace kvt {

namespace {

/// An element from one point in mm to another.
drawn_line line_between(point2 from, point2 to, const view_state& state) {
    const auto x = [&state](point2 p) {
        return single(state.view_scale * p.x + state.view_cx + state.view_ecc);
    };
    const auto y = [&state](point2 p) { return single(state.view_cy - state.view_scale * p.y); };
    return {x(from), y(from), x(to), y(to)};
}

/// Draws the segments between the points first .. last of an outline.
void draw_segments(std::span<const double> x, std::span<const double> y, int first, int last,
                   const view_state& state, line_array& lines) {
    lines.clear();
    const auto point = [&x, &y](int i) { return point2{checked_at(x, i), checked_at(y, i)}; };
    for (int i = first; i < last; ++i) {
        lines.set(static_cast<std::size_t>(i - first), line_between(point(i), point(i + 1), state));
    }
}

void draw_rays(point2 centre, const std::array<point2, 4>& corners, const view_state& state,
               line_array& lines) {
    lines.clear();
    for (std::size_t i = 0; i < corners.size(); ++i) {
        lines.set(i, line_between(centre, corners[i], state));
    }
}

}  // namespace

void draw_inlet_port(const port_params& ports, const view_state& state, design_view& view) {
    draw_segments(ports.inlet.x, ports.inlet.y, 0, ports.inlet.last, state, view.inlet_portline);
}

void draw_outlet_port(const port_params& ports, const view_state& state, design_view& view) {
    draw_segments(ports.outlet.x, ports.outlet.y, 0, ports.outlet.last, state,
                  view.outlet_portline);
}

void draw_port_angles(const port_params& ports, const design_params& design,
                      const view_state& state, design_view& view) {
    draw_rays(
        {0.0, 0.0},
        {{mirrored(ports.inlet.corners[START_INNER].p), mirrored(ports.inlet.corners[END_INNER].p),
          ports.outlet.corners[START_INNER].p, ports.outlet.corners[END_INNER].p}},
        state, view.angleline);
    draw_rays(
        {-design.ecc, 0.0},
        {{mirrored(ports.inlet.corners[START_OUTER].p), mirrored(ports.inlet.corners[END_OUTER].p),
          ports.outlet.corners[START_OUTER].p, ports.outlet.corners[END_OUTER].p}},
        state, view.anglelineout);
}

void draw_metering_groove(const port_params& ports, const view_state& state, design_view& view) {
    draw_segments(ports.groove_x, ports.groove_y, 0, ports.groove_main_last, state,
                  view.metering_groove_portline);
    draw_segments(ports.groove_x, ports.groove_y, ports.groove_main_last, ports.groove_last, state,
                  view.metering_groove_extraline);
}

void clear_metering_groove(design_view& view) {
    view.metering_groove_portline.clear();
    view.metering_groove_extraline.clear();
}

void clear_port_lines(design_view& view) {
    clear_metering_groove(view);
    view.inlet_portline.clear();
    view.outlet_portline.clear();
    view.angleline.clear();
    view.anglelineout.clear();
}

bool shows_outline(const line_array& lines) {
    return lines.elements.size() > 1;
}

}  // namespace kvt
