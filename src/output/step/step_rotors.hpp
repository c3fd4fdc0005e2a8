// The STEP bodies of both rotors.
// Source: docs/file-formats.md, "STEP files (`.stp`)".
#pragma once

#include "base/text_file.hpp"
#include "core/design_params.hpp"
#include "core/rotor_profiles.hpp"
#include "geometry/point2.hpp"

#include <vector>

namespace kvt {

/// The points 0 .. P-1 of the inner rotor profile. Throws subscript_out_of_range for a profile that
/// was never computed.
std::vector<point2> inner_rotor_contour(const rotor_profiles& rotors);

/// The distinct points of the outer rotor profile, about the inner rotor axis: a last point that
/// repeats the first one is left out (the profile has one with fillets, none without). Throws
/// subscript_out_of_range like the other.
std::vector<point2> outer_rotor_contour(const rotor_profiles& rotors);

/// The inner rotor from z = 0 to thick, without its bore. Entity numbers are raised by `offset`.
void write_step_inner_body(text_lines& out, const design_params& design,
                           const rotor_profiles& rotors, int offset);

/// The outer rotor from z = 0 to thick: a cylinder of maxdiameter about (-ecc, 0) with the toothed
/// bore, so that it meshes with the inner rotor about (0, 0). Entity numbers are raised by
/// `offset`.
void write_step_outer_body(text_lines& out, const design_params& design,
                           const rotor_profiles& rotors, int offset);

}  // namespace kvt
