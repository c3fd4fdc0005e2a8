#include "app/stages/performance_labels.hpp"

#include "core/length_unit.hpp"
#include "performance/maximum_speed.hpp"

namespace kvt {

namespace {

message limit_text(speed_limit limit) {
    return limit == speed_limit::tip_velocity ? message::speed_limited_by_tip
                                              : message::speed_limited_by_port;
}

std::string text_of(const used_result& result, const perf_results& results,
                    const app_state& state) {
    const result_use& use = *result.use;
    const std::string lead_in(use.lead_in ? message_text(*use.lead_in, state.language) : "");
    return lead_in + shown_text(value_of(*result.quantity, results), use, length_unit_of(state));
}

}  // namespace

void set_performance_labels(const perf_results& results, perf_step after, const app_state& state,
                            labels& texts) {
    if (after == perf_step::speed_limits) {
        const std::optional<speed_limit> limit = limit_of_speed(results);
        if (!limit) {
            return;
        }
        texts.Label5 = message_text(limit_text(*limit), state.language);
    }
    for (const used_result& result : results_at(result_place::perf_res)) {
        if (result.use->after == after) {
            const label_field* label = find_named(label_fields(), result.use->name);
            texts.*label->member = text_of(result, results, state);
        }
    }
}

}  // namespace kvt
