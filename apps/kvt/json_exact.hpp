// json_exact: the exact figures of a run as JSON, beside the product's own.
#pragma once

#include "kvt/json_fields.hpp"

namespace kvt {

struct batch_result;
struct program;

/// The object "exact": "rotors" once the profiles are calculated (swept volume in cm3, chambers in
/// mm3, flow over its mean), "gap" (mm), "timing" once ports are designed (areas mm2, angles in
/// degrees of the inner rotor since a chamber's least volume, speeds m/s at the ends of the speed
/// range), "performance" once that ran (MPa, m3/s, ratios). "left_out" tells of every other part
/// why it is missing; "note" in "timing" why the product delivers nothing through an outlet that
/// ends at 180 degrees.
json json_exact(const program& kavetta, const batch_result& result);

}  // namespace kvt
