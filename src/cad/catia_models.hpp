// The models of CATIA V5, in millimetres. Every run is a new part.
// Source: docs/formulas/solid_models.md, "CATIA V5".
#pragma once

#include "cad/model_session.hpp"

namespace kvt::catia {

/// The trochoid as a closed spline; no solid.
void trochoid(model_session& session);
/// The spline of the inner rotor's profile, of the rotor's thickness.
void inner_rotor(model_session& session);
/// A ring: the rim and the path as two contours of one sketch.
void outer_rotor(model_session& session);
/// The bodies of port_bodies, each a body of its own.
void porting(model_session& session);
/// Outer and inner rotor at their running place, as two bodies of one part.
void assembly(model_session& session);

}  // namespace kvt::catia
