// The approximate capacity: the annulus between tip and root of the inner rotor.
#pragma once

#include "core/design_params.hpp"
#include "core/rotor_profiles.hpp"

#include <cstdint>

namespace kvt {

/// Volume of the annulus, cm3 per revolution:
///     v = ((b + a + ecc - clearn_half - radouter)^2 - radinnroot^2) PI_D thick / 1000
/// a base_radius, b roll_radius; the first bracket is the tip radius of the inner rotor, all mm.
/// Source: docs/formulas/chambers.md, "Capacity".
double annulus_volume(const design_params& design, const rotor_profiles& rotors);

/// A capacity in cm3 per revolution (litres per minute at 1000 rpm) in the unit 1 .. 5, rounded to
/// 4 decimals. Other codes leave it as it is.
fixed4 capacity_in_unit(fixed4 capacity_cc, std::int16_t capacity_unit);

/// Sets capacity_cc and capacity. Throws overflow for a volume that doesn't fit; a capacity in its
/// unit that doesn't fit leaves the older one.
void calculate_capacity(const design_params& design, std::int16_t capacity_unit,
                        rotor_profiles& rotors);

}  // namespace kvt
