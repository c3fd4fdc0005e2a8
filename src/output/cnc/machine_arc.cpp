#include "output/cnc/machine_arc.hpp"

#include <algorithm>
#include <cmath>

namespace kvt {

namespace {

/// The chord of half a turn may be longer than the diameter by rounding, mm.
constexpr double CHORD_ROUNDING_MM = 1e-5;

}  // namespace

bool reaches_end(point2 start, const tool_move& move) {
    return distance(start, move.end) <= 2.0 * move.radius + CHORD_ROUNDING_MM;
}

circle_arc machine_arc(point2 start, const tool_move& move) {
    const double chord = distance(start, move.end);
    const double half = std::min(chord / 2.0, move.radius);
    const double height = std::sqrt(move.radius * move.radius - half * half);
    const double turn = move.kind == move_kind::counterclockwise_g03 ? 1.0 : -1.0;
    const point2 along = difference(move.end, start);
    const double to_left = chord > 0.0 ? turn * height / chord : 0.0;
    circle_arc arc;
    arc.centre = {(start.x + move.end.x) / 2.0 - along.y * to_left,
                  (start.y + move.end.y) / 2.0 + along.x * to_left};
    arc.radius = move.radius;
    arc.from = std::atan2(start.y - arc.centre.y, start.x - arc.centre.x);
    arc.sweep = turn * 2.0 * std::atan2(half, height);
    return arc;
}

}  // namespace kvt
