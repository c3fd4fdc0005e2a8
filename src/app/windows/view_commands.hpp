// The commands of the Design view: zoom, Zoom All, rotation, resize.
#pragma once

#include "views/rotation.hpp"
#include "views/view_layout.hpp"

#include <functional>
#include <optional>
#include <string>

namespace kvt {

class user;
struct program;

// With no rotors drawn (fresh start, after a project reset or a failed run) the rubber band, the
// ticks and the typed angle do nothing. Coordinates are twips of the picture and may lie outside
// it.

/// Mouse down, move and up in the picture, whatever the button. After the button goes up a band
/// with a width and a height is zoomed to; then rotors at an angle are drawn at it again. Throw
/// run_time_error: overflow for a coordinate that 16 bits (at move: single precision) can't hold,
/// and as redraw_zoomed and redraw_rotated do.
void rubber_band_down(program& kavetta, double x, double y);
void rubber_band_move(program& kavetta, double x, double y);
void rubber_band_up(program& kavetta, user& person, double x, double y);

/// The wheel over the picture: everything larger by a factor about a place, twips of the drawing,
/// and the middle button: moved by a way in them. Rotors and ports are drawn anew there, at their
/// angle. Nothing without rotors. Throw as redraw_zoomed and redraw_rotated do.
void zoom_by_wheel(program& kavetta, double factor, double x, double y);
void pan_view(program& kavetta, double dx, double dy);

/// zoom_all_command: Calculate Profiles again, with its results, enablings and forms kept; ports on
/// display are designed again too. Throws as calculate_profiles does.
void zoom_all(program& kavetta, user& person);

/// One event of the timers Timer_rotate_cw and Timer_rotate_ccw (interval 10 ms): turns the rotors
/// by one degree, shows the angle in rotated_angle. Throws as redraw_rotated does.
void rotation_tick(program& kavetta, turning direction);

/// Enter in rotated_angle: takes the typed angle, shows the angle taken, turns the rotors. Throws
/// as redraw_rotated does, overflow for a number beyond a double.
void take_typed_angle(program& kavetta);

/// Asks for a path and saves the picture of the view there; the bytes are those of the path's
/// ending. A cancelled dialog saves nothing.
void save_view_picture(const program& kavetta, user& person,
                       const std::function<std::string(const std::string& path)>& bytes_of);

/// The pair at the angle of the view, the angle in rotated_angle, and the marked chamber. Throws as
/// redraw_rotated does.
void show_rotation(program& kavetta);

/// The resize of viewwinfrm, also once after the layout was read: see resize_view. The drawing
/// stays.
std::optional<view_layout> resize_design_view(program& kavetta, double form_height);

}  // namespace kvt
