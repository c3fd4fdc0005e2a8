#include "app/stages/performance_hint.hpp"

#include "app/program.hpp"
#include "base/run_time_error.hpp"
#include "performance/perf_entries.hpp"
#include "performance/performance_obstacle.hpp"

#include <string>

namespace kvt {

namespace {

std::optional<message> obstacle_of(const program& kavetta) {
    entries boxes = kavetta.entries;
    clean_up_perf_entries(boxes);
    if (first_refused_perf_entry(boxes)) {
        return port_obstacle(kavetta.design_params, kavetta.port_params);
    }
    const length_unit& unit = length_unit_of(kavetta.app_state);
    design_params design = kavetta.design_params;
    design.thick = thickness_entry_mm(boxes, unit);
    return performance_obstacle(design, kavetta.rotor_profiles, kavetta.port_params,
                                read_perf_inputs(boxes, unit.system));
}

}  // namespace

std::optional<message> performance_hint(const program& kavetta) {
    try {
        return obstacle_of(kavetta);
    } catch (const run_time_error&) {  // a text that is too large to be a number
        return message::hint_performance_out_of_range;
    }
}

void add_performance_hint(const program& kavetta, std::vector<hint>& hints) {
    if (const auto obstacle = performance_hint(kavetta)) {
        add_hint(hints, std::string(message_text(*obstacle, kavetta.app_state.language)));
    }
}

}  // namespace kvt
