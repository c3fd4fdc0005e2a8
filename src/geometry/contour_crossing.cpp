#include "geometry/contour_crossing.hpp"

#include <algorithm>
#include <cstddef>

namespace kvt {

namespace {

struct side {
    point2 start, end;

    double left() const { return std::min(start.x, end.x); }
    double right() const { return std::max(start.x, end.x); }
};

double turn(point2 a, point2 b, point2 c) {
    return (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
}

bool lie_apart(const side& line, const side& other) {
    const double from = turn(line.start, line.end, other.start);
    const double to = turn(line.start, line.end, other.end);
    return (from > 0.0 && to < 0.0) || (from < 0.0 && to > 0.0);
}

bool cross(const side& a, const side& b) {
    return lie_apart(a, b) && lie_apart(b, a);
}

}  // namespace

bool crosses_itself(std::vector<point2> contour) {
    contour.erase(std::ranges::unique(contour).begin(), contour.end());
    std::vector<side> sides;
    for (std::size_t i = 0; i < contour.size(); ++i) {
        sides.push_back({contour[i], contour[(i + 1) % contour.size()]});
    }
    // From left to right: only sides that begin before a side ends can cross it.
    std::ranges::sort(sides, {}, &side::left);
    for (std::size_t i = 0; i < sides.size(); ++i) {
        for (std::size_t k = i + 1; k < sides.size() && sides[k].left() <= sides[i].right(); ++k) {
            if (cross(sides[i], sides[k])) {
                return true;
            }
        }
    }
    return false;
}

}  // namespace kvt
