#include "support/cad/solid_box.hpp"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

namespace kvt {

namespace {

constexpr double NEAR = 1e-7;  // of a corner to the inside, in the solid's own unit
constexpr int DIRECTIONS = 360;

point2 along(point2 from, point2 direction, double by) {
    return {from.x + direction.x * by, from.y + direction.y * by};
}

point2 direction_of(const wall& line) {
    const double length = distance(line.a, line.b);
    return {(line.b.x - line.a.x) / length, (line.b.y - line.a.y) / length};
}

double crossed(point2 a, point2 b) {
    return a.x * b.y - a.y * b.x;
}

std::vector<point2> line_with_line(const wall& one, const wall& other) {
    const point2 d = direction_of(one), e = direction_of(other);
    const double sine = crossed(d, e);
    if (std::abs(sine) < 1e-12) {
        return {};
    }
    return {along(one.a, d, crossed(difference(other.a, one.a), e) / sine)};
}

/// One that touches is as good as one that crosses.
std::vector<point2> line_with_circle(const wall& line, const wall& circle) {
    const point2 d = direction_of(line), to_centre = difference(circle.a, line.a);
    const point2 foot = along(line.a, d, d.x * to_centre.x + d.y * to_centre.y);
    const double off = distance(foot, circle.a);
    if (off > circle.radius * (1.0 + 1e-12)) {
        return {};
    }
    const double half = std::sqrt(std::max(circle.radius * circle.radius - off * off, 0.0));
    return {along(foot, d, half), along(foot, d, -half)};
}

/// The line through their crossings crosses either of them there.
std::vector<point2> circle_with_circle(const wall& one, const wall& other) {
    const double apart = distance(one.a, other.a);
    if (apart < 1e-12) {
        return {};
    }
    const double share =
        (apart * apart + one.radius * one.radius - other.radius * other.radius) / (2.0 * apart);
    const point2 d = direction_of({one.a, other.a});
    const point2 foot = along(one.a, d, share);
    return line_with_circle({foot, {foot.x - d.y, foot.y + d.x}}, one);
}

std::vector<point2> crossings(const wall& one, const wall& other) {
    if (one.radius == 0.0 && other.radius == 0.0) {
        return line_with_line(one, other);
    }
    if (one.radius == 0.0) {
        return line_with_circle(one, other);
    }
    return other.radius == 0.0 ? line_with_circle(other, one) : circle_with_circle(one, other);
}

std::vector<point2> farthest(const wall& circle) {
    const point2 c = circle.a;
    const double r = circle.radius;
    return {{c.x + r, c.y}, {c.x - r, c.y}, {c.x, c.y + r}, {c.x, c.y - r}};
}

std::vector<point2> possible_corners(const std::vector<wall>& walls) {
    std::vector<point2> corners;
    const auto add = [&corners](const std::vector<point2>& found) {
        corners.insert(corners.end(), found.begin(), found.end());
    };
    for (std::size_t i = 0; i < walls.size(); ++i) {
        if (walls[i].radius > 0.0) {
            add(farthest(walls[i]));
        }
        for (std::size_t j = 0; j < i; ++j) {
            add(crossings(walls[i], walls[j]));
        }
    }
    return corners;
}

bool touches(const solid& shape, point3 corner) {
    for (int i = 0; i < DIRECTIONS; ++i) {
        const double angle = 2.0 * std::numbers::pi * i / DIRECTIONS;
        const double x = corner.x + NEAR * std::cos(angle), y = corner.y + NEAR * std::sin(angle);
        if (shape({x, y, corner.z - NEAR}) || shape({x, y, corner.z + NEAR})) {
            return true;
        }
    }
    return false;
}

bool holds(const solid_box& box, point3 p) {
    return p.x >= box.lowest.x && p.x <= box.highest.x && p.y >= box.lowest.y &&
           p.y <= box.highest.y && p.z >= box.lowest.z && p.z <= box.highest.z;
}

solid_box with(const solid_box& box, point3 p) {
    return {
        {std::min(box.lowest.x, p.x), std::min(box.lowest.y, p.y), std::min(box.lowest.z, p.z)},
        {std::max(box.highest.x, p.x), std::max(box.highest.y, p.y), std::max(box.highest.z, p.z)}};
}

}  // namespace

surfaces surfaces_of_prism(const std::vector<point2>& corners, double from_z, double to_z) {
    surfaces all = {{}, {from_z, to_z}};
    for (std::size_t i = 0; i < corners.size(); ++i) {
        all.walls.push_back({corners[i], corners[(i + 1) % corners.size()]});
    }
    return all;
}

surfaces surfaces_of_cylinder(point3 centre, double radius, double height) {
    return {{{{centre.x, centre.y}, {}, radius}},
            {centre.z - height / 2.0, centre.z + height / 2.0}};
}

surfaces together(surfaces some, const surfaces& others) {
    some.walls.insert(some.walls.end(), others.walls.begin(), others.walls.end());
    some.levels.insert(some.levels.end(), others.levels.begin(), others.levels.end());
    return some;
}

surfaces moved(surfaces all, point3 by) {
    for (wall& one : all.walls) {
        one.a = {one.a.x + by.x, one.a.y + by.y};
        one.b = {one.b.x + by.x, one.b.y + by.y};
    }
    for (double& level : all.levels) {
        level += by.z;
    }
    return all;
}

surfaces turned(surfaces all, point2 axis, double angle) {
    const double c = std::cos(angle), s = std::sin(angle);
    const auto turn = [&](point2 p) -> point2 {
        const double x = p.x - axis.x, y = p.y - axis.y;
        return {axis.x + c * x - s * y, axis.y + s * x + c * y};
    };
    for (wall& one : all.walls) {
        one.a = turn(one.a);
        one.b = turn(one.b);
    }
    return all;
}

solid_box box_of(const solid& shape, const surfaces& of) {
    constexpr double FAR = std::numeric_limits<double>::infinity();
    solid_box box = {{FAR, FAR, FAR}, {-FAR, -FAR, -FAR}};
    for (const point2 corner : possible_corners(of.walls)) {
        for (const double level : of.levels) {
            const point3 place = {corner.x, corner.y, level};
            if (!holds(box, place) && touches(shape, place)) {
                box = with(box, place);
            }
        }
    }
    return box;
}

}  // namespace kvt
