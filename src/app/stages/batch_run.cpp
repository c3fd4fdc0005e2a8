#include "app/stages/batch_run.hpp"

#include "app/desk/unit_commands.hpp"
#include "app/files/project_commands.hpp"
#include "app/program.hpp"
#include "app/stages/calculate_performance.hpp"
#include "app/stages/calculate_profiles.hpp"
#include "app/stages/design_assist.hpp"
#include "app/stages/design_ports.hpp"
#include "app/stages/porting_type.hpp"
#include "base/number_text.hpp"
#include "core/failure_text.hpp"
#include "core/text_table.hpp"
#include "core/user.hpp"

namespace kvt {

namespace {

batch_end end_of(run_end end) {
    switch (end) {
        case run_end::ok:
            return batch_end::ok;
        case run_end::validation:
            return batch_end::validation;
        case run_end::failure:
            return batch_end::failure;
        case run_end::closing:
            return batch_end::closing;
        case run_end::error:
            break;
    }
    return batch_end::error;
}

batch_end end_of(assist_end end) {
    switch (end) {
        case assist_end::found:
            return batch_end::ok;
        case assist_end::refused:
            return batch_end::validation;
        case assist_end::does_not_fit:
            break;
    }
    return batch_end::failure;
}

void type_entries(program& kavetta, user& person, const design_source& source) {
    select_capacity_unit(kavetta, source.capacity_unit);
    for (const typed_entry& typed : source.typed) {
        type_entry(kavetta, person, typed);
    }
}

/// No step was refused on the way, also none that was made good later.
bool is_whole(const ports_designed& done, const program& kavetta) {
    return done.inlet && !done.inlet_rebuilt && done.outlet &&
           (done.groove || !has_metering_groove(kavetta));
}

/// Runs the stages and notes in the result how far they came, so that a run-time failure leaves it
/// true.
void run_stages(program& kavetta, user& person, calc_stage last, batch_result& result) {
    result.profiles_reached = true;
    result.end = end_of(calculate_profiles(kavetta, person));
    result.profiles_reached = result.end != batch_end::validation;
    if (result.end != batch_end::ok || last == calc_stage::profiles) {
        return;
    }
    result.ports_reached = true;
    result.ports_refused = !is_whole(design_ports(kavetta, person), kavetta);
    if (last == calc_stage::ports) {
        return;
    }
    result.performance_reached = true;
    result.performance_reached = calculate_performance(kavetta, person);
    result.performance_refused = !result.performance_reached;
}

}  // namespace

std::string_view batch_end_name(batch_end end) {
    switch (end) {
        case batch_end::ok:
            return "ok";
        case batch_end::validation:
            return "validation";
        case batch_end::failure:
            return "failure";
        case batch_end::closing:
            return "closing";
        case batch_end::error:
            return "error";
        case batch_end::fatal:
            return "fatal";
        case batch_end::read_error:
            break;
    }
    return "read_error";
}

std::string run_time_error_line(const run_time_error& error, std::int16_t language) {
    // What the system said stands on the desk only.
    const bool is_ours = error.fault().why != file_fault::reason::system;
    const std::string told =
        is_ours ? failure_text(error, language) : std::string(failure_text(error.kind(), language));
    return std::string(message_text(message::run_time_failure, language)) +
           number_text(error.number()) + ": " + told;
}

std::optional<batch_end> open_design(program& kavetta, user& person, const design_source& source) {
    kavetta.hints.clear();
    kavetta.app_state.language = source.language;
    set_captions(kavetta);
    try {
        load_project(kavetta, person, source.project);
    } catch (const run_time_error& error) {
        person.show_status(source.project + ": " + run_time_error_line(error, source.language));
        return batch_end::read_error;
    }
    try {
        type_entries(kavetta, person, source);
    } catch (const run_time_error& error) {
        person.show_message(run_time_error_line(error, source.language));
        return batch_end::fatal;
    }
    return std::nullopt;
}

batch_end find_design(program& kavetta, user& person, const design_source& source) {
    if (const std::optional<batch_end> early = open_design(kavetta, person, source)) {
        return *early;
    }
    try {
        return end_of(design_assist(kavetta, person));
    } catch (const run_time_error& error) {
        person.show_message(run_time_error_line(error, source.language));
        return batch_end::fatal;
    }
}

batch_result calculate_design(program& kavetta, user& person, const design_source& source,
                              calc_stage last) {
    if (const std::optional<batch_end> early = open_design(kavetta, person, source)) {
        batch_result result;
        result.end = *early;
        return result;
    }
    return calculate_open_design(kavetta, person, last);
}

batch_result type_and_calculate(program& kavetta, user& person,
                                const std::vector<typed_entry>& typed, calc_stage last) {
    try {
        for (const typed_entry& entry : typed) {
            type_entry(kavetta, person, entry);
        }
    } catch (const run_time_error& error) {
        person.show_message(run_time_error_line(error, kavetta.app_state.language));
        batch_result result;
        result.end = batch_end::fatal;
        return result;
    }
    return calculate_open_design(kavetta, person, last);
}

batch_result calculate_open_design(program& kavetta, user& person, calc_stage last) {
    batch_result result;
    try {
        run_stages(kavetta, person, last, result);
    } catch (const run_time_error& error) {
        person.show_message(run_time_error_line(error, kavetta.app_state.language));
        result.end = batch_end::fatal;
    }
    return result;
}

}  // namespace kvt
