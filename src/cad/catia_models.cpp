#include "cad/catia_models.hpp"

#include "automation/object.hpp"
#include "cad/model_outlines.hpp"
#include "cad/port_planes.hpp"

#include <algorithm>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kvt::catia {

namespace {

using automation::object_of;
using automation::object_ref;

constexpr std::string_view APPLICATION = "catia.application";
constexpr std::int32_t FIRST_BODY = 1;           // of Bodies
constexpr std::int32_t INVERSE_ORIENTATION = 1;  // catInverseOrientation

struct part {
    object_ref document_part, xy_plane;
    bool has_body = false;
};

object_ref reference_to(const object_ref& document_part, const object_ref& plane) {
    return object_of(document_part, "CreateReferenceFromObject", {plane});
}

/// Makes a new part, takes the steps in it without drawing the screen after each, and shows it.
void build_part(model_session& session, const std::function<void(part&)>& steps) {
    session.show_percent(10);
    const object_ref& application = open_application(session, APPLICATION);
    application->put("Visible", true);
    application->put("DisplayFileAlerts", false);
    session.show_percent(50);
    const object_ref document =
        object_of(object_of(application, "Documents"), "Add", {std::string("Part")});
    const object_ref document_part = object_of(document, "Part");
    session.show_percent(75);
    switched_setting refresh(application, "RefreshDisplay", false);
    const object_ref plane = object_of(object_of(document_part, "OriginElements"), "PlaneXY");
    part made{document_part, reference_to(document_part, plane)};
    steps(made);
    document_part->run("Update");
    refresh.put_back();
    object_of(object_of(application, "ActiveWindow"), "ActiveViewer")->run("Reframe");
    session.show_percent(100);
}

/// The body that a part has from the start, then further ones.
object_ref next_body(part& made) {
    const object_ref bodies = object_of(made.document_part, "Bodies");
    const bool has_body = std::exchange(made.has_body, true);
    return has_body ? object_of(bodies, "Add") : object_of(bodies, "Item", {FIRST_BODY});
}

/// A sketch of curves, which get the factory that draws them.
object_ref sketch(const object_ref& body, const object_ref& plane,
                  const std::function<void(const object_ref&)>& curves) {
    const object_ref made = object_of(object_of(body, "Sketches"), "Add", {plane});
    curves(object_of(made, "OpenEdition"));
    made->run("CloseEdition");
    return made;
}

/// A spline through distinct points, closed by the first of its point objects as the last one.
void closed_spline(const object_ref& factory, const std::vector<point2>& points) {
    automation::variant_array control_points;
    for (const point2& point : points) {
        control_points.objects.push_back(
            object_of(factory, "CreateControlPoint", {point.x, point.y}));
    }
    if (!points.empty()) {
        control_points.objects.push_back(control_points.objects.front());
    }
    object_of(factory, "CreateSpline", {std::move(control_points)});
}

object_ref pad(const part& made, const object_ref& body, const object_ref& sketch, double height) {
    made.document_part->put("InWorkObject", body);
    return object_of(object_of(made.document_part, "ShapeFactory"), "AddNewPad", {sketch, height});
}

void update(const part& made, const object_ref& feature) {
    made.document_part->run("UpdateObject", {feature});
}

void add_inner_rotor(const model_session& session, part& made) {
    const design_params design = rotor_model_entries(session.source.boxes, session.source.unit);
    const object_ref body = next_body(made);
    const object_ref drawn = sketch(body, made.xy_plane, [&](const object_ref& factory) {
        closed_spline(factory, inner_rotor_points(session.source.rotors));
    });
    update(made, pad(made, body, drawn, design.thick));
}

void add_outer_rotor(const model_session& session, part& made) {
    const design_params design = rotor_model_entries(session.source.boxes, session.source.unit);
    const std::vector<point2> path = closed_spline_points(outer_rotor_points(design));
    const object_ref body = next_body(made);
    const object_ref drawn = sketch(body, made.xy_plane, [&](const object_ref& factory) {
        object_of(factory, "CreateClosedCircle", {-design.ecc, 0.0, design.maxdiameter / 2.0});
        closed_spline(factory, path);
    });
    update(made, pad(made, body, drawn, design.thick));
}

void add_port_body(part& made, const object_ref& plane, const port_body& port) {
    const object_ref body = next_body(made);
    const object_ref drawn = sketch(body, plane, [&](const object_ref& factory) {
        closed_spline(factory, closed_spline_points(port.outline));
    });
    const object_ref made_pad = pad(made, body, drawn, port.height());
    if (port.is_lower()) {
        made_pad->put("DirectionOrientation", INVERSE_ORIENTATION);
    }
    update(made, made_pad);
}

/// A plane in a geometrical set of its own, so that it can be sketched on.
object_ref plane_at(const part& made, double z) {
    const object_ref plane = object_of(object_of(made.document_part, "HybridShapeFactory"),
                                       "AddNewPlaneOffset", {made.xy_plane, z, false});
    object_of(object_of(made.document_part, "HybridBodies"), "Add")
        ->run("AppendHybridShape", {plane});
    made.document_part->put("InWorkObject", plane);
    made.document_part->run("Update");
    return reference_to(made.document_part, plane);
}

/// The bodies with the groove as the last one.
std::vector<port_body> bodies_of(const model_source& source) {
    std::vector<port_body> bodies = port_bodies(source.design, source.ports, source.boxes);
    std::stable_partition(bodies.begin(), bodies.end(), [](const port_body& body) {
        return body.kind != port_body_kind::groove;
    });
    return bodies;
}

}  // namespace

void trochoid(model_session& session) {
    build_part(session, [&](part& made) {
        sketch(next_body(made), made.xy_plane, [&](const object_ref& factory) {
            closed_spline(factory, distinct_trochoid_points(session.source.rotors));
        });
    });
}

void inner_rotor(model_session& session) {
    build_part(session, [&](part& made) { add_inner_rotor(session, made); });
}

void outer_rotor(model_session& session) {
    build_part(session, [&](part& made) { add_outer_rotor(session, made); });
}

void porting(model_session& session) {
    build_part(session, [&](part& made) {
        port_planes planes(made.xy_plane, [&](double z) { return plane_at(made, z); });
        for (const port_body& body : bodies_of(session.source)) {
            add_port_body(made, planes.of(body), body);
        }
    });
}

void assembly(model_session& session) {
    build_part(session, [&](part& made) {
        add_outer_rotor(session, made);
        add_inner_rotor(session, made);
    });
}

}  // namespace kvt::catia
