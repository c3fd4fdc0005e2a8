#include "support/cad/stand_in.hpp"

#include "automation/automation_error.hpp"

#include <utility>

namespace kvt {

flat_region sketch_curve::region() const {
    return points.empty() ? circle_region(centre, radius) : polygon_region(points);
}

flat_region region_of(const std::vector<sketch_curve>& curves) {
    std::vector<flat_region> contours;
    for (const sketch_curve& curve : curves) {
        if (!curve.is_closed) {
            refuse("an open contour");
        }
        contours.push_back(curve.region());
    }
    if (contours.empty()) {
        refuse("no contour");
    }
    return nested_region(std::move(contours));
}

cad_stand_in::cad_stand_in(std::string class_name, double mm_per_unit)
    : class_name_(std::move(class_name)), mm_per_unit_(mm_per_unit) {
    application->has_switch("Visible", is_visible);
}

automation::object_ref cad_stand_in::running(std::string_view) {
    return nullptr;
}

automation::object_ref cad_stand_in::create(std::string_view class_name) {
    if (class_name != class_name_) {
        throw automation::automation_error(automation::NOT_CREATED, 0, std::string(class_name));
    }
    return application;
}

solid cad_stand_in::in_mm(solid own) const {
    return [own = std::move(own), unit = mm_per_unit_](const point3& p) {
        return own({p.x / unit, p.y / unit, p.z / unit});
    };
}

std::vector<point2> cad_stand_in::in_mm(std::vector<point2> points) const {
    for (point2& point : points) {
        point = {point.x * mm_per_unit_, point.y * mm_per_unit_};
    }
    return points;
}

}  // namespace kvt
