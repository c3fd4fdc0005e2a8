#include "app/files/file_output.hpp"

#include "app/desk/program_title.hpp"
#include "app/files/file_hints.hpp"
#include "app/files/written_results.hpp"
#include "app/program.hpp"
#include "app/stages/porting_type.hpp"
#include "base/path_text.hpp"
#include "base/short_date.hpp"
#include "core/text_table.hpp"
#include "core/user.hpp"

#include <filesystem>

namespace kvt {

namespace {

/// The title is the file's own, else the one of all files of its group. A file with a text for its
/// name proposes that behind the project's name.
file_dialog dialog_of(const program& kavetta, const written_file& file) {
    const file_group_row& group = row_of(file.group);
    const std::int16_t language = kavetta.app_state.language;
    const std::string own_title = std::string(file.name) + "_title";
    const bool has_own = find_caption(group.texts, own_title) != nullptr;
    file_dialog dialog =
        save_text_dialog(form_text(group.texts, has_own ? own_title : "title", language),
                         form_text(group.texts, "filter", language), group.extension);
    if (const text_row* name = find_caption(group.texts, std::string(file.name) + "_name")) {
        dialog.file_name = kavetta.app_state.project_name + std::string(row_text(*name, language));
    }
    return dialog;
}

file_source source_with(const program& kavetta, const entries& boxes, const length_unit& boxes_unit,
                        std::string path) {
    const app_state& state = kavetta.app_state;
    return {kavetta.design_params,
            kavetta.rotor_profiles,
            kavetta.port_params,
            kavetta.perf_results,
            boxes,
            kavetta.cnc_choices,
            state.project_name,
            state.language,
            length_unit_of(state),
            std::move(path),
            kavetta.date.empty() ? short_date(system_clock()) : kavetta.date,
            std::string(FULL_VERSION),
            boxes_unit,
            kavetta.decimal_mark,
            kavetta.chord_error_mm};
}

}  // namespace

file_source source_of(const program& kavetta, std::string path) {
    return source_with(kavetta, kavetta.entries, length_unit_of(kavetta.app_state),
                       std::move(path));
}

file_source source_of(const program& kavetta, const written_file& file, std::string path) {
    if (const noted_entries* older = older_entries(kavetta, file)) {
        return source_with(kavetta, older->boxes, length_unit_of(older->drawing_units),
                           std::move(path));
    }
    return source_of(kavetta, std::move(path));
}

std::optional<saved_text> ask_and_save_file(program& kavetta, user& person,
                                            const written_file& file) {
    std::optional<saved_text> saved = ask_and_save_text(
        kavetta, person, dialog_of(kavetta, file), [&](text_lines& text, const std::string& to) {
            file.write(source_of(kavetta, file, to), text);
        });
    if (saved) {
        note_scrapped_part(kavetta, file);
    }
    return saved;
}

std::optional<std::string> save_file(program& kavetta, user& person, const written_file& file) {
    const std::optional<saved_text> saved = ask_and_save_file(kavetta, person, file);
    if (!saved) {
        return std::nullopt;
    }
    person.show_status(saved->outcome);
    return saved->path;
}

void save_file_of_menu(program& kavetta, user& person, const written_file& file) {
    if (may_write(kavetta, person, file)) {
        save_file(kavetta, person, file);
    }
}

std::string notice_of(const program& kavetta, const written_file& file) {
    try {
        return file.notice == nullptr ? "" : file.notice(source_of(kavetta, file));
    } catch (const run_time_error&) {
        return "";  // the file ended there too
    }
}

void open_dxf_menu(program& kavetta) {
    kavetta.enabling.mnudxfmetering = has_metering_groove(kavetta);
}

void write_gt_step_file(const program& kavetta, const written_file& file,
                        const std::string& folder) {
    if (!is_there(file.needs, kavetta.port_params, kavetta.entries)) {
        return;
    }
    const std::string path = utf8_of_path(path_of_utf8(folder) / path_of_utf8(file_name(file)));
    const auto failed = save_text(
        path, [&](text_lines& text) { file.write(source_of(kavetta, file, path), text); });
    if (failed) {
        throw failed->error;
    }
}

void write_gt_step_files(const program& kavetta, const std::string& folder) {
    for (const written_file& file : files_of(file_group::gt)) {
        write_gt_step_file(kavetta, file, folder);
    }
}

}  // namespace kvt
