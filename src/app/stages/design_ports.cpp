#include "app/stages/design_ports.hpp"

#include "app/desk/enabling_chain.hpp"
#include "app/files/port_report_file.hpp"
#include "app/program.hpp"
#include "app/stages/design_hints.hpp"
#include "app/stages/porting_type.hpp"
#include "app/stages/stale_results.hpp"
#include "app/windows/close_forms.hpp"
#include "base/number_text.hpp"
#include "core/text_table.hpp"
#include "core/user.hpp"
#include "ports/build_ports.hpp"
#include "ports/metering_groove.hpp"
#include "ports/port_entries.hpp"
#include "views/port_lines.hpp"

#include <array>

namespace kvt {

namespace {

using box = std::string entries::*;

/// In the order of the form.
constexpr std::array<box, 16> TEXT_ENTRIES = {
    &entries::inlet_start_inner,  &entries::inlet_start_outer,   &entries::inlet_end_inner,
    &entries::inlet_end_outer,    &entries::inlet_inner_radius,  &entries::inlet_outer_radius,
    &entries::outlet_start_inner, &entries::outlet_start_outer,  &entries::outlet_end_inner,
    &entries::outlet_end_outer,   &entries::Outlet_inner_radius, &entries::Outlet_outer_radius,
    &entries::port_radii,         &entries::groove_length,       &entries::groove_width,
    &entries::groove_depth};

struct groove_entry {
    box entry;
    std::string_view control;
    message missing;
};

constexpr std::array<groove_entry, 3> GROOVE_ENTRIES = {{
    {&entries::groove_length, "groove_length", message::input_groove_length},
    {&entries::groove_width, "groove_width", message::input_groove_width},
    {&entries::groove_depth, "groove_depth", message::input_groove_depth},
}};

/// Any performance result is stale from here on.
void drop_results(program& kavetta, user& person) {
    if (kavetta.app_state.recalc_quiet != -1) {
        close_forms(kavetta, form_closer::ports, person);
        apply_chain(kavetta.enabling, chain_event::ports_designed);
    }
}

void put_points_for_commas(entries& boxes) {
    for (const box entry : TEXT_ENTRIES) {
        boxes.*entry = commas_to_points(boxes.*entry);
    }
}

/// Kept: only an exact 0 is missing; a negative value passes. design_ports_test holds it.
bool misses_groove_entry(program& kavetta, user& person) {
    for (const auto& [entry, control, missing] : GROOVE_ENTRIES) {
        if (val(kavetta.entries.*entry) == 0.0) {
            person.show_message(message_text(missing, kavetta.app_state.language));
            (kavetta.entries.*entry).clear();
            person.set_focus(control);
            return true;
        }
    }
    return false;
}

port_work work_of(program& kavetta, user& person) {
    return {kavetta.port_params,
            kavetta.design_params,
            kavetta.rotor_profiles,
            kavetta.entries,
            person,
            kavetta.app_state.language,
            length_unit_of(kavetta.app_state)};
}

/// A port that was refused is drawn again only where it is on display, so that it has the scale of
/// the rotors.
void draw_ports(program& kavetta, const ports_designed& done) {
    design_view& view = kavetta.design_view;
    if (done.inlet || shows_outline(view.inlet_portline)) {
        draw_inlet_port(kavetta.port_params, kavetta.view_state, view);
    }
    if (done.outlet || shows_outline(view.outlet_portline)) {
        draw_outlet_port(kavetta.port_params, kavetta.view_state, view);
    }
    if (shows_outline(view.inlet_portline) || shows_outline(view.outlet_portline)) {
        draw_port_angles(kavetta.port_params, kavetta.design_params, kavetta.view_state, view);
    }
}

/// Whether a step finished. A refused one gives the pointer back at once.
bool has_finished(port_end end, user& person) {
    if (end == port_end::refused) {
        person.set_busy(false);
    }
    return end == port_end::finished;
}

bool design_groove(program& kavetta, port_work& work, user& person) {
    clear_metering_groove(kavetta.design_view);
    if (!has_metering_groove(kavetta)) {
        kavetta.port_params.has_groove = false;
        return false;
    }
    kavetta.port_params.groove_depth_mm = length_of(kavetta.entries.groove_depth, work.unit);
    const bool done = has_finished(build_metering_groove(work), person);
    if (done) {
        note_result(kavetta, &stage_entries::groove);
        draw_metering_groove(kavetta.port_params, kavetta.view_state, kavetta.design_view);
        note_groove_faults(kavetta);
    }
    return done;
}

void note_outlines(program& kavetta, const ports_designed& done) {
    if (done.inlet) {
        note_result(kavetta, &stage_entries::inlet);
    }
    if (done.outlet) {
        note_result(kavetta, &stage_entries::outlet);
    }
}

ports_designed build_and_draw(program& kavetta, user& person) {
    port_work work = work_of(kavetta, person);
    ports_designed done;
    done.inlet = has_finished(build_inlet_port(work), person);
    done.outlet = has_finished(build_outlet_port(work), person);
    done.inlet_rebuilt = !done.inlet && work.inlet_rebuilt;
    done.inlet = done.inlet || done.inlet_rebuilt;
    note_outlines(kavetta, done);
    draw_ports(kavetta, done);
    if (done.outlet) {
        write_port_report(kavetta, person);
    }
    done.groove = design_groove(kavetta, work, person);
    return done;
}

/// Sets recalc_quiet for a run of Design Ports, and clears it however that ends.
class quiet_run {
  public:
    quiet_run(app_state& state, bool quiet) : state_(state) {
        state_.recalc_quiet = quiet ? -1 : 0;
    }
    ~quiet_run() { state_.recalc_quiet = 0; }
    quiet_run(const quiet_run&) = delete;
    quiet_run& operator=(const quiet_run&) = delete;

  private:
    app_state& state_;
};

}  // namespace

ports_designed design_ports(program& kavetta, user& person) {
    apply_shadow_rule(kavetta);
    drop_results(kavetta, person);
    put_points_for_commas(kavetta.entries);
    if (has_metering_groove(kavetta) && misses_groove_entry(kavetta, person)) {
        return {};
    }
    person.set_busy(true);
    const ports_designed done = build_and_draw(kavetta, person);
    person.set_busy(false);
    if (done.inlet && done.outlet) {
        note_stage(kavetta, stage::ports);
    }
    if (kavetta.app_state.recalc_quiet == -1) {
        kavetta.app_state.recalc_quiet = 0;
    }
    return done;
}

void design_ports_again(program& kavetta, user& person) {
    if (!shows_outline(kavetta.design_view.inlet_portline)) {
        return;
    }
    const quiet_run run(kavetta.app_state, kavetta.app_state.zoom_all_requested == -1);
    design_ports(kavetta, person);
}

void clear_ports(program& kavetta, user&) {
    kavetta.step_caption = find_caption("portdes", "clear_ports");
    for (const box entry : TEXT_ENTRIES) {
        (kavetta.entries.*entry).clear();
    }
    for (const box check : {&entries::inlet_double_sided, &entries::outlet_double_sided,
                            &entries::shadow_ports, &entries::metering_groove}) {
        set_porting_check(kavetta, check, "0");
    }
    apply_chain(kavetta.enabling, chain_event::ports_cleared);
    kavetta.enabling.design_ports = kavetta.app_state.profiles_calculated == -1;
    clear_port_lines(kavetta.design_view);
}

}  // namespace kvt
