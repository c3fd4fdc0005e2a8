// The root radius of the outer rotor: when a typed one is kept, its limits, and the fit into the
// maximum diameter.
#pragma once

#include "core/design_params.hpp"
#include "core/entries.hpp"
#include "core/length_unit.hpp"
#include "core/rotor_profiles.hpp"
#include "core/teller.hpp"

#include <cstdint>

namespace kvt {

/// Keeps the typed root radius when ecc and radinnroot are those of the stored design, else drops
/// it (0, text "0"). Kept: the texts are compared with the stored millimetres as they stand, so in
/// inches a run almost never matches and the root radius is found anew; where it matches (after
/// Open) the inches are taken as millimetres. outer_root_test holds it.
void keep_or_drop_outer_root(entries& boxes, design_params& design);

/// The limits of the root radius, mm.
struct outer_root_limits {
    double minimum = 0.0;  ///< ecc + base_radius + roll_radius + ecc - radouter
    double maximum = 0.0;  ///< the larger of minimum and trochoid_r
};

outer_root_limits limits_of_outer_root(const design_params& design, const rotor_profiles& rotors);

/// Brings outer_root between its limits, tells each correction and writes it back in the unit of
/// the entries. The written text has 15 digits, so it can lie below the stored minimum, and the
/// next run then tells the minimum again. Source: docs/formulas/outer_rotor.md, "Root radius".
void apply_outer_root_rules(const rotor_profiles& rotors, const length_unit& unit,
                            std::int16_t language, design_params& design, entries& boxes,
                            teller& person);

/// maxdiameter/2 < outer_root + minmaterial.
bool exceeds_maximum_diameter(const design_params& design);

}  // namespace kvt
