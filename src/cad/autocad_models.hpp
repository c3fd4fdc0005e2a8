// The models of AutoCAD, drawn into the open drawing in the unit of the design.
// Source: docs/formulas/solid_models.md, "AutoCAD".
#pragma once

#include "cad/model_session.hpp"

namespace kvt::autocad {

/// The trochoid as an open polyline whose last point is the first again.
void trochoid(model_session& session);
/// The outline of the Design view as a solid of the rotor's thickness.
void inner_rotor(model_session& session);
/// A disc out of which one tool a lobe is cut: true arcs.
void outer_rotor(model_session& session);
/// The bodies of port_bodies.
void porting(model_session& session);
/// Outer and inner rotor at their running place.
void assembly(model_session& session);

}  // namespace kvt::autocad
