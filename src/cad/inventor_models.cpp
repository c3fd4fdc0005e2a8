#include "cad/inventor_models.hpp"

#include "automation/automation_error.hpp"
#include "automation/object.hpp"
#include "cad/model_outlines.hpp"
#include "cad/port_planes.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace kvt::inventor {

namespace {

using automation::as_text;
using automation::object_of;
using automation::object_ref;

constexpr std::string_view APPLICATION = "inventor.application";
constexpr double MM_PER_CENTIMETRE = 10.0;
constexpr std::int32_t PART_DOCUMENT = 12290;  // kPartDocumentObject
constexpr std::int32_t XY_PLANE = 3;           // of WorkPlanes
constexpr std::int32_t SMOOTH_FIT = 26369;     // kSmoothSplineFit
constexpr std::size_t PORT_COLLECTIONS = 5;

enum class direction : std::int32_t { up = 20993, down = 20994 };  // kPositive, kNegative
enum class operation : std::int32_t { join = 20481, cut = 20482, new_body = 20485 };

struct part {
    object_ref application, definition, xy_plane, geometry, objects;
};

double centimetres(double mm) {
    return mm / MM_PER_CENTIMETRE;
}

part new_part(model_session& session) {
    session.show_percent(10);
    const object_ref& application = open_application(session, APPLICATION);
    application->put("Visible", true);
    session.show_percent(50);
    const std::string part_template =
        as_text(object_of(application, "FileManager")->get("GetTemplateFile", {PART_DOCUMENT}));
    const object_ref document =
        object_of(object_of(application, "Documents"), "Add", {PART_DOCUMENT, part_template, true});
    const object_ref definition = object_of(document, "ComponentDefinition");
    const object_ref geometry = object_of(application, "TransientGeometry");
    const object_ref objects = object_of(application, "TransientObjects");
    // Kept: read and not used, since numbers are centimetres in any document; model_logs_test holds
    // it.
    document->get("UnitsOfMeasure");
    session.show_percent(75);
    return {application, definition,
            object_of(object_of(definition, "WorkPlanes"), "Item", {XY_PLANE}), geometry, objects};
}

void finish(const model_session& session, const part& made) {
    object_of(made.application, "ActiveView")->run("Fit");
    session.show_percent(100);
}

object_ref point_of(const part& made, point2 point) {
    return object_of(made.geometry, "CreatePoint2d", {centimetres(point.x), centimetres(point.y)});
}

object_ref new_sketch(const part& made, const object_ref& plane) {
    return object_of(object_of(made.definition, "Sketches"), "Add", {plane});
}

object_ref new_collection(const part& made) {
    return object_of(made.objects, "CreateObjectCollection");
}

/// A closed spline through distinct points, which go through the collection.
void closed_spline(const part& made, const object_ref& sketch, const object_ref& collection,
                   const std::vector<point2>& points) {
    for (const point2& point : points) {
        collection->run("Add", {point_of(made, point)});
    }
    switched_setting deferred(sketch, "DeferUpdates", true);
    const object_ref spline =
        object_of(object_of(sketch, "SketchSplines"), "Add", {collection, SMOOTH_FIT});
    spline->put("Closed", true);
    deferred.put_back();
}

object_ref spline_sketch(const part& made, const object_ref& plane,
                         const std::vector<point2>& points) {
    const object_ref sketch = new_sketch(made, plane);
    closed_spline(made, sketch, new_collection(made), points);
    return sketch;
}

object_ref circle_sketch(const part& made, point2 centre, double radius) {
    const object_ref sketch = new_sketch(made, made.xy_plane);
    object_of(object_of(sketch, "SketchCircles"), "AddByCenterRadius",
              {point_of(made, centre), centimetres(radius)});
    return sketch;
}

struct extrusion {
    double distance = 0.0;  ///< mm
    direction towards = direction::up;
    operation does = operation::join;
};

/// The extrusion by a definition, for a release without AddByDistanceExtent.
void extrude_by_definition(const object_ref& extrusions, const object_ref& profile,
                           const extrusion& how) {
    const object_ref definition = object_of(extrusions, "CreateExtrudeDefinition",
                                            {profile, static_cast<std::int32_t>(how.does)});
    definition->run("SetDistanceExtent",
                    {centimetres(how.distance), static_cast<std::int32_t>(how.towards)});
    object_of(extrusions, "Add", {definition});
}

void extrude(const part& made, const object_ref& sketch, const extrusion& how) {
    const object_ref profile = object_of(object_of(sketch, "Profiles"), "AddForSolid");
    const object_ref extrusions =
        object_of(object_of(made.definition, "Features"), "ExtrudeFeatures");
    try {
        object_of(extrusions, "AddByDistanceExtent",
                  {profile, centimetres(how.distance), static_cast<std::int32_t>(how.towards),
                   static_cast<std::int32_t>(how.does)});
    } catch (const automation::automation_error& error) {
        if (error.number() != automation::UNKNOWN_NAME) {
            throw;
        }
        extrude_by_definition(extrusions, profile, how);
    }
}

void add_inner_rotor(const model_session& session, const part& made, operation does) {
    const design_params design = rotor_model_entries(session.source.boxes, session.source.unit);
    const object_ref sketch =
        spline_sketch(made, made.xy_plane, inner_rotor_points(session.source.rotors));
    extrude(made, sketch, {.distance = design.thick, .does = does});
}

void add_outer_rotor(const model_session& session, const part& made) {
    const design_params design = rotor_model_entries(session.source.boxes, session.source.unit);
    const std::vector<point2> path = closed_spline_points(outer_rotor_points(design));
    const object_ref rim = circle_sketch(made, {-design.ecc, 0.0}, design.maxdiameter / 2.0);
    extrude(made, rim, {.distance = design.thick});
    const object_ref bore = spline_sketch(made, made.xy_plane, path);
    extrude(made, bore, {.distance = design.thick, .does = operation::cut});
}

object_ref plane_at(const part& made, double z) {
    return object_of(object_of(made.definition, "WorkPlanes"), "AddByPlaneAndOffset",
                     {made.xy_plane, centimetres(z)});
}

}  // namespace

void trochoid(model_session& session) {
    const part made = new_part(session);
    spline_sketch(made, made.xy_plane, distinct_trochoid_points(session.source.rotors));
    finish(session, made);
}

void inner_rotor(model_session& session) {
    const part made = new_part(session);
    add_inner_rotor(session, made, operation::join);
    finish(session, made);
}

void outer_rotor(model_session& session) {
    const part made = new_part(session);
    add_outer_rotor(session, made);
    finish(session, made);
}

void porting(model_session& session) {
    const model_source& source = session.source;
    const part made = new_part(session);
    std::vector<object_ref> collections(PORT_COLLECTIONS);
    std::ranges::generate(collections, [&] { return new_collection(made); });
    port_planes planes(made.xy_plane, [&](double z) { return plane_at(made, z); });
    std::size_t count = 0;
    for (const port_body& body : port_bodies(source.design, source.ports, source.boxes)) {
        const object_ref sketch = new_sketch(made, planes.of(body));
        closed_spline(made, sketch, collections.at(count), closed_spline_points(body.outline));
        extrude(made, sketch,
                {.distance = body.height(),
                 .towards = body.is_lower() ? direction::down : direction::up,
                 .does = count == 0 ? operation::join : operation::new_body});
        ++count;
    }
    finish(session, made);
}

void assembly(model_session& session) {
    const part made = new_part(session);
    add_outer_rotor(session, made);
    add_inner_rotor(session, made, operation::new_body);
    finish(session, made);
}

}  // namespace kvt::inventor
