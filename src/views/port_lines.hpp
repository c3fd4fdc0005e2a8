// The lines of the ports in the Design view: outlines, groove, and the lines from the rotor centres
// to the corners.
#pragma once

#include "core/design_params.hpp"
#include "ports/port_params.hpp"
#include "views/design_view.hpp"
#include "views/view_state.hpp"

namespace kvt {

/// A point in mm, y up, on the screen:
///     x = view_scale * x + view_cx + view_ecc      y = view_cy - view_scale * y
/// One element of inlet_portline a segment of the outline 0 .. inlet.last, as it is stored.
/// The elements of an earlier drawing go first; an outline of no segment leaves none. Throws
/// overflow for a coordinate too large.
void draw_inlet_port(const port_params& ports, const view_state& state, design_view& view);

/// Likewise outlet_portline from the outline 0 .. outlet.last.
void draw_outlet_port(const port_params& ports, const view_state& state, design_view& view);

/// Four elements each of angleline, from the inner rotor centre (0, 0) to p1 and p2 of the inlet (y
/// negated) and of the outlet, and of anglelineout, from the outer centre (-ecc, 0) to p4 and p3 of
/// both.
void draw_port_angles(const port_params& ports, const design_params& design,
                      const view_state& state, design_view& view);

/// metering_groove_portline from the groove 0 .. groove_main_last, metering_groove_extraline from
/// there to groove_last.
void draw_metering_groove(const port_params& ports, const view_state& state, design_view& view);

void clear_metering_groove(design_view& view);

/// Clears the six arrays that draw ports.
void clear_port_lines(design_view& view);

/// Whether an array shows an outline: more than its element 0.
bool shows_outline(const line_array& lines);

}  // namespace kvt
