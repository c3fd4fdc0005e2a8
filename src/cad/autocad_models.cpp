#include "cad/autocad_models.hpp"

#include "automation/object.hpp"
#include "cad/autocad_drawing.hpp"
#include "cad/autocad_outer_rotor.hpp"
#include "cad/model_outlines.hpp"

namespace kvt::autocad {

namespace {

constexpr int FINISHED = 100;

void finish(model_session& session) {
    session.show_percent(FINISHED);
}

design_params rotor_entries(const model_session& session) {
    return rotor_model_entries(session.source.boxes, session.source.unit);
}

void draw_inner_rotor(const drawing& in, const model_session& session) {
    in.extruded(plotted_inner_points(session.source.rotors), rotor_entries(session).thick);
}

/// Lower bodies hang down from the face of the rotors. The upper half of a double-sided port is the
/// mirror image of the lower one, a shadow port is lifted to its place.
void draw_port_body(const drawing& in, const port_body& body, double upper_z) {
    switch (body.place) {
        case port_body_place::below:
            in.extruded(body.outline, -body.height());
            break;
        case port_body_place::above_double_sided:
            in.mirror(in.extruded(body.outline, -body.height()), upper_z / 2.0);
            break;
        case port_body_place::above_shadow:
            in.move(in.extruded(body.outline, body.height()), upper_z);
            break;
    }
}

}  // namespace

void trochoid(model_session& session) {
    const drawing in(session);
    in.polyline(trochoid_points(session.source.rotors));
    in.zoom();
    finish(session);
}

void inner_rotor(model_session& session) {
    const drawing in(session);
    draw_inner_rotor(in, session);
    in.zoom_twice();
    finish(session);
}

void outer_rotor(model_session& session) {
    const drawing in(session);
    draw_outer_rotor(in, rotor_entries(session));
    in.zoom_twice();
    finish(session);
}

void porting(model_session& session) {
    const drawing in(session);
    const model_source& source = session.source;
    for (const port_body& body : port_bodies(source.design, source.ports, source.boxes)) {
        draw_port_body(in, body, upper_port_height(source.design));
    }
    in.zoom_twice();
    finish(session);
}

void assembly(model_session& session) {
    const drawing in(session);
    session.works_on_solids = true;
    draw_outer_rotor(in, rotor_entries(session));
    session.works_on_solids = false;
    draw_inner_rotor(in, session);
    in.zoom();
    finish(session);
}

}  // namespace kvt::autocad
