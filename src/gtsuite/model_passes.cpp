#include "gtsuite/model_passes.hpp"

#include <array>

namespace kvt {

namespace {

constexpr std::array<model_pass, 14> PASSES = {
    find_free_ids,       switch_on_analysis,       add_templates,        add_gap_objects,
    set_tip_gap,         add_volume_connections,   scale_chamber_volume, set_drag_torque,
    scale_pressure_area, set_friction_inputs,      add_gap_parts,        add_gap_links,
    add_plot_groups,     add_parameters_and_cases,
};

}  // namespace

std::span<const model_pass> model_passes() {
    return PASSES;
}

std::vector<pass_count> run_model_passes(model_text& text, const pump_values& pump) {
    pass_work work{pump, text.encoding};
    std::vector<pass_count> counts;
    counts.reserve(PASSES.size());
    for (const model_pass pass : PASSES) {
        counts.push_back(pass(text.lines, work));
    }
    return counts;
}

}  // namespace kvt
