#include "cad/autocad_drawing.hpp"

#include "automation/object.hpp"
#include "base/checked_math.hpp"
#include "cad/model_outlines.hpp"

#include <algorithm>
#include <cmath>
#include <string_view>

namespace kvt::autocad {

using automation::number_array;
using automation::object_array;
using automation::object_of;
using automation::object_ref;

namespace {

constexpr std::string_view CLASS_NAME = "autocad.application";
constexpr double NO_TAPER = 0.0;
constexpr double FULL_CIRCLE = 6.283185307179586;  // AngleToFill of ArrayPolar, radians
constexpr bool KEEP_BOTH_SIDES = true;
/// Sizes of boxes that differ by less, relative, are the same.
constexpr double SAME_SIZE = 1e-9;

/// With no drawing open there is no active one.
object_ref active_document(const object_ref& application) {
    try {
        return object_of(application, "ActiveDocument");
    } catch (const run_time_error&) {
        return object_of(object_of(application, "Documents"), "Add");
    }
}

/// For what is of no more use. Older releases delete a region and its outline themselves.
void delete_if_there(const object_ref& entity) {
    ignore_failure([&entity] { entity->run("Delete"); });
}

/// Width and height of the box around a solid, in the drawing's unit.
point2 box_size(const object_ref& solid) {
    std::vector<double> lowest, highest;
    solid->run("GetBoundingBox", {automation::by_reference_numbers{&lowest},
                                  automation::by_reference_numbers{&highest}});
    return {checked_at(highest, 0) - checked_at(lowest, 0),
            checked_at(highest, 1) - checked_at(lowest, 1)};
}

bool is_same_length(double a, double b) {
    return std::abs(a - b) <= SAME_SIZE * std::max(std::abs(a), std::abs(b));
}

/// Whether ArrayPolar turned its copies or only moved them round: the box of a moved copy is as
/// wide and as high as that of its original. A turn that gives a box of the same size again, as a
/// quarter turn may, is not seen; the copies made in their place are the same then. A release that
/// can't tell the box is taken to turn its copies, as the package's manual says.
bool are_turned(const std::vector<object_ref>& copies, const object_ref& original) {
    bool turned = true;
    ignore_failure([&] {
        const point2 told = box_size(original), copied = box_size(checked_at(copies, 0));
        turned = !is_same_length(told.x, copied.x) || !is_same_length(told.y, copied.y);
    });
    return turned;
}

}  // namespace

drawing::drawing(model_session& session) : unit_(session.source.unit) {
    session.show_percent(10);
    application_ = open_application(session, CLASS_NAME);
    application_->put("Visible", true);
    session.show_percent(50);
    document_ = active_document(application_);
    model_space_ = object_of(document_, "ModelSpace");
    session.show_percent(75);
}

double drawing::length(double mm) const {
    return drawing_length(mm, unit_);
}

number_array drawing::point(point3 mm) const {
    return {{length(mm.x), length(mm.y), length(mm.z)}};
}

object_ref drawing::polyline(const std::vector<point2>& points) const {
    return object_of(model_space_, "AddLightWeightPolyline",
                     {number_array{flat_coordinates(points, unit_.mm)}});
}

object_ref drawing::closed_polyline(const std::vector<point2>& points) const {
    object_ref line = polyline(points);
    line->put("Closed", true);
    return line;
}

object_ref drawing::extruded(const std::vector<point2>& outline, double height) const {
    const object_ref line = closed_polyline(outline);
    const std::vector<object_ref> regions =
        as_objects(model_space_->get("AddRegion", {object_array{{line}}}));
    const object_ref region = automation::as_object(checked_at(regions, 0));
    object_ref solid =
        object_of(model_space_, "AddExtrudedSolid", {region, length(height), NO_TAPER});
    delete_if_there(region);
    delete_if_there(line);
    return solid;
}

object_ref drawing::cylinder(point3 centre, double radius, double height) const {
    return object_of(model_space_, "AddCylinder", {point(centre), length(radius), length(height)});
}

void drawing::move(const object_ref& solid, double up) const {
    solid->run("Move", {point({}), point({0.0, 0.0, up})});
}

void drawing::mirror(const object_ref& solid, double plane_z) const {
    object_of(solid, "Mirror3D",
              {point({0.0, 0.0, plane_z}), point({1.0, 0.0, plane_z}), point({0.0, 1.0, plane_z})});
    solid->run("Delete");
}

void drawing::slice(const object_ref& solid, point3 a, point3 b, point3 c) const {
    object_of(solid, "SliceSolid", {point(a), point(b), point(c), KEEP_BOTH_SIDES})->run("Delete");
}

std::vector<object_ref> drawing::polar_copies(const object_ref& solid, std::int32_t count,
                                              point3 centre) const {
    std::vector<object_ref> copies =
        as_objects(solid->get("ArrayPolar", {count, FULL_CIRCLE, point(centre)}));
    if (are_turned(copies, solid)) {
        return copies;
    }
    for (const object_ref& copy : copies) {
        delete_if_there(copy);
    }
    return rotated_copies(solid, count, centre);
}

std::vector<object_ref> drawing::rotated_copies(const object_ref& solid, std::int32_t count,
                                                point3 centre) const {
    const number_array foot = point(centre), above = point({centre.x, centre.y, centre.z + 1.0});
    std::vector<object_ref> copies;
    for (std::int32_t k = 1; k < count; ++k) {
        copies.push_back(object_of(solid, "Copy"));
        copies.back()->run("Rotate3D", {foot, above, k * FULL_CIRCLE / count});
    }
    return copies;
}

void drawing::zoom() const {
    application_->run("ZoomExtents");
}

void drawing::zoom_twice() const {
    ignore_failure([this] { object_of(document_, "ActiveViewport"); });
    zoom();
    zoom();
}

}  // namespace kvt::autocad
