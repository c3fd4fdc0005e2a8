#include "app/history/edited_state.hpp"

#include "app/desk/autosave.hpp"
#include "app/desk/unit_commands.hpp"
#include "app/program.hpp"
#include "app/stages/porting_type.hpp"

#include <array>

namespace kvt {

namespace {

constexpr std::array CNC_FILES = {&app_state::cnc_file_troc,
                                  &app_state::cnc_file_inner,
                                  &app_state::cnc_file_xyouter,
                                  &app_state::cnc_file_innertooloffset,
                                  &app_state::cnc_file_outertooloffset,
                                  &app_state::cnc_file_outer};

/// The part as it was before when nothing changed in it.
template <typename part>
std::shared_ptr<const part> shared_part(part now, const std::shared_ptr<const part>& before) {
    return before != nullptr && *before == now ? before
                                               : std::make_shared<const part>(std::move(now));
}

entries boxes_of(const program& kavetta) {
    entries boxes = kavetta.entries;
    boxes.rotated_angle.clear();
    return boxes;
}

std::vector<std::string> cnc_files_of(const app_state& state) {
    std::vector<std::string> files;
    files.reserve(CNC_FILES.size());
    for (const auto member : CNC_FILES) {
        files.push_back(state.*member);
    }
    return files;
}

void restore_boxes(program& kavetta, const edited_state& state) {
    const std::string angle = kavetta.entries.rotated_angle;
    kavetta.entries = *state.boxes;
    kavetta.entries.rotated_angle = angle;
    open_groove_entries(kavetta);
}

/// The selection in the list converts the capacity on display; the box is as it was typed.
void restore_units(program& kavetta, const edited_state& state) {
    if (kavetta.app_state.capacity_unit != state.capacity_unit) {
        select_capacity_unit(kavetta, state.capacity_unit);
    }
    kavetta.app_state.volumereqd_value = state.volumereqd_value;
    if (kavetta.app_state.drawing_units != state.drawing_units) {
        set_unit_labels(kavetta, length_unit_of(state.drawing_units));
    }
}

void restore_project(program& kavetta, const edited_state& state) {
    app_state& there = kavetta.app_state;
    for (std::size_t i = 0; i < CNC_FILES.size(); ++i) {
        there.*CNC_FILES[i] = state.cnc_files->at(i);
    }
    there.project_path = state.project->path;
    there.project_name = state.project->name;
    there.project_has_file = state.project->has_file;
    kavetta.labels.hiddenprojnamelabel = state.project->typed_name;
    kavetta.labels.title = state.project->title;
}

}  // namespace

edited_state edited_state_of(const program& kavetta, const edited_state* before) {
    const app_state& there = kavetta.app_state;
    const edited_state none;
    const edited_state& shared = before == nullptr ? none : *before;
    edited_state state;
    state.boxes = shared_part(boxes_of(kavetta), shared.boxes);
    state.project = shared_part(
        edited_project{there.project_path, there.project_name, kavetta.labels.hiddenprojnamelabel,
                       kavetta.labels.title, there.project_has_file},
        shared.project);
    state.cnc_files = shared_part(cnc_files_of(there), shared.cnc_files);
    state.volumereqd_value = there.volumereqd_value;
    state.language = there.language;
    state.drawing_units = there.drawing_units;
    state.capacity_unit = there.capacity_unit;
    state.assist_on = there.assist_on;
    state.assist_hidden = there.assist_hidden;
    return state;
}

bool is_same(const edited_state& left, const edited_state& right) {
    return *left.boxes == *right.boxes && left.project->is_that_of(*right.project) &&
           left.language == right.language && left.drawing_units == right.drawing_units &&
           left.capacity_unit == right.capacity_unit && left.assist_on == right.assist_on &&
           left.assist_hidden == right.assist_hidden;
}

std::vector<const entry_field*> differing_entries(const entries& left, const entries& right) {
    std::vector<const entry_field*> differing;
    for (const entry_field& field : entry_fields()) {
        if (left.*field.member != right.*field.member) {
            differing.push_back(&field);
        }
    }
    return differing;
}

void restore_edited_state(program& kavetta, user& person, const edited_state& state) {
    if (kavetta.app_state.language != state.language) {
        choose_language(kavetta, person, state.language);
    }
    restore_units(kavetta, state);
    restore_boxes(kavetta, state);
    kavetta.app_state.assist_on = state.assist_on;
    kavetta.app_state.assist_hidden = state.assist_hidden;
    const bool is_other_project = kavetta.app_state.project_path != state.project->path ||
                                  kavetta.app_state.project_name != state.project->name;
    restore_project(kavetta, state);
    if (is_other_project) {
        note_new_entries(kavetta);
        kavetta.unsaved->saved.clear();
    }
}

}  // namespace kvt
