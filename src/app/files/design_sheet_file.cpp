#include "app/files/design_sheet_file.hpp"

#include "app/desk/program_title.hpp"
#include "app/files/saved_text.hpp"
#include "app/files/written_results.hpp"
#include "app/program.hpp"
#include "app/stages/batch_run.hpp"
#include "app/stages/silent_user.hpp"
#include "app/stages/stale_results.hpp"
#include "base/short_date.hpp"
#include "core/text_table.hpp"

namespace kvt {

namespace {

std::optional<sheet_stage> stage_of(const program& kavetta, stage which,
                                    const std::optional<noted_entries>& note) {
    if (!note) {
        return std::nullopt;
    }
    return sheet_stage{note->boxes, has_changed_since(kavetta, which, *note)};
}

/// The outlines that were finished for the open project.
drawn_ports finished_outlines(const program& kavetta) {
    const stage_entries& notes = kavetta.stage_entries;
    const port_params& ports = kavetta.port_params;
    return {notes.inlet && ports.inlet.last > 0, notes.outlet && ports.outlet.last > 0,
            notes.groove && ports.has_groove};
}

std::optional<sheet_stage> stage_of_ports(const program& kavetta, const drawn_ports& drawn) {
    const stage_entries& notes = kavetta.stage_entries;
    if (drawn.inlet) {
        return stage_of(kavetta, stage::ports, notes.inlet);
    }
    return drawn.outlet ? stage_of(kavetta, stage::ports, notes.outlet) : std::nullopt;
}

/// The calculation once more on records of its own, with nobody to answer, up to the stage whose
/// results are on the sheet: what was told stands in boxes that are gone.
void tell_again(sheet_source& source) {
    program again;
    again.app_state.language = source.language;
    again.app_state.drawing_units = source.unit.code;
    silent_user nobody;
    calc_stage last = calc_stage::profiles;
    again.entries = source.of_profiles.boxes;
    if (source.of_performance) {
        last = calc_stage::performance;
        again.entries = source.of_performance->boxes;
    } else if (source.of_ports) {
        last = calc_stage::ports;
        again.entries = source.of_ports->boxes;
    }
    calculate_open_design(again, nobody, last);
    source.messages = nobody.messages();
    for (const hint& row : again.hints) {
        source.hints.push_back(row.text);
    }
}

sheet_source sheet_source_of(const program& kavetta) {
    const std::optional<noted_entries>& rotors = kavetta.stage_entries.rotors;
    const drawn_ports drawn = finished_outlines(kavetta);
    sheet_source source{kavetta.design_params,
                        kavetta.rotor_profiles,
                        kavetta.port_params,
                        kavetta.perf_results,
                        kavetta.labels,
                        kavetta.app_state.language,
                        length_unit_of(rotors->drawing_units),
                        kavetta.app_state.project_name,
                        std::string(PROGRAM_NAME) + " " + std::string(FULL_VERSION),
                        kavetta.date.empty() ? short_date(system_clock()) : kavetta.date,
                        *stage_of(kavetta, stage::profiles, rotors),
                        stage_of_ports(kavetta, drawn),
                        std::nullopt,
                        drawn,
                        {},
                        {}};
    if (kavetta.performance_valid) {
        source.of_performance =
            stage_of(kavetta, stage::performance, kavetta.stage_entries.perf_results);
    }
    tell_again(source);
    return source;
}

file_dialog sheet_dialog(const program& kavetta) {
    const std::int16_t language = kavetta.app_state.language;
    file_dialog dialog = save_text_dialog(form_text("sheet", "dialog_title", language),
                                          form_text("sheet", "filter", language), "pdf");
    dialog.file_name =
        kavetta.app_state.project_name + std::string(form_text("sheet", "file_suffix", language));
    return dialog;
}

}  // namespace

std::vector<sheet_page> design_sheet_of(const program& kavetta, const sheet_paper& paper) {
    return make_design_sheet(sheet_source_of(kavetta), paper);
}

void save_design_sheet(const program& kavetta, user& person, sheet_writer& writer) {
    if (!may_write_design(kavetta, person)) {
        return;
    }
    const file_dialog dialog = sheet_dialog(kavetta);
    const std::optional<saved_text> saved =
        ask_and_save_bytes(kavetta, person, dialog, [&](const std::string&) {
            return writer.document(design_sheet_of(kavetta, writer.paper()), dialog.file_name);
        });
    if (saved) {
        person.show_status(saved->outcome);
    }
}

}  // namespace kvt
