#include "app/history/step_text.hpp"

#include "app/program.hpp"
#include "core/capacity_unit.hpp"
#include "core/entry_names.hpp"
#include "core/length_unit.hpp"
#include "core/text_table.hpp"

namespace kvt {

namespace {

constexpr const char* ARROW = " → ";

/// One step with all that its words need.
struct told_step {
    const program& kavetta;
    const edited_state& before;
    const edited_state& after;
};

std::string word(const told_step& told, std::string_view name) {
    return std::string(form_text("history", name, told.kavetta.app_state.language));
}

std::string unit_word(const told_step& told, std::int16_t code) {
    return std::string(
        form_text("Form1", length_unit_of(code).option_button, told.kavetta.app_state.language));
}

std::string capacity_word(std::int16_t code) {
    const capacity_unit* unit = find_capacity_unit(code);
    return unit == nullptr ? std::string() : std::string(unit->list_text);
}

std::string shown_text(const told_step& told, const std::string& typed) {
    return typed.empty() ? word(told, "empty_text") : typed;
}

std::string entry_step(const told_step& told, const entry_field& field) {
    const std::string name =
        entry_name(field, told.kavetta.captions, told.kavetta.app_state.language);
    const std::string& now = (*told.after.boxes).*field.member;
    if (field.kind == entry_kind::check) {
        return name + " " + word(told, is_ticked(now) ? "tick_on" : "tick_off");
    }
    const std::string& before = (*told.before.boxes).*field.member;
    return name + " " + shown_text(told, before) + ARROW + shown_text(told, now);
}

std::string entries_step(const told_step& told, const std::vector<const entry_field*>& differing) {
    std::string text = entry_step(told, *differing.front());
    if (differing.size() > 1) {
        text += word(told, "and_more") + std::to_string(differing.size() - 1) +
                word(told, "more_entries");
    }
    return text;
}

std::string choice_step(const told_step& told) {
    const edited_state& before = told.before;
    const edited_state& after = told.after;
    if (before.drawing_units != after.drawing_units) {
        return word(told, "units_step") + " " + unit_word(told, before.drawing_units) + ARROW +
               unit_word(told, after.drawing_units);
    }
    if (before.capacity_unit != after.capacity_unit) {
        return word(told, "units_step") + " " + capacity_word(before.capacity_unit) + ARROW +
               capacity_word(after.capacity_unit);
    }
    if (before.language != after.language) {
        return word(told, "language_step");
    }
    return std::string(form_text("Form1",
                                 after.assist_on ? "Des_assist_check_on" : "Des_assist_check",
                                 told.kavetta.app_state.language));
}

std::string project_step(const told_step& told) {
    const std::string& name = told.after.project->name;
    return word(told, "project_step") + (name.empty() ? "" : " '" + name + "'");
}

}  // namespace

std::string step_text(const program& kavetta, const edit_history& history, std::size_t step) {
    const std::int16_t language = kavetta.app_state.language;
    if (step == 0) {
        return std::string(form_text("history", "start_step", language));
    }
    const edit_step& row = history.step(step);
    const told_step told{kavetta, history.step(step - 1).state, row.state};
    if (!told.before.project->is_that_of(*told.after.project)) {
        return project_step(told);
    }
    if (row.command != nullptr) {
        return std::string(row_text(*row.command, language));
    }
    const bool is_choice = told.before.drawing_units != told.after.drawing_units ||
                           told.before.capacity_unit != told.after.capacity_unit;
    const auto differing = differing_entries(*told.before.boxes, *told.after.boxes);
    return is_choice || differing.empty() ? choice_step(told) : entries_step(told, differing);
}

}  // namespace kvt
