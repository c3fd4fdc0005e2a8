#include "app/models/save_model.hpp"

#include "app/files/saved_text.hpp"
#include "app/files/written_results.hpp"
#include "app/models/built_in_modeller.hpp"
#include "app/program.hpp"
#include "base/letter_case.hpp"
#include "base/number_text.hpp"
#include "base/path_text.hpp"
#include "cad/housing.hpp"
#include "core/length_unit.hpp"
#include "core/text_table.hpp"
#include "core/user.hpp"

#include <algorithm>

namespace kvt {

namespace {

std::string told(const program& kavetta, message id) {
    return std::string(message_text(id, kavetta.app_state.language));
}

std::string_view text_of(const program& kavetta, std::string_view name) {
    return form_text("model_view", name, kavetta.app_state.language);
}

/// A typed length in mm; 0, which every check refuses, for a number beyond all numbers.
double typed_length(const std::string& text, const length_unit& unit) {
    try {
        return unit.to_mm(val(text));
    } catch (const run_time_error&) {
        return 0.0;
    }
}

housing_size typed_size(const program& kavetta, const housing_texts& texts) {
    const length_unit& unit = length_unit_of(kavetta.app_state);
    return {typed_length(texts.outer_diameter, unit), typed_length(texts.wall, unit),
            typed_length(texts.floor, unit)};
}

std::string problem_text(const program& kavetta, housing_problem problem) {
    switch (problem) {
        case housing_problem::none:
            return {};
        case housing_problem::bore: {
            const length_unit& unit = length_unit_of(kavetta.app_state);
            return told(kavetta, message::housing_bore) +
                   number_text(unit.from_mm(kavetta.design_params.maxdiameter)) + " " +
                   told(kavetta, unit.short_name) + ".";
        }
        case housing_problem::wall:
            return told(kavetta, message::housing_wall);
        case housing_problem::floor:
            return told(kavetta, message::housing_floor);
        case housing_problem::pocket:
            break;
    }
    return told(kavetta, message::housing_pocket);
}

/// With the entries that they were designed from; none for ports of another project.
std::vector<port_body> pockets_of(const program& kavetta) {
    const stage_entries& notes = kavetta.stage_entries;
    const std::optional<noted_entries>& note = notes.outlet ? notes.outlet : notes.inlet;
    return note ? port_bodies(kavetta.design_params, kavetta.port_params, note->boxes)
                : std::vector<port_body>();
}

/// The plan, or nothing after the message that says why there is none.
std::optional<housing_plan> asked_housing(const program& kavetta, user& person,
                                          const housing_texts& texts) {
    if (!may_write_design(kavetta, person)) {
        return std::nullopt;
    }
    const design_params& design = kavetta.design_params;
    const housing_size size = typed_size(kavetta, texts);
    housing_plan plan = plan_housing(design, pockets_of(kavetta), size);
    const housing_problem problem = problem_of(plan, size, design);
    if (problem != housing_problem::none) {
        person.show_message(problem_text(kavetta, problem));
        return std::nullopt;
    }
    return plan;
}

file_dialog save_dialog(const program& kavetta) {
    file_dialog dialog =
        save_text_dialog(text_of(kavetta, "save_title"), text_of(kavetta, "save_filter"), "stp");
    dialog.filter_index = 1;
    dialog.file_name = kavetta.app_state.project_name;
    return dialog;
}

bool has_ending(std::string_view path, std::string_view ending) {
    return path.size() > ending.size() &&
           is_same_ignoring_case(path.substr(path.size() - ending.size()), ending);
}

/// Saves behind the hourglass, and tells what became of it.
void save_and_tell(const program& kavetta, user& person, const std::string& path,
                   const std::vector<model_body>& bodies,
                   const std::optional<housing_plan>& housing) {
    person.set_busy(true);
    const saved_text saved = save_whole(kavetta, path, [&] {
        kavetta.modeller->loaded_store()->save(path_of_utf8(path), solid_format_of(path),
                                               numbers_of(bodies), housing);
    });
    person.set_busy(false);
    tell_outcome(person, saved);
}

}  // namespace

housing_texts usual_housing_texts(const program& kavetta) {
    if (!(kavetta.design_params.maxdiameter > 0.0)) {
        return {};
    }
    const housing_size size = usual_housing(kavetta.design_params);
    const length_unit& unit = length_unit_of(kavetta.app_state);
    return {number_text(unit.cut_from_mm(size.outer_diameter)),
            number_text(unit.cut_from_mm(size.wall)), number_text(unit.cut_from_mm(size.floor))};
}

void save_model(const program& kavetta, user& person, const model_choice& choice) {
    if (choice.bodies.empty() && !choice.housing) {
        person.show_message(told(kavetta, message::model_nothing_ticked));
        return;
    }
    std::optional<housing_plan> housing;
    if (choice.housing) {
        housing = asked_housing(kavetta, person, *choice.housing);
        if (!housing) {
            return;
        }
    }
    const auto path = ask_beside_project(kavetta, person, save_dialog(kavetta));
    if (!path) {
        return;
    }
    const bool has_solids = housing || !std::ranges::all_of(choice.bodies, &model_body::is_curve);
    if (!has_solids && !holds_curves(solid_format_of(*path))) {
        person.show_message(told(kavetta, message::model_curves_only));
        return;
    }
    save_and_tell(kavetta, person, *path, choice.bodies, housing);
}

solid_format solid_format_of(const std::string& path) {
    const auto row = std::ranges::find_if(
        SOLID_FILES, [&](const solid_file_row& one) { return has_ending(path, one.ending); });
    return row == SOLID_FILES.end() ? solid_format::step : row->format;
}

void save_model_picture(const program& kavetta, user& person,
                        const std::function<std::string()>& picture) {
    file_dialog dialog = save_text_dialog(text_of(kavetta, "picture_title"),
                                          text_of(kavetta, "picture_filter"), "png");
    dialog.filter_index = 1;
    dialog.file_name = kavetta.app_state.project_name;
    const auto saved = ask_and_save_bytes(kavetta, person, dialog,
                                          [&picture](const std::string&) { return picture(); });
    if (saved) {
        tell_outcome(person, *saved);
    }
}

}  // namespace kvt
