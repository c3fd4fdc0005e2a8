#include "output/cnc/contour_gap.hpp"

#include "output/cnc/pocket_region.hpp"

#include <algorithm>
#include <cmath>
#include <limits>

namespace kvt {

namespace {

/// Points of an arc a radian.
constexpr double POINTS_PER_RADIAN = 115.0;
/// The chord of half a turn may be longer than the diameter by rounding, mm.
constexpr double CHORD_ROUNDING_MM = 1e-9;

/// An arc as a machine runs it from start to end: the short way round.
struct short_arc {
    point2 centre;
    double radius = 0.0;
    double from = 0.0, sweep = 0.0;  // radians, counterclockwise when positive

    point2 at(double share) const {
        const point2 point = polar_point(radius, from + share * sweep);
        return {centre.x + point.x, centre.y + point.y};
    }
};

bool reaches_end(point2 start, const tool_move& move) {
    return distance(start, move.end) <= 2.0 * move.radius + CHORD_ROUNDING_MM;
}

short_arc arc_of(point2 start, const tool_move& move) {
    const double chord = distance(start, move.end);
    const double half = std::min(chord / 2.0, move.radius);
    const double height = std::sqrt(move.radius * move.radius - half * half);
    const double turn = move.kind == move_kind::counterclockwise_g03 ? 1.0 : -1.0;
    const point2 along = difference(move.end, start);
    const double to_left = chord > 0.0 ? turn * height / chord : 0.0;
    short_arc arc;
    arc.centre = {(start.x + move.end.x) / 2.0 - along.y * to_left,
                  (start.y + move.end.y) / 2.0 + along.x * to_left};
    arc.radius = move.radius;
    arc.from = std::atan2(start.y - arc.centre.y, start.x - arc.centre.x);
    arc.sweep = turn * 2.0 * std::atan2(half, height);
    return arc;
}

/// The path of the moves as a polygon; nothing when an arc does not reach its end.
std::vector<point2> path_of(const tool_contour& contour) {
    std::vector<point2> path{contour.start};
    for (const tool_move& move : contour.moves) {
        if (move.kind != move_kind::line_g01) {
            if (!reaches_end(path.back(), move)) {
                return {};
            }
            const short_arc arc = arc_of(path.back(), move);
            const int steps = 1 + static_cast<int>(std::abs(arc.sweep) * POINTS_PER_RADIAN);
            for (int k = 1; k < steps; ++k) {
                path.push_back(arc.at(static_cast<double>(k) / steps));
            }
        }
        path.push_back(move.end);
    }
    return path;
}

double largest_distance(const std::vector<point2>& points, const std::vector<point2>& path) {
    double largest = 0.0;
    for (const point2& point : points) {
        double smallest = std::numeric_limits<double>::infinity();
        for (std::size_t i = 1; i < path.size(); ++i) {
            smallest = std::min(smallest, segment_distance(point, path[i - 1], path[i]));
        }
        largest = std::max(largest, smallest);
    }
    return largest;
}

}  // namespace

double contour_gap(const tool_contour& contour, const std::vector<point2>& outline) {
    const std::vector<point2> path = path_of(contour);
    if (path.empty()) {
        return std::numeric_limits<double>::infinity();
    }
    return std::max(largest_distance(outline, path), largest_distance(path, outline));
}

}  // namespace kvt
