// The texts of perf_res, the form of the headline results.
#pragma once

#include "core/entries.hpp"
#include "core/length_unit.hpp"
#include "performance/perf_results.hpp"

#include <cstdint>

namespace kvt {

/// max_speed and Label5: the lower of the two speed limits, cut to whole rpm, and what sets it.
/// Both keep their texts when the limits are equal.
void set_speed_labels(const perf_results& results, std::int16_t language, labels& texts);

/// max_shaft_side_load, side_load_direction and max_cutter_inner of the highest speed and pressure;
/// the load in lbsf in the imperial system. Kept: the direction is half the angle in degrees;
/// perf_res_labels_test holds it.
void set_load_labels(const perf_results& results, const length_unit& unit, labels& texts);

/// Label1: the pressure ripple in percent.
void set_ripple_label(const perf_results& results, std::int16_t language, labels& texts);

}  // namespace kvt
