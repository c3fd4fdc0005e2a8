#include "views/model/model_scene.hpp"

#include <cmath>

namespace kvt {

point3 turned(const point3& point, const part_turn& turn) {
    const double c = std::cos(turn.angle);
    const double s = std::sin(turn.angle);
    const double x = point.x - turn.axis.x;
    const double y = point.y - turn.axis.y;
    return {turn.axis.x + c * x - s * y, turn.axis.y + s * x + c * y, point.z};
}

part_turn back(const part_turn& turn) {
    return {turn.axis, -turn.angle};
}

std::vector<point3> points_of(const model_scene& scene) {
    std::vector<point3> points;
    for (const model_part& part : scene.parts) {
        for (const point3& point : part.mesh->points) {
            points.push_back(turned(point, part.turn));
        }
    }
    return points;
}

}  // namespace kvt
