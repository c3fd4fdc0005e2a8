#include "app/stages/calculate_performance.hpp"

#include "app/desk/enabling_chain.hpp"
#include "app/program.hpp"
#include "app/stages/performance_hint.hpp"
#include "app/stages/performance_labels.hpp"
#include "app/stages/stale_results.hpp"
#include "app/windows/close_forms.hpp"
#include "base/run_time_error.hpp"
#include "core/text_table.hpp"
#include "core/user.hpp"
#include "performance/delivered_flow.hpp"
#include "performance/drive_power.hpp"
#include "performance/hertz_contact.hpp"
#include "performance/lobe_load_share.hpp"
#include "performance/maximum_speed.hpp"
#include "performance/perf_entries.hpp"
#include "performance/perf_grid.hpp"
#include "performance/performance_obstacle.hpp"
#include "performance/pressure_ripple.hpp"
#include "performance/sliding_velocity.hpp"

namespace kvt {

namespace {

/// Tells the first entry that is refused and empties it.
bool has_refused_entry(program& kavetta, user& person) {
    const auto refused = first_refused_perf_entry(kavetta.entries);
    if (!refused) {
        return false;
    }
    person.show_message(message_text(refused->text, kavetta.app_state.language));
    (kavetta.entries.*refused->emptied).clear();
    return true;
}

void read_inputs(program& kavetta) {
    const length_unit& unit = length_unit_of(kavetta.app_state);
    kavetta.perf_inputs = read_perf_inputs(kavetta.entries, unit.system);
    kavetta.design_params.thick = thickness_entry_mm(kavetta.entries, unit);
}

/// The order is binding: each routine reads what the ones before it wrote.
void run_routines(program& kavetta) {
    const design_params& design = kavetta.design_params;
    const rotor_profiles& rotors = kavetta.rotor_profiles;
    const port_params& ports = kavetta.port_params;
    const perf_inputs& inputs = kavetta.perf_inputs;
    perf_results& results = kavetta.perf_results;

    calc_sliding_velocity(design, rotors, results);
    calc_drive_power(design, rotors, ports, inputs, results);
    calc_lobe_load_share(design, rotors, results);
    calc_hertz_and_side_load(design, inputs, results);
    set_performance_labels(results, perf_step::contact, kavetta.app_state, kavetta.labels);
    calc_flow(design, rotors, ports, inputs, results);
    calc_mech_efficiency(rotors, results);
    calc_overall_efficiency(results);
    calc_pressure_ripple(design, rotors, ports, inputs, results);
    set_performance_labels(results, perf_step::ripple, kavetta.app_state, kavetta.labels);
}

/// A run to its end whose results say nothing: no flow, or ports that leave none.
bool means_nothing(const program& kavetta) {
    return kavetta.perf_results.flow_max == 0.0 ||
           port_obstacle(kavetta.design_params, kavetta.port_params);
}

}  // namespace

void run_performance(program& kavetta, user& person) {
    const perf_inputs& inputs = kavetta.perf_inputs;
    perf_results& results = kavetta.perf_results;
    set_shared_values(kavetta.design_params, kavetta.rotor_profiles, inputs, results);
    calc_maximum_speed(kavetta.rotor_profiles, kavetta.port_params, inputs, results);
    set_performance_labels(results, perf_step::speed_limits, kavetta.app_state, kavetta.labels);
    set_grid(inputs, results);
    open_form(kavetta, "perf_res", person);
    run_routines(kavetta);
}

bool calculate_performance(program& kavetta, user& person) {
    close_forms(kavetta, form_closer::performance, person);
    clean_up_perf_entries(kavetta.entries);
    if (has_refused_entry(kavetta, person)) {
        return false;
    }
    kavetta.stage_entries.perf_results.reset();
    try {
        read_inputs(kavetta);
        run_performance(kavetta, person);
    } catch (const run_time_error&) {
        add_performance_hint(kavetta, kavetta.hints);
        throw;
    }
    if (means_nothing(kavetta)) {
        add_performance_hint(kavetta, kavetta.hints);
    }
    apply_chain(kavetta.enabling, chain_event::performance_calculated);
    note_stage(kavetta, stage::performance);
    note_result(kavetta, &stage_entries::perf_results);
    kavetta.performance_valid = true;
    return true;
}

}  // namespace kvt
