#include "geometry/contour_crossing.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

namespace kvt {

namespace {

struct side {
    side(point2 from, point2 to)
        : start(from),
          end(to),
          left(std::min(from.x, to.x)),
          right(std::max(from.x, to.x)),
          low(std::min(from.y, to.y)),
          high(std::max(from.y, to.y)) {}

    point2 start, end;
    double left, right, low, high;
};

double turn(point2 a, point2 b, point2 c) {
    return (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
}

bool lie_apart(const side& line, const side& other) {
    const double from = turn(line.start, line.end, other.start);
    const double to = turn(line.start, line.end, other.end);
    return (from > 0.0 && to < 0.0) || (from < 0.0 && to > 0.0);
}

/// A glance at the heights is enough for most sides.
bool cross(const side& a, const side& b) {
    return a.low <= b.high && b.low <= a.high && lie_apart(a, b) && lie_apart(b, a);
}

void add_sides(std::vector<point2> contour, std::vector<side>& to) {
    contour.erase(std::unique(contour.begin(), contour.end()), contour.end());
    for (std::size_t i = 0; i < contour.size(); ++i) {
        to.emplace_back(contour[i], contour[(i + 1) % contour.size()]);
    }
}

bool any_cross(std::vector<side> sides) {
    // From left to right: only sides that begin before a side ends can cross it.
    std::ranges::sort(sides, {}, &side::left);
    for (std::size_t i = 0; i < sides.size(); ++i) {
        for (std::size_t k = i + 1; k < sides.size() && sides[k].left <= sides[i].right; ++k) {
            if (cross(sides[i], sides[k])) {
                return true;
            }
        }
    }
    return false;
}

/// Whether each side turns by more than a hair to the left as seen from the origin, and all of them
/// by one turn: then each lies in a sector of its own. So do the profiles of nearly all rotors.
bool goes_round_the_origin_once(const std::vector<point2>& contour) {
    constexpr double HAIR = 1e-12;  // radians; the products below are exact to some 1e-16
    int turns = 0;
    for (std::size_t i = 0; i < contour.size(); ++i) {
        const point2& from = contour[i];
        const point2& to = contour[i + 1 < contour.size() ? i + 1 : 0];
        if (from == to) {
            continue;
        }
        const double left = from.x * to.y;
        const double right = from.y * to.x;
        if (!(left - right > HAIR * (std::abs(left) + std::abs(right)))) {
            return false;
        }
        turns += from.y < 0.0 && to.y >= 0.0 ? 1 : 0;
    }
    return turns == 1;
}

}  // namespace

bool crosses_itself(std::vector<point2> contour) {
    if (goes_round_the_origin_once(contour)) {
        return false;
    }
    std::vector<side> sides;
    add_sides(std::move(contour), sides);
    return any_cross(std::move(sides));
}

bool any_cross(const std::vector<std::vector<point2>>& contours) {
    std::vector<side> sides;
    for (const std::vector<point2>& contour : contours) {
        add_sides(contour, sides);
    }
    return any_cross(std::move(sides));
}

}  // namespace kvt
