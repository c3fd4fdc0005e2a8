#include "app/stages/stale_results.hpp"

#include "app/program.hpp"
#include "core/text_table.hpp"
#include "views/port_lines.hpp"
#include "views/zoom.hpp"

#include <algorithm>

namespace kvt {

namespace {

std::optional<noted_entries>& note_of(stage_entries& notes, stage which) {
    switch (which) {
        case stage::profiles:
            return notes.profiles;
        case stage::ports:
            return notes.ports;
        case stage::performance:
            break;
    }
    return notes.performance;
}

bool reads(stage which, const entry_field& field) {
    if (field.form == "Form1") {
        return field.name != "volumereqd";
    }
    return (field.form == "portdes" && which != stage::profiles) ||
           (field.form == "Perffrm" && which == stage::performance);
}

bool has_changed(const program& kavetta, stage which, const std::optional<noted_entries>& note) {
    return note && has_changed_since(kavetta, which, *note);
}

noted_entries present_entries(const program& kavetta) {
    return {kavetta.entries, kavetta.app_state.drawing_units};
}

}  // namespace

void note_stage(program& kavetta, stage ran) {
    note_of(kavetta.stage_entries, ran) = present_entries(kavetta);
}

void note_result(program& kavetta, result_note result) {
    kavetta.stage_entries.*result = present_entries(kavetta);
}

bool has_changed_since(const program& kavetta, stage which, const noted_entries& note) {
    if (note.drawing_units != kavetta.app_state.drawing_units) {
        return true;
    }
    return std::ranges::any_of(entry_fields(), [&](const entry_field& field) {
        return reads(which, field) && note.boxes.*field.member != kavetta.entries.*field.member;
    });
}

stale_stages find_stale_stages(const program& kavetta) {
    const stage_entries& notes = kavetta.stage_entries;
    const design_view& view = kavetta.design_view;
    stale_stages stale;
    stale.profiles = has_rotors(view) && has_changed(kavetta, stage::profiles, notes.profiles);
    stale.ports = (shows_outline(view.inlet_portline) || shows_outline(view.outlet_portline)) &&
                  has_changed(kavetta, stage::ports, notes.ports);
    stale.performance = kavetta.enabling.create_charts &&
                        has_changed(kavetta, stage::performance, notes.performance);
    return stale;
}

std::string_view stale_hint(const program& kavetta) {
    const stale_stages stale = find_stale_stages(kavetta);
    const std::int16_t language = kavetta.app_state.language;
    if (stale.profiles) {
        return message_text(message::stale_profiles, language);
    }
    if (stale.ports) {
        return message_text(message::stale_ports, language);
    }
    return stale.performance ? message_text(message::stale_performance, language)
                             : std::string_view();
}

}  // namespace kvt
