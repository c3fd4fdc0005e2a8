#include "ports/groove_check.hpp"

#include "geometry/contour_crossing.hpp"

#include <algorithm>

namespace kvt {

namespace {

/// How far an end on the axis may lie below it by rounding, mm.
constexpr double AXIS_TOLERANCE_MM = 0.001;

}  // namespace

groove_faults faults_of_groove(const groove_shape& groove) {
    const std::vector<point2> points = outline_of_groove(groove).outline.points();
    groove_faults faults;
    faults.wrong_side = std::ranges::any_of(
        points, [](const point2& point) { return point.y < -AXIS_TOLERANCE_MM; });
    faults.crosses_itself = crosses_itself(points);
    return faults;
}

}  // namespace kvt
