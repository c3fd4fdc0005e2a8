#include "app/trial/tried_design.hpp"

#include "app/program.hpp"
#include "app/stages/entry_handlers.hpp"
#include "app/stages/silent_user.hpp"
#include "base/run_time_error.hpp"
#include "geometry/entry_checks.hpp"
#include "views/port_lines.hpp"
#include "views/zoom.hpp"

#include <utility>

namespace kvt {

namespace {

/// What is told where entries would be replaced, or can't be read.
std::vector<std::string> told_of_entries(program& copy, const std::string& entry_in_use) {
    silent_user person;
    const std::int16_t language = copy.app_state.language;
    try {
        leave_entry(copy, person, entry_in_use);
        clean_up_entries(copy.entries, copy.design_params, person, language);
    } catch (const run_time_error& error) {
        person.show_message(run_time_error_line(error, language));
    }
    return person.messages();
}

/// A run-time failure of the ports ends the run before the performance.
bool refuses_ports(const batch_result& result) {
    return result.ports_refused ||
           (result.end == batch_end::fatal && result.ports_reached && !result.performance_reached);
}

/// Rotors alone.
void forget_ports(program& copy) {
    clear_port_lines(copy.design_view);
    copy.enabling.create_charts = false;
}

}  // namespace

tried_stages stages_on_display(const program& kavetta, std::string entry_in_use) {
    return {last_calculated_stage(kavetta), has_rotors(kavetta.design_view),
            std::move(entry_in_use)};
}

tried_design tried_design_of(design_trial trial) {
    tried_design tried;
    tried.messages = std::move(trial.messages);
    if (trial.result.end != batch_end::ok && !trial.result.ports_reached) {
        return tried;
    }
    tried.ports_refused = refuses_ports(trial.result);
    if (tried.ports_refused) {
        forget_ports(trial.tried);
    }
    tried.design = std::make_shared<const kept_design>(kept_design_of(std::move(trial.tried)));
    return tried;
}

tried_design try_typed_entries(program copy, const tried_stages& stages) {
    tried_design tried;
    tried.messages = told_of_entries(copy, stages.entry_in_use);
    const bool is_typed_out = tried.messages.empty();
    if (!stages.has_rotors && (!is_typed_out || first_refused_entry(copy.entries))) {
        return {};
    }
    if (!is_typed_out) {
        return tried;
    }
    return tried_design_of(try_design(copy, std::nullopt, stages.last));
}

}  // namespace kvt
