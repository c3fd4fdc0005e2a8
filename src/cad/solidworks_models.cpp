#include "cad/solidworks_models.hpp"

#include "automation/automation_error.hpp"
#include "automation/object.hpp"
#include "cad/model_outlines.hpp"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kvt::solidworks {

namespace {

using automation::as_bool;
using automation::as_text;
using automation::object_of;
using automation::object_ref;

constexpr std::string_view APPLICATION = "sldworks.application";
constexpr double MM_PER_METRE = 1000.0;
constexpr std::int32_t PART_TEMPLATE = 8;                       // swDefaultTemplatePart
constexpr std::int32_t BLIND = 0;                               // swEndCondBlind
constexpr std::int32_t FROM_SKETCH_PLANE = 0, FROM_OFFSET = 3;  // swStartSketchPlane, swStartOffset
/// The first three features of this type are the front, top and right plane, whatever their names
/// are in the language of the package.
constexpr std::string_view PLANE_FEATURE = "RefPlane";

struct part {
    object_ref model, front_plane, sketches, features;
};

double metres(double mm) {
    return mm / MM_PER_METRE;
}

object_ref front_plane_of(const object_ref& model) {
    object_ref feature = object_of(model, "FirstFeature");
    while (as_text(feature->get("GetTypeName2")) != PLANE_FEATURE) {
        feature = object_of(feature, "GetNextFeature");
    }
    return feature;
}

/// Selects a feature, and nothing else.
void select(const object_ref& feature) {
    if (!as_bool(feature->get("Select2", {false, 0}))) {
        throw automation::automation_error(automation::AUTOMATION_FAILED, 0,
                                           "SolidWorks selects nothing");
    }
}

part new_part(model_session& session) {
    session.show_percent(10);
    const object_ref& application = open_application(session, APPLICATION);
    application->put("Visible", true);
    application->put("UserControl", true);
    session.show_percent(50);
    const std::string part_template =
        as_text(application->get("GetUserPreferenceStringValue", {PART_TEMPLATE}));
    const object_ref model = object_of(application, "NewDocument", {part_template, 0, 0.0, 0.0});
    session.show_percent(60);
    return {model, front_plane_of(model), object_of(model, "SketchManager"),
            object_of(model, "FeatureManager")};
}

void finish(const model_session& session, const part& made) {
    session.show_percent(90);
    made.model->run("ClearSelection2", {true});
    made.model->run("ViewZoomtofit2");
    session.show_percent(100);
}

/// A closed sketch on the front plane, selected for the extrusion. The curves go straight into the
/// model, so that they don't snap to their neighbours.
void sketch(const part& made, const std::function<void()>& curves) {
    select(made.front_plane);
    made.sketches->run("InsertSketch", {true});
    switched_setting straight(made.sketches, "AddToDB", true);
    curves();
    straight.put_back();
    made.sketches->run("InsertSketch", {true});
    select(object_of(made.model, "FeatureByPositionReverse", {0}));
}

/// A spline through points, the last of which repeats the first.
void spline(const part& made, const std::vector<point2>& points) {
    std::vector<double> triples;
    for (const point2& point : points) {
        triples.insert(triples.end(), {metres(point.x), metres(point.y), 0.0});
    }
    object_of(made.sketches, "CreateSpline2",
              {automation::number_array{std::move(triples)}, false});
}

void closed_spline(const part& made, std::vector<point2> points) {
    if (!points.empty()) {
        points.push_back(points.front());
    }
    spline(made, points);
}

void circle(const part& made, point2 centre, double radius) {
    object_of(made.sketches, "CreateCircleByRadius",
              {metres(centre.x), metres(centre.y), 0.0, metres(radius)});
}

struct extrusion {
    double depth = 0.0;  ///< mm
    bool downwards = false;
    double start = 0.0;  ///< height above the sketch, mm
    bool merges = true;  ///< with the bodies that it touches
};

/// Extrudes the selected sketch.
void extrude(const part& made, const extrusion& how) {
    const std::int32_t from = how.start == 0.0 ? FROM_SKETCH_PLANE : FROM_OFFSET;
    object_of(made.features, "FeatureExtrusion3",
              {
                  true,               // Sd: in one direction
                  false,              // Flip: the side to cut
                  how.downwards,      // Dir: against the normal of the sketch
                  BLIND,              // T1
                  BLIND,              // T2
                  metres(how.depth),  // D1
                  0.0,                // D2
                  false,              // Dchk1: draft
                  false,              // Dchk2
                  false,              // Ddir1
                  false,              // Ddir2
                  0.0,                // Dang1
                  0.0,                // Dang2
                  false,              // OffsetReverse1
                  false,              // OffsetReverse2
                  false,              // TranslateSurface1
                  false,              // TranslateSurface2
                  how.merges,         // Merge
                  true,               // UseFeatScope
                  true,               // UseAutoSelect
                  from,               // T0
                  metres(how.start),  // StartOffset
                  false,              // FlipStartOffset
              });
}

void add_inner_rotor(const model_session& session, const part& made, bool merges) {
    const design_params design = rotor_model_entries(session.source.boxes, session.source.unit);
    sketch(made, [&] { closed_spline(made, inner_rotor_points(session.source.rotors)); });
    extrude(made, {.depth = design.thick, .merges = merges});
}

void add_outer_rotor(const model_session& session, const part& made) {
    const design_params design = rotor_model_entries(session.source.boxes, session.source.unit);
    const std::vector<point2> path = closed_spline_points(outer_rotor_points(design));
    sketch(made, [&] {
        circle(made, {-design.ecc, 0.0}, design.maxdiameter / 2.0);
        closed_spline(made, path);
    });
    extrude(made, {.depth = design.thick});
}

void add_port_body(const part& made, const port_body& body) {
    sketch(made, [&] { closed_spline(made, closed_spline_points(body.outline)); });
    extrude(made, {.depth = body.height(),
                   .downwards = body.is_lower(),
                   .start = body.is_lower() ? 0.0 : body.from_z,
                   .merges = false});
}

}  // namespace

void trochoid(model_session& session) {
    const part made = new_part(session);
    sketch(made, [&] { spline(made, trochoid_points(session.source.rotors)); });
    finish(session, made);
}

void inner_rotor(model_session& session) {
    const part made = new_part(session);
    add_inner_rotor(session, made, true);
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
    for (const port_body& body : port_bodies(source.design, source.ports, source.boxes)) {
        add_port_body(made, body);
    }
    finish(session, made);
}

void assembly(model_session& session) {
    const part made = new_part(session);
    add_outer_rotor(session, made);
    add_inner_rotor(session, made, false);
    finish(session, made);
}

}  // namespace kvt::solidworks
