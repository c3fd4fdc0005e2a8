// exact_figures: what geometry and textbooks say about a design, beside the product's own figures.
// Sources: the pages docs/formulas/exact_*.md.
#pragma once

#include "core/design_params.hpp"
#include "exact/exact_flow.hpp"
#include "exact/ideal_flow.hpp"
#include "exact/rotor_gap.hpp"
#include "exact/swept_volume.hpp"
#include "exact/textbook_contact.hpp"
#include "performance/perf_inputs.hpp"
#include "performance/perf_results.hpp"

#include <array>
#include <optional>

namespace kvt {

/// Of a calculated pair.
struct exact_rotors {
    double swept_cc = 0.0;  ///< cm3 a revolution
    chamber_extremes chamber;
    flow_figures flow;
    double cutter = 0.0;  ///< diameter of the largest for the inner rotor, mm
};
exact_rotors exact_rotors_of(const design_params& design);

/// Of a calculated performance.
struct exact_performance {
    exact_flow flow;
    /// Largest contact pressure at each pressure of the grid, torque V p / (2 pi).
    std::array<contact_maximum, GRID_SIZE> contact = {};
    double max_speed_rpm = 0.0;  ///< without cavitation
};
exact_performance exact_performance_of(const design_params& design, const perf_inputs& inputs,
                                       const perf_results& results);

}  // namespace kvt
