#include "geometry/circle_arc.hpp"

#include <algorithm>
#include <cmath>

namespace kvt {

point2 circle_arc::at(double share) const {
    const point2 point = polar_point(radius, from + share * sweep);
    return {centre.x + point.x, centre.y + point.y};
}

point2 nearest_on(const circle_arc& arc, point2 point) {
    const point2 ray = difference(point, arc.centre);
    const double length = std::hypot(ray.x, ray.y);
    if (length == 0.0) {
        return arc.at(0.5);
    }
    // The angle of the ray from the middle of the arc, -pi .. pi.
    const point2 middle = polar_point(1.0, arc.from + 0.5 * arc.sweep);
    const double off =
        std::atan2(middle.x * ray.y - middle.y * ray.x, middle.x * ray.x + middle.y * ray.y);
    if (std::abs(off) <= 0.5 * std::abs(arc.sweep)) {
        return {arc.centre.x + ray.x * (arc.radius / length),
                arc.centre.y + ray.y * (arc.radius / length)};
    }
    const point2 start = arc.at(0.0);
    const point2 end = arc.at(1.0);
    return distance(point, end) < distance(point, start) ? end : start;
}

double nearest_share(point2 start, point2 end, point2 point) {
    const point2 along = difference(end, start);
    const point2 to = difference(point, start);
    const double length_squared = along.x * along.x + along.y * along.y;
    if (length_squared == 0.0) {
        return 0.0;
    }
    return std::clamp((to.x * along.x + to.y * along.y) / length_squared, 0.0, 1.0);
}

point2 nearest_on_line(point2 start, point2 end, point2 point) {
    const point2 along = difference(end, start);
    const double share = nearest_share(start, end, point);
    return {start.x + share * along.x, start.y + share * along.y};
}

}  // namespace kvt
