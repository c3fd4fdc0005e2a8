#include "output/port_contours.hpp"

#include "base/checked_math.hpp"
#include "ports/port_fields.hpp"

namespace kvt {

std::vector<point2> port_contour(const port_params& ports, port_side side) {
    const port_fields& fields = side == port_side::inlet ? inlet_fields() : outlet_fields();
    std::vector<point2> contour;
    for (std::int64_t i = 0; i <= ports.*fields.last; ++i) {
        const point2 point = {checked_at(ports.*fields.x, i), checked_at(ports.*fields.y, i)};
        if (point.x == 0.0) {
            break;
        }
        contour.push_back(point);
    }
    return contour;
}

std::vector<point2> groove_contour(const port_params& ports) {
    std::vector<point2> contour;
    for (std::int64_t i = 0; ports.groove_last > 0 && i <= ports.groove_last; ++i) {
        contour.push_back({checked_at(ports.groove_x, i), checked_at(ports.groove_y, i)});
    }
    return contour;
}

std::vector<point2> shadow_contour(std::vector<point2> contour) {
    for (point2& point : contour) {
        point.x = -point.x;
    }
    return contour;
}

}  // namespace kvt
