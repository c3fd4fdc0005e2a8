#include "exact/exact_results.hpp"

#include <cmath>

namespace kvt {

namespace {

bool has_stage_of(exact_part part, const exact_source& source) {
    switch (part) {
        case exact_part::rotors:
        case exact_part::curves:
        case exact_part::gap:
            return source.has_rotors;
        case exact_part::timing:
            return source.has_ports;
        case exact_part::performance:
            break;
    }
    return source.has_performance;
}

void fill(exact_part part, const exact_source& source, exact_results& exact) {
    switch (part) {
        case exact_part::rotors:
            exact.rotors = exact_rotors_of(source.design);
            return;
        case exact_part::curves:
            exact.volume = volume_over_life(source.design);
            exact.flow = flow_over_period(source.design);
            return;
        case exact_part::performance:
            exact.performance = exact_performance_of(source.design, source.inputs, source.results);
            return;
        case exact_part::gap:
            exact.gap = gaps_round_turn(source.design);
            return;
        case exact_part::timing:
            exact.timing = time_ports(source.design, source.ports, source.which);
    }
}

/// One figure of a part that is no number when the geometry makes none.
double witness(exact_part part, const exact_results& exact) {
    switch (part) {
        case exact_part::rotors:
            return exact.rotors.swept_cc + exact.rotors.chamber.largest +
                   exact.rotors.flow.irregularity;
        case exact_part::performance:
            return exact.performance.contact.back().pressure;
        case exact_part::curves:
            return exact.volume.values.front() + exact.flow.values.front();
        case exact_part::gap:
            return exact.gap.least;
        case exact_part::timing:
            break;
    }
    return exact.timing.trapped_change + exact.timing.inlet_speed.speed +
           exact.timing.outlet_speed.speed;
}

}  // namespace

void work_out(exact_part part, const exact_source& source, exact_results& exact) {
    const auto index = static_cast<std::size_t>(part);
    exact.failures[index].reset();
    if (!has_stage_of(part, source)) {
        exact.states[index] = part_state::not_calculated;
        return;
    }
    try {
        fill(part, source, exact);
        if (!std::isfinite(witness(part, exact))) {
            throw run_time_error(failure::overflow, "an exact figure is no number");
        }
        exact.states[index] = part_state::there;
    } catch (const run_time_error& error) {
        // A figure that is no number is not left for those who lay out the others.
        take_part(part, exact_results(), exact);
        exact.failures[index] = error;
        exact.states[index] = part_state::failed;
    }
}

void take_part(exact_part part, const exact_results& from, exact_results& exact) {
    const auto index = static_cast<std::size_t>(part);
    exact.states[index] = from.states[index];
    exact.failures[index] = from.failures[index];
    switch (part) {
        case exact_part::rotors:
            exact.rotors = from.rotors;
            return;
        case exact_part::curves:
            exact.volume = from.volume;
            exact.flow = from.flow;
            return;
        case exact_part::performance:
            exact.performance = from.performance;
            return;
        case exact_part::gap:
            exact.gap = from.gap;
            return;
        case exact_part::timing:
            exact.timing = from.timing;
    }
}

}  // namespace kvt
