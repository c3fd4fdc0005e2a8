#include "app/stages/performance_hint.hpp"

#include "app/program.hpp"
#include "base/run_time_error.hpp"
#include "performance/perf_entries.hpp"
#include "performance/performance_obstacle.hpp"

#include <string>
#include <utility>

namespace kvt {

namespace {

/// Throws run_time_error for a text that is too large to be a number.
performance_question question_of(const program& kavetta) {
    entries boxes = kavetta.entries;
    clean_up_perf_entries(boxes);
    performance_question question;
    question.is_refused = first_refused_perf_entry(boxes).has_value();
    if (!question.is_refused) {
        const length_unit& unit = length_unit_of(kavetta.app_state);
        question.thickness_mm = thickness_entry_mm(boxes, unit);
        question.inputs = read_perf_inputs(boxes, unit.system);
    }
    return question;
}

std::optional<message> answer_to(const performance_question& question, const program& kavetta) {
    if (question.is_refused) {
        return port_obstacle(kavetta.design_params, kavetta.port_params);
    }
    design_params design = kavetta.design_params;
    design.thick = question.thickness_mm;
    return performance_obstacle(design, kavetta.rotor_profiles, kavetta.port_params,
                                question.inputs);
}

}  // namespace

std::optional<message> performance_hint(const program& kavetta) {
    return performance_hint_memory().hint_for(kavetta);
}

void add_performance_hint(const program& kavetta, std::vector<hint>& hints) {
    performance_hint_memory none;
    add_performance_hint(kavetta, none, hints);
}

void add_performance_hint(const program& kavetta, performance_hint_memory& known,
                          std::vector<hint>& hints) {
    if (const auto obstacle = known.hint_for(kavetta)) {
        add_hint(hints, std::string(message_text(*obstacle, kavetta.app_state.language)));
    }
}

std::optional<message> performance_hint_memory::hint_for(const program& kavetta) {
    try {
        performance_question asked = question_of(kavetta);
        if (question_ != asked) {
            hint_ = answer_to(asked, kavetta);
            question_ = std::move(asked);
        }
        return hint_;
    } catch (const run_time_error&) {
        return message::hint_performance_out_of_range;
    }
}

}  // namespace kvt
