#include "output/port_contours.hpp"

#include "base/checked_math.hpp"

namespace kvt {

std::vector<point2> port_contour(const port_params& ports, port_side side) {
    const port_record& port = ports.of(side);
    std::vector<point2> contour;
    for (std::int64_t i = 0; i <= port.last; ++i) {
        const point2 point = {checked_at(port.x, i), checked_at(port.y, i)};
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
