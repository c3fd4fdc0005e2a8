// Rotation of the rotor pair in the Design view: the angles of a tick, and the pair drawn at them.
#pragma once

#include "core/design_params.hpp"
#include "core/rotor_profiles.hpp"
#include "views/design_view.hpp"
#include "views/view_state.hpp"

#include <string>
#include <string_view>

namespace kvt {

/// The step of one tick, degrees. It doesn't depend on the time between two ticks.
inline constexpr double DEGREES_PER_TICK = 1.0;

enum class turning { clockwise, counter_clockwise };

/// One tick: rotation_angle goes up by 1 clockwise and down by 1 counter-clockwise, wraps once into
/// 0 .. 360, and
///     outer_rotation_angle = (N - 1) rotation_angle / N
/// Throws division_by_zero when N is 0.
void turn_one_tick(const design_params& design, turning direction, view_state& state);

/// To an angle in degrees, which wraps once into 0 .. 360, and the outer angle.
void turn_to(const design_params& design, double degrees, view_state& state);

/// A typed angle: the number at the beginning of the text, cut to a whole number downwards, wrapped
/// once (800 becomes 440), and the outer angle. Throws overflow for a number beyond a double.
void turn_to_typed(const design_params& design, std::string_view text, view_state& state);

/// The text of rotated_angle: Int(rotation_angle * 10) / 10.
std::string rotated_angle_text(const view_state& state);

/// The pair at its angles, at the present scale and place; ports and Shape1 stay. With a =
/// rotation_angle PI_D / 180, for a point at r, theta = arctan(y/x), plus PI_D if x < 0:
///     x = view_ecc + view_scale r cos(theta + a) + view_cx      y = view_scale r sin(theta + a) +
///     view_cy
/// The outer rotor's arcs start at -outer_rotation_angle PI_D / 180, y up, so both turn the same
/// way on the screen. Throws division_by_zero for a point with x = 0, else as redraw_zoomed;
/// elements drawn before it stay.
void redraw_rotated(const design_params& design, const rotor_profiles& rotors, view_state& state,
                    design_view& view);

}  // namespace kvt
