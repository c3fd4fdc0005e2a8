// The outer rotor in AutoCAD: a disc out of which one tool a lobe is cut.
// Source: docs/formulas/solid_models.md, "AutoCAD's outer rotor".
#pragma once

#include "cad/autocad_drawing.hpp"
#include "core/design_params.hpp"

namespace kvt::autocad {

/// The fillet radius of the solid, mm: `fillet`, or 0.001 mm less where less than 0.0001 mm of root
/// would be left between two lobes,
///     Rr (pi/N - alpha) < 0.0001
/// because joining and cutting fails there without an error. Fillets up to 0.001 mm stay as they
/// are. Throws as fillet_angle does.
double model_fillet(const design_params& design);

/// Draws the outer rotor about (-ecc, 0), from z = 0 to `thick`, lobe 0 on the x axis. design is
/// what rotor_model_entries reads. Throws run_time_error for a lobe that does not reach the root.
void draw_outer_rotor(const drawing& in, const design_params& design);

}  // namespace kvt::autocad
