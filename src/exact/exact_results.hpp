// exact_results: all exact figures of a design, part by part as they are worked out, on copies of
// the records, so that another thread can. Sources: the pages docs/formulas/exact_*.md.
#pragma once

#include "base/run_time_error.hpp"
#include "exact/exact_curves.hpp"
#include "exact/exact_figures.hpp"
#include "exact/port_timing.hpp"
#include "exact/rotor_gap.hpp"
#include "ports/port_params.hpp"

#include <array>
#include <cstddef>
#include <optional>

namespace kvt {

/// What the figures are worked out from, and the product's own beside them.
struct exact_source {
    bool has_rotors = false, has_ports = false, has_performance = false;
    design_params design;
    double capacity_cc = 0.0;                                   ///< cm3 a revolution
    double max_chamber_volume = 0.0, min_chamber_volume = 0.0;  ///< mm3
    port_params ports;
    timed_ports which;
    perf_inputs inputs;
    perf_results results;
};

/// In the order in which they are worked out: the quick ones first.
enum class exact_part { rotors, performance, curves, gap, timing };
inline constexpr std::array EXACT_PARTS = {exact_part::rotors, exact_part::performance,
                                           exact_part::curves, exact_part::gap, exact_part::timing};

enum class part_state {
    waiting,  ///< not worked out yet
    there,
    not_calculated,  ///< the stage that it needs has no results
    failed           ///< the geometry has no such figures
};

struct exact_results {
    std::array<part_state, EXACT_PARTS.size()> states = {};
    std::array<std::optional<run_time_error>, EXACT_PARTS.size()> failures = {};
    exact_rotors rotors;
    even_curve volume, flow;  ///< the curves
    exact_performance performance;
    gap_round_turn gap;
    port_timing timing;

    part_state state_of(exact_part part) const { return states[static_cast<std::size_t>(part)]; }
    bool has(exact_part part) const { return state_of(part) == part_state::there; }
    const std::optional<run_time_error>& failure_of(exact_part part) const {
        return failures[static_cast<std::size_t>(part)];
    }
};

/// Works out one part; afterwards it waits no more. A run-time failure is its `failed`, and so are
/// figures that are no numbers.
void work_out(exact_part part, const exact_source& source, exact_results& exact);

/// Takes over one part that was worked out elsewhere.
void take_part(exact_part part, const exact_results& from, exact_results& exact);

}  // namespace kvt
