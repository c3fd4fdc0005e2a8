// The grid of 6 speeds by 6 pressures, and the values that every routine shares. Source:
// docs/formulas/flow.md, "Grid".
#pragma once

#include "core/design_params.hpp"
#include "core/rotor_profiles.hpp"
#include "performance/perf_inputs.hpp"
#include "performance/perf_results.hpp"

namespace kvt {

/// dyn_visc = kin_visc_cst density / 1000000, Pa s, and
/// tip_radius = base_radius + roll_radius + ecc - clearn_half - radouter, mm.
void set_shared_values(const design_params& design, const rotor_profiles& rotors,
                       const perf_inputs& inputs, perf_results& results);

/// press_pa and speed_rpm, elements 0 .. 5, from the lowest to the highest value of each range in
/// equal steps. Kept: one bar is 101300 Pa and 14.5 psi are one bar; perf_grid_test holds
/// it.
void set_grid(const perf_inputs& inputs, perf_results& results);

/// The extremes of a grid, by strict comparison with start values: a value strictly above largest
/// replaces it, one strictly below smallest replaces that.
inline void take_extremes(double value, double& largest, double& smallest) {
    if (value > largest) {
        largest = value;
    }
    if (value < smallest) {
        smallest = value;
    }
}

}  // namespace kvt
