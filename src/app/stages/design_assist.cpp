#include "app/stages/design_assist.hpp"

#include "app/desk/enabling_chain.hpp"
#include "app/program.hpp"
#include "app/stages/design_ports.hpp"
#include "app/stages/rotor_labels.hpp"
#include "core/text_table.hpp"
#include "core/user.hpp"
#include "geometry/assist_entries.hpp"
#include "geometry/assist_search.hpp"
#include "geometry/capacity.hpp"
#include "geometry/entry_checks.hpp"

namespace kvt {

namespace {

void tell(const program& kavetta, user& person, message text) {
    person.show_message(message_text(text, kavetta.app_state.language));
}

const length_unit& unit_of(const program& kavetta) {
    return length_unit_of(kavetta.app_state);
}

/// Kept: cm3 per revolution for now, whatever the unit beside the label says; design_assist_test
/// holds it.
void show_candidate(program& kavetta, fixed4 capacity_cc) {
    kavetta.labels.capacity = capacity_cc.text();
    write_root_and_eccentricity(kavetta.design_params, unit_of(kavetta), kavetta.entries);
}

/// Stage 1. False, told, when the rotors exceed the maximum diameter.
bool find_fitting_root(program& kavetta, user& person) {
    design_params& design = kavetta.design_params;
    const fixed4 required = required_capacity_cc(kavetta.entries, kavetta.app_state.capacity_unit);
    show_candidate(kavetta, find_root_and_eccentricity(required, design, kavetta.rotor_profiles));
    write_assist_outer_root(design, kavetta.entries);
    if (exceeds_assist_diameter(design)) {
        tell(kavetta, person, message::does_not_fit_diameter);
        return false;
    }
    return true;
}

/// Stages 2 and 3, and their results.
void find_lobes(program& kavetta) {
    design_params& design = kavetta.design_params;
    rotor_profiles& rotors = kavetta.rotor_profiles;
    find_lobe_radius(design, rotors);
    const fixed4 found = grow_root_to_curvature(design, rotors);
    show_candidate(kavetta, found);
    rotors.capacity = capacity_in_unit(found, kavetta.app_state.capacity_unit);
    write_lobe_radius(design, unit_of(kavetta), kavetta.entries);
    set_capacity_label(rotors, kavetta.labels);
}

}  // namespace

assist_end design_assist(program& kavetta, user& person) {
    clean_up_entries(kavetta.entries, kavetta.design_params, person, kavetta.app_state.language);
    if (const auto refused = first_refused_assist_entry(kavetta.entries)) {
        tell(kavetta, person, *refused);
        return assist_end::refused;
    }
    person.set_busy(true);
    kavetta.stage_entries.rotors.reset();
    read_assist_entries(kavetta.entries, unit_of(kavetta), kavetta.design_params);
    if (!find_fitting_root(kavetta, person)) {
        person.set_busy(false);
        return assist_end::does_not_fit;
    }
    find_lobes(kavetta);
    clear_ports(kavetta, person);
    kavetta.step_caption = find_caption("Form1", "designer");
    kavetta.app_state.profiles_calculated = 0;
    apply_chain(kavetta.enabling, chain_event::assist_succeeded);
    person.set_busy(false);
    return assist_end::found;
}

void set_assist(program& kavetta, bool on) {
    kavetta.app_state.assist_on = on;
    if (on) {
        kavetta.app_state.assist_hidden = false;
    }
}

void hide_assist(program& kavetta) {
    kavetta.app_state.assist_on = false;
    kavetta.app_state.assist_hidden = true;
}

assist_look look_of_assist(const app_state& state) {
    const text_row* row = find_text(text_kind::fixed_caption, "Form1",
                                    state.assist_on ? "Des_assist_check_on" : "Des_assist_check");
    assist_look look;
    look.caption = row_text(*row, state.language);
    look.designer_enabled = state.assist_on;
    look.designer_visible = !state.assist_hidden;
    look.green = state.assist_on;
    look.frame_lines_visible = !state.assist_hidden;
    return look;
}

}  // namespace kvt
