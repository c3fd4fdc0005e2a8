// The area ratio: the share of the outer rotor's opening that the inner rotor leaves free.
#pragma once

#include "core/entries.hpp"
#include "core/rotor_profiles.hpp"

namespace kvt {

/// Polar areas about the inner axis, mm2. The triangle from the last inner point back to the first
/// is not included; without fillets neither is the small closing triangle of the outer profile.
double inner_profile_area(rotor_profiles& rotors);
double outer_profile_area(rotor_profiles& rotors);

/// Sets the label area_ratio:
///     Int((A_o - A_i) * 100 * 100 / A_o) / 100, followed by " %"
/// Source: docs/formulas/chambers.md, "Area ratio".
void calculate_area_ratio(rotor_profiles& rotors, labels& outputs);

}  // namespace kvt
