// The interference check: whether a fillet of the outer rotor's root collides with the inner
// rotor's tip in mesh.
#pragma once

#include "core/design_params.hpp"
#include "core/rotor_profiles.hpp"

#include <optional>

namespace kvt {

/// Penetrations found, mm, cut to 4 decimals.
struct interference {
    double gap_min = 0.0;  ///< the smallest; can be 0
    double gap_max = 0.0;  ///< the largest, above 0
};

/// Compares the 101 points of the first fillet, turned to the meshing position, with the inner
/// rotor's radius at the same angle. Nothing when no penetration reaches 0.0001 mm, or when the
/// fillet leaves the inner points behind it (also when gaps had been found already; for N = 3
/// always). Source: docs/formulas/interference.md. Throws division_by_zero for x = 0,
/// subscript_out_of_range when the first fillet point lies before the first inner point.
std::optional<interference> find_interference(const design_params& design,
                                              const rotor_profiles& rotors);

}  // namespace kvt
