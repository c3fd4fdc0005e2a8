// Zoom of the Design view: the rubber band, the new place of the drawing, and the drawing at it.
#pragma once

#include "core/design_params.hpp"
#include "core/rotor_profiles.hpp"
#include "ports/port_params.hpp"
#include "views/design_view.hpp"
#include "views/view_state.hpp"

namespace kvt {

/// Whether rotors are drawn. The band, the typed angle and the rotation do nothing without.
bool has_rotors(const design_view& view);

/// Mouse down at (x, y) twips, any button: the band starts there and all four lines are shown. The
/// corner is rounded half to even to 16 bits; throws overflow outside.
void start_rubber_band(double x, double y, view_state& state, design_view& view);

/// Mouse move, also with no button down (the lines are invisible then). x and y may lie outside the
/// picture. Throws overflow beyond single precision.
void stretch_rubber_band(double x, double y, design_view& view);

/// Mouse up: hides the band, rounds the corner like the first, and orders both so that start is the
/// smaller one in each axis. True when the band has a width and a height.
bool end_rubber_band(double x, double y, view_state& state, design_view& view);

/// The band, ordered, fills the picture with its larger side:
///     view_zoom = view_size / w if w > h, else view_size / h
///     view_scale = view_scale view_zoom      view_ecc = ecc view_scale
///     view_cx = (view_cx - zoom_start_x) view_zoom      view_cy likewise
/// The drawing is one for view_size then.
void zoom_to_band(const design_params& design, view_state& state);

/// The view larger by a factor about a place (x, y) of the drawing, twips, which stays under the
/// pointer; the drawing is one for view_size then, larger by m = view_size / drawn_size:
///     view_zoom = factor m      view_scale = view_scale view_zoom      view_ecc = ecc view_scale
///     view_cx = x m + (view_cx - x) view_zoom      view_cy likewise
/// False, and nothing happens, beyond SMALLEST_ZOOM and LARGEST_ZOOM of the whole view.
bool zoom_at(const design_params& design, double factor, double x, double y, view_state& state);
inline constexpr double SMALLEST_ZOOM = 0.2;
inline constexpr double LARGEST_ZOOM = 2000.0;

/// The view moved by a way in twips of the drawing.
void pan_by(double dx, double dy, view_state& state);

/// Draws everything that the view shows anew at the present scale and place: the inner rotor
/// (without clearn_half, which only the first drawing adds), the ports, port angles and groove
/// where they were drawn, the outer rotor and Shape1. angleline_count becomes the number of
/// elements that angleline had before. The rotors stand at angle 0. Elements drawn before a failure
/// stay. Throws run_time_error for what the outer rotor's arcs or a coordinate can't hold.
void redraw_zoomed(const design_params& design, const rotor_profiles& rotors,
                   const port_params& ports, view_state& state, design_view& view);

}  // namespace kvt
