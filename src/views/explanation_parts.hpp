// The parts that the explanation drawings share: circles, points at an angle, dimension lines of
// narrow gaps.
#pragma once

#include "views/explanation.hpp"

#include <span>

namespace kvt {

/// Adds a parameter with nothing but its text to a drawing.
explained_parameter& add_name(explanation& drawing, std::string_view form, std::string_view label,
                              const point2& at, text_side side);

/// The point at a distance and an angle (degrees) from a centre.
point2 point_at(const point2& centre, double radius, double degrees);

point2 halfway(const point2& a, const point2& b);

double distance_between(const point2& a, const point2& b);

/// A closed circle in steps of two degrees.
std::vector<point2> circle_points(const point2& centre, double radius);

/// The points of two coordinate lists from index 0 to `last`.
std::vector<point2> listed_points(std::span<const double> x, std::span<const double> y,
                                  std::size_t last);

/// The points of a flat list x0, y0, x1, y1 ..., closed.
std::vector<point2> closed_outline(std::span<const double> xy);

/// The rectangle between two corners, closed.
std::vector<point2> rectangle_points(const point2& lower_left, const point2& upper_right);

/// The two arrows that hold a gap between them from outside: they end at a and b, their tails are
/// so long.
std::vector<measured_line> arrows_around(const point2& a, const point2& b, double tail);

}  // namespace kvt
