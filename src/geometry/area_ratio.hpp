// The area ratio: the share of the outer rotor's opening that the inner rotor leaves free.
#pragma once

#include "core/rotor_profiles.hpp"

namespace kvt {

/// Polar areas about the inner axis, mm2. The triangle from the last inner point back to the first
/// is not included; without fillets neither is the small closing triangle of the outer profile.
double inner_profile_area(const rotor_profiles& rotors);
double outer_profile_area(const rotor_profiles& rotors);

/// Sets inner_area A_i, outer_area A_o and area_ratio = (A_o - A_i) * 100 / A_o, percent.
/// Source: docs/formulas/chambers.md, "Area ratio". Throws division_by_zero when A_o is 0; the
/// older values stay then.
void calculate_area_ratio(rotor_profiles& rotors);

}  // namespace kvt
