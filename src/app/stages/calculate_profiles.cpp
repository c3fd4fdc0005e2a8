#include "app/stages/calculate_profiles.hpp"

#include "app/desk/enabling_chain.hpp"
#include "app/program.hpp"
#include "app/stages/design_hints.hpp"
#include "app/stages/design_ports.hpp"
#include "app/stages/rotor_labels.hpp"
#include "app/stages/stale_results.hpp"
#include "app/windows/close_forms.hpp"
#include "base/checked_math.hpp"
#include "base/constants.hpp"
#include "base/number_text.hpp"
#include "core/text_table.hpp"
#include "core/user.hpp"
#include "geometry/area_ratio.hpp"
#include "geometry/capacity.hpp"
#include "geometry/chambers.hpp"
#include "geometry/entry_checks.hpp"
#include "geometry/inner_rotor.hpp"
#include "geometry/interference.hpp"
#include "geometry/outer_flank.hpp"
#include "geometry/outer_root.hpp"
#include "geometry/outer_rotor.hpp"
#include "geometry/trochoid.hpp"

#include <string>

namespace kvt {

namespace {

void tell(const program& kavetta, user& person, message text) {
    person.show_message(message_text(text, kavetta.app_state.language));
}

/// Before any check, so a run that a message stops leaves the enablings as they are now. A repeat
/// asked for by the zoom-all button keeps the results.
void reset_results(program& kavetta, user& person) {
    if (kavetta.app_state.zoom_all_requested == -1) {
        return;
    }
    close_forms(kavetta, form_closer::profiles, person);
    kavetta.app_state.profiles_calculated = -1;
    apply_chain(kavetta.enabling, chain_event::profiles_started);
}

void size_trochoid_lists(rotor_profiles& rotors) {
    rotors.profile_points = PROFILE_POINTS;
    rotors.troch_xy.assign(7202, 0.0);
}

bool has_refused_entry(const program& kavetta, user& person) {
    const auto refused = first_refused_entry(kavetta.entries);
    if (!refused) {
        return false;
    }
    tell(kavetta, person, refused->text);
    if (!refused->focus.empty()) {
        person.set_focus(refused->focus);
    }
    return true;
}

void start_view_anew(program& kavetta) {
    kavetta.view_state.marked_chamber.reset();
    kavetta.view_state.rotation_angle = 0.0;
    kavetta.entries.rotated_angle =
        number_text(floor_to_int(kavetta.view_state.rotation_angle * 10.0) / 10.0);
    clear_rotors(kavetta.design_view);
}

void size_inner_plot(rotor_profiles& rotors) {
    const std::int32_t last = to_int32(rotors.inner_plot_len);
    rotors.inner_plot_xy.assign(static_cast<std::size_t>(last) + 1, 0.0);
}

/// The view is empty afterwards; zoom_all_requested stays.
run_end failure_exit(program& kavetta, user& person, message text) {
    tell(kavetta, person, text);
    person.set_busy(false);
    clear_rotors(kavetta.design_view);
    return run_end::failure;
}

void closing_steps(program& kavetta, user& person) {
    view_state& view = kavetta.view_state;
    view.view_cx = view.view_size / 2.0;
    view.view_cy = view.view_size / 2.0;
    view.drawn_size = view.view_size;
    view.view_zoom = 1.0;
    design_ports_again(kavetta, person);
    kavetta.app_state.zoom_all_requested = 0;
    person.set_busy(false);
}

run_end closing_exit(program& kavetta, user& person, message text) {
    tell(kavetta, person, text);
    closing_steps(kavetta, person);
    return run_end::closing;
}

void check_interference(const program& kavetta, user& person) {
    const auto found = find_interference(kavetta.design_params, kavetta.rotor_profiles);
    if (found) {
        const std::int16_t language = kavetta.app_state.language;
        person.show_message(std::string(message_text(message::interference_between, language)) +
                            number_text(found->gap_min) +
                            std::string(message_text(message::interference_and, language)) +
                            number_text(found->gap_max) +
                            std::string(message_text(message::interference_end, language)));
    }
}

/// From the fillet check to the interference check; every run-time failure in here has the caller's
/// handler.
run_end outer_rotor_steps(program& kavetta, user& person) {
    const design_params& design = kavetta.design_params;
    rotor_profiles& rotors = kavetta.rotor_profiles;
    if (fillets_too_large(design, fillet_angle(design, rotors))) {
        return failure_exit(kavetta, person, message::fillet_too_large);
    }
    draw_outer_rotor(design, rotors, kavetta.view_state, kavetta.design_view);
    fill_outer_rotor(design, rotors);
    calculate_area_ratio(rotors);
    set_area_ratio_label(rotors, kavetta.labels);
    calculate_maximum_chamber(design, rotors);
    set_max_chamber_label(rotors, kavetta.labels);
    calculate_minimum_chamber(design, rotors);
    set_min_chamber_label(rotors, kavetta.labels);
    if (design.fillet > 0.0) {
        check_interference(kavetta, person);
    }
    return run_end::ok;
}

/// The Error exit after a failure from the fillet check on: its message, then the closing steps.
/// These design the ports again, and when that fails too, its message ends the run.
run_end error_exit(program& kavetta, user& person) {
    tell(kavetta, person, message::radouter_too_small);
    try {
        closing_steps(kavetta, person);
    } catch (const run_time_error&) {
        tell(kavetta, person, message::radouter_too_small);
        kavetta.app_state.zoom_all_requested = 0;
        person.set_busy(false);
    }
    return run_end::error;
}

/// The steps whose run-time failures the Error exit handles, up to the end of the run.
run_end handled_steps(program& kavetta, user& person) {
    try {
        const run_end end = outer_rotor_steps(kavetta, person);
        if (end == run_end::ok) {
            note_profile_faults(kavetta);
            note_result(kavetta, &stage_entries::rotors);
        }
        if (end != run_end::failure) {
            closing_steps(kavetta, person);
        }
        return end;
    } catch (const run_time_error&) {
        return error_exit(kavetta, person);
    }
}

}  // namespace

run_end calculate_profiles(program& kavetta, user& person) {
    app_state& state = kavetta.app_state;
    entries& boxes = kavetta.entries;
    design_params& design = kavetta.design_params;
    rotor_profiles& rotors = kavetta.rotor_profiles;
    const length_unit& unit = length_unit_of(state);

    reset_results(kavetta, person);
    size_trochoid_lists(rotors);
    clean_up_entries(boxes, design, person, state.language);
    if (has_refused_entry(kavetta, person)) {
        return run_end::validation;
    }
    person.set_busy(true);
    kavetta.stage_entries.rotors.reset();
    start_view_anew(kavetta);
    keep_or_drop_outer_root(boxes,
                            design);  // compares with the stored design, so before it is read anew
    read_entries(boxes, unit, design, rotors);
    size_inner_plot(rotors);
    if (shaft_material_too_thin(design)) {
        return failure_exit(kavetta, person, message::shaft_material_too_thin);
    }
    set_trochoid_parameters(design, rotors);
    if (curves_too_tightly(design, rotors)) {
        return closing_exit(kavetta, person, message::inner_rotor_errors);
    }
    if (!fill_trochoid(design, rotors)) {
        return closing_exit(kavetta, person, message::inner_profile_errors);
    }
    fill_inner_rotor(design, rotors);
    calculate_capacity(design, state.capacity_unit, rotors);
    set_capacity_label(rotors, kavetta.labels);
    if (measured_lobe_radius(design, rotors) < design.radouter) {
        tell(kavetta, person, message::inner_shape_errors);
    }
    set_plot_scale(design, kavetta.view_state);
    draw_inner_rotor(design, rotors, kavetta.view_state, kavetta.design_view);
    set_rolling_circles(design, rotors);
    rotors.lobe_centre_offset = design.radinnroot + design.ecc;
    apply_outer_root_rules(rotors, unit, state.language, design, boxes, person);
    note_stage(kavetta, stage::profiles);
    if (exceeds_maximum_diameter(design)) {
        return failure_exit(kavetta, person, message::does_not_fit_diameter);
    }
    return handled_steps(kavetta, person);
}

}  // namespace kvt
