#include "app/files/written_results.hpp"

#include "app/program.hpp"
#include "app/stages/stale_results.hpp"
#include "core/text_table.hpp"
#include "core/user.hpp"

#include <algorithm>
#include <vector>

namespace kvt {

namespace {

stage stage_of(const written_file& file) {
    switch (file.needs) {
        case file_needs::profiles:
            return stage::profiles;
        case file_needs::performance:
            return stage::performance;
        case file_needs::inlet:
        case file_needs::outlet:
        case file_needs::any_port:
        case file_needs::groove:
            break;
    }
    return stage::ports;
}

message missing_results(stage which) {
    switch (which) {
        case stage::profiles:
            return message::no_profiles_yet;
        case stage::ports:
            return message::no_ports_yet;
        case stage::performance:
            break;
    }
    return message::no_performance_yet;
}

/// The outlines that stand in the records, of whichever project.
std::vector<result_note> port_notes(const port_params& ports) {
    std::vector<result_note> notes;
    if (ports.inlet.last > 0) {
        notes.push_back(&stage_entries::inlet);
    }
    if (ports.outlet.last > 0) {
        notes.push_back(&stage_entries::outlet);
    }
    return notes;
}

/// The results that a file is written from.
std::vector<result_note> notes_of(const program& kavetta, const written_file& file) {
    switch (file.needs) {
        case file_needs::profiles:
            return {&stage_entries::rotors};
        case file_needs::inlet:
            return {&stage_entries::inlet};
        case file_needs::outlet:
            return {&stage_entries::outlet};
        case file_needs::groove:
            return {&stage_entries::groove};
        case file_needs::performance:
            return {&stage_entries::perf_results};
        case file_needs::any_port:
            break;
    }
    return port_notes(kavetta.port_params);
}

bool has_results(const program& kavetta, const written_file& file) {
    const std::vector<result_note> notes = notes_of(kavetta, file);
    return !notes.empty() && std::ranges::all_of(notes, [&](result_note note) {
        return (kavetta.stage_entries.*note).has_value();
    });
}

bool has_results_told(const program& kavetta, user& person, const written_file& file) {
    const bool there = has_results(kavetta, file);
    if (!there) {
        person.show_message(
            message_text(missing_results(stage_of(file)), kavetta.app_state.language));
    }
    return there;
}

bool takes_entries_as_typed(const program& kavetta, const written_file& file) {
    return file.group == file_group::dxf && file.name == "outer" &&
           length_unit_of(kavetta.app_state).system == unit_system::imperial;
}

bool are_older_ones_wanted(const program& kavetta, user& person) {
    const std::string_view question =
        message_text(message::write_calculated_design, kavetta.app_state.language);
    return person.ask(question, question_buttons::yes_no) == answer::yes;
}

/// The first of the files needs profiles.
bool may_write_any(const program& kavetta, user& person, std::span<const written_file> files) {
    const bool is_older = std::ranges::any_of(files, [&](const written_file& file) {
        return has_results(kavetta, file) && older_entries(kavetta, file) != nullptr;
    });
    return has_results_told(kavetta, person, files.front()) &&
           (!is_older || are_older_ones_wanted(kavetta, person));
}

}  // namespace

const noted_entries* older_entries(const program& kavetta, const written_file& file) {
    if (takes_entries_as_typed(kavetta, file)) {
        return nullptr;
    }
    for (const result_note note : notes_of(kavetta, file)) {
        const std::optional<noted_entries>& made_from = kavetta.stage_entries.*note;
        if (made_from && has_changed_since(kavetta, stage_of(file), *made_from)) {
            return &*made_from;
        }
    }
    return nullptr;
}

bool may_write(const program& kavetta, user& person, const written_file& file) {
    return has_results_told(kavetta, person, file) &&
           (older_entries(kavetta, file) == nullptr || are_older_ones_wanted(kavetta, person));
}

bool may_open_cnc_form(const program& kavetta, user& person) {
    return may_write_any(kavetta, person, files_of(file_group::cnc));
}

bool may_write_design(const program& kavetta, user& person) {
    return may_write_any(kavetta, person, written_files());
}

bool has_results(const program& kavetta, user& person,
                 const std::set<std::string, std::less<>>& cnc_files) {
    return std::ranges::all_of(files_of(file_group::cnc), [&](const written_file& file) {
        return !cnc_files.contains(file.name) || has_results_told(kavetta, person, file);
    });
}

}  // namespace kvt
