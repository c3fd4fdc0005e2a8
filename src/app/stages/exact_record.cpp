#include "app/stages/exact_record.hpp"

#include "app/program.hpp"
#include "app/stages/batch_run.hpp"
#include "views/port_lines.hpp"
#include "views/zoom.hpp"

#include <array>

namespace kvt {

namespace {

/// The notes of the whole results that stand in the records and are on display.
stage_entries present_results(const program& kavetta) {
    const stage_entries& notes = kavetta.stage_entries;
    stage_entries present;
    if (!notes.rotors || !has_rotors(kavetta.design_view)) {
        return present;
    }
    present.rotors = notes.rotors;
    if (shows_outline(kavetta.design_view.inlet_portline)) {
        present.inlet = notes.inlet;
    }
    if (shows_outline(kavetta.design_view.outlet_portline)) {
        present.outlet = notes.outlet;
        present.groove = notes.groove;
    }
    if (kavetta.enabling.create_charts) {
        present.perf_results = notes.perf_results;
    }
    return present;
}

/// Of the outlines that were finished; both sides as they were ticked then.
timed_ports ports_of(const stage_entries& made, const port_params& ports) {
    return {made.inlet && ports.inlet.last > 0, made.outlet && ports.outlet.last > 0,
            made.groove && ports.has_groove,
            made.inlet && is_ticked(made.inlet->boxes.inlet_double_sided),
            made.outlet && is_ticked(made.outlet->boxes.outlet_double_sided)};
}

exact_source source_of(const program& kavetta, const stage_entries& made) {
    const rotor_profiles& rotors = kavetta.rotor_profiles;
    exact_source source;
    source.has_rotors = made.rotors.has_value();
    source.design = kavetta.design_params;
    source.capacity_cc = rotors.capacity_cc;
    source.max_chamber_volume = rotors.max_chamber_volume;
    source.min_chamber_volume = rotors.min_chamber_volume;
    source.ports = kavetta.port_params;
    source.which = ports_of(made, kavetta.port_params);
    source.has_ports = source.which.has_inlet || source.which.has_outlet;
    source.has_performance = made.perf_results.has_value();
    source.inputs = kavetta.perf_inputs;
    source.results = kavetta.perf_results;
    return source;
}

}  // namespace

exact_source exact_source_of(const program& kavetta) {
    return source_of(kavetta, present_results(kavetta));
}

exact_source exact_source_of(const program& kavetta, const batch_result& run) {
    exact_source source = exact_source_of(kavetta);
    source.has_ports = source.has_ports && run.ports_reached;
    source.has_performance = source.has_performance && run.performance_reached;
    return source;
}

bool update_exact_record(program& kavetta) {
    exact_record& record = kavetta.exact_record;
    stage_entries present = present_results(kavetta);
    if (record.revision > 0 && present == record.made_from) {
        return false;
    }
    record.source = std::make_shared<const exact_source>(source_of(kavetta, present));
    record.made_from = std::move(present);
    record.results = {};
    ++record.revision;
    work_out(exact_part::rotors, *record.source, record.results);
    work_out(exact_part::performance, *record.source, record.results);
    return true;
}

exact_manner present_manner(const program& kavetta) {
    const app_state& state = kavetta.app_state;
    return {state.language, length_unit_of(state), state.capacity_unit, kavetta.decimal_mark};
}

std::vector<exact_row> present_exact_rows(const program& kavetta) {
    return exact_rows(*kavetta.exact_record.source, kavetta.exact_record.results,
                      present_manner(kavetta));
}

}  // namespace kvt
