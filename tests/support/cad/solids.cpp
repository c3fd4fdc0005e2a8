#include "support/cad/solids.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <memory>
#include <numbers>
#include <utility>

namespace kvt {

namespace {

struct line {
    point2 start, end;

    /// Whether a ray from the point towards +x crosses the line.
    bool is_crossed_by(point2 point) const {
        if ((start.y > point.y) == (end.y > point.y)) {
            return false;
        }
        const double share = (point.y - start.y) / (end.y - start.y);
        return start.x + share * (end.x - start.x) > point.x;
    }
};

/// The lines of a polygon in strips of equal height, so that a point is compared with few of them.
class striped_lines {
  public:
    explicit striped_lines(const std::vector<point2>& corners) : strips_(corners.size() + 1) {
        const auto [low, high] =
            std::ranges::minmax_element(corners, {}, [](const point2& p) { return p.y; });
        bottom_ = low->y;
        height_ = (high->y - low->y) / static_cast<double>(corners.size());
        for (std::size_t i = 0; i < corners.size(); ++i) {
            add({corners[i], corners[(i + 1) % corners.size()]});
        }
    }

    bool has_inside(point2 point) const {
        if (!(height_ > 0.0) || point.y < bottom_ ||
            point.y > bottom_ + height_ * static_cast<double>(strips_.size())) {
            return false;
        }
        return std::ranges::count_if(strips_[strip_of(point.y)],
                                     [&](const line& one) { return one.is_crossed_by(point); }) %
                   2 ==
               1;
    }

  private:
    std::size_t strip_of(double y) const {
        const double strip = std::floor((y - bottom_) / height_);
        return std::min(static_cast<std::size_t>(std::max(strip, 0.0)), strips_.size() - 1);
    }
    void add(const line& one) {
        const auto [low, high] = std::minmax(one.start.y, one.end.y);
        for (std::size_t strip = strip_of(low); strip <= strip_of(high); ++strip) {
            strips_[strip].push_back(one);
        }
    }

    std::vector<std::vector<line>> strips_;
    double bottom_ = 0.0, height_ = 0.0;
};

bool has_direction(const circle_arc& arc, point2 from_centre) {
    const double full = 2.0 * std::numbers::pi;
    const double angle = std::atan2(from_centre.y, from_centre.x);
    const double start = arc.sweep < 0.0 ? arc.from + arc.sweep : arc.from;
    const double turned_by = angle - start - full * std::floor((angle - start) / full);
    return turned_by < std::abs(arc.sweep);
}

/// How often a ray from the point towards +x crosses the arc.
int crossings(const circle_arc& arc, point2 point) {
    const double dy = point.y - arc.centre.y;
    if (!(std::abs(dy) < arc.radius)) {
        return 0;
    }
    const double dx = std::sqrt(arc.radius * arc.radius - dy * dy);
    int count = 0;
    for (const double side : {-dx, dx}) {
        count += arc.centre.x + side > point.x && has_direction(arc, {side, dy}) ? 1 : 0;
    }
    return count;
}

point3 scaled(point3 a, double by) {
    return {a.x * by, a.y * by, a.z * by};
}

}  // namespace

flat_region polygon_region(const std::vector<point2>& corners) {
    const auto lines = std::make_shared<striped_lines>(corners);
    return [lines](point2 point) { return lines->has_inside(point); };
}

flat_region circle_region(point2 centre, double radius) {
    return [=](point2 point) { return distance(point, centre) < radius; };
}

flat_region arc_region(std::vector<circle_arc> arcs) {
    return [arcs = std::move(arcs)](point2 point) {
        int count = 0;
        for (const circle_arc& arc : arcs) {
            count += crossings(arc, point);
        }
        return count % 2 == 1;
    };
}

flat_region nested_region(std::vector<flat_region> contours) {
    return [contours = std::move(contours)](point2 point) {
        return std::ranges::count_if(contours, [&](const flat_region& one) { return one(point); }) %
                   2 ==
               1;
    };
}

solid prism(const flat_region& region, double from_z, double to_z) {
    const auto [low, high] = std::minmax({from_z, to_z});
    return [=, low = low, high = high](const point3& p) {
        return p.z > low && p.z < high && region({p.x, p.y});
    };
}

solid cylinder(point3 centre, double radius, double height) {
    return prism(circle_region({centre.x, centre.y}, radius), centre.z - height / 2.0,
                 centre.z + height / 2.0);
}

solid half_space(point3 a, point3 b, point3 c) {
    const point3 normal = cross(b - a, c - a);
    return [=](const point3& p) { return dot(p - a, normal) > 0.0; };
}

solid united(solid a, solid b) {
    return [a = std::move(a), b = std::move(b)](const point3& p) { return a(p) || b(p); };
}

solid cut(solid a, solid b) {
    return [a = std::move(a), b = std::move(b)](const point3& p) { return a(p) && !b(p); };
}

solid common(solid a, solid b) {
    return [a = std::move(a), b = std::move(b)](const point3& p) { return a(p) && b(p); };
}

solid moved(solid a, point3 by) {
    return [a = std::move(a), by](const point3& p) { return a(p - by); };
}

solid turned(solid a, point2 axis, double angle) {
    const double c = std::cos(angle), s = std::sin(angle);
    return [=, a = std::move(a)](const point3& p) {
        const double x = p.x - axis.x, y = p.y - axis.y;
        return a({axis.x + c * x + s * y, axis.y - s * x + c * y, p.z});
    };
}

solid mirrored(solid a, point3 p, point3 q, point3 r) {
    const point3 normal = cross(q - p, r - p);
    return [=, a = std::move(a)](const point3& point) {
        const double twice = 2.0 * dot(point - p, normal) / dot(normal, normal);
        return a(point - scaled(normal, twice));
    };
}

}  // namespace kvt
