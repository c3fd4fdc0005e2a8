// chamber_mark: one chamber in the Design view, filled, with its two contacts; it turns with the
// rotors. Source: docs/formulas/exact_volume.md, "Chamber".
#pragma once

#include "core/design_params.hpp"
#include "views/design_view.hpp"
#include "views/view_state.hpp"

namespace kvt {

/// Turns the pair in the view so far that a chamber stands at a place of its life, and marks that
/// one. place is the angle of the inner rotor since its least volume, radians. At rotation_angle 0
/// lobe 0 stands on the line of centres, so the chamber before it is half a pitch of the life old:
///     rotation_angle = place - 180 / (N - 1) degrees, in 0 .. 360
void mark_chamber(const design_params& design, double place, view_state& state);

/// No chamber is marked any more.
void unmark_chamber(view_state& state, design_view& view);

/// Draws the marked chamber where the pair stands now: it has gone on by what rotation_angle has
/// changed since, at most half a turn either way. Nothing is drawn without a mark, nor for a
/// geometry that has no chamber.
void draw_marked_chamber(const design_params& design, view_state& state, design_view& view);

}  // namespace kvt
