#include "app/trial/design_trial.hpp"

#include "app/stages/silent_user.hpp"
#include "base/number_text.hpp"
#include "views/port_lines.hpp"

#include <algorithm>

namespace kvt {

namespace {

/// Angles of the view and the root radius, whose corrections only inform, are no refusals.
bool must_stay(const entry_field& field) {
    return field.kind == entry_kind::text && field.name != "outer_root" &&
           field.name != "rotated_angle";
}

double number_of(const std::string& text) {
    return val(commas_to_points(text));
}

/// Whether a run has put another number in the place of one that stood in a box. An empty box and a
/// 0 are filled with what the program proposes.
bool has_replaced_number(const entries& typed, const entries& after) {
    return std::ranges::any_of(entry_fields(), [&](const entry_field& field) {
        const double number = number_of(typed.*field.member);
        return must_stay(field) && number != 0.0 && number != number_of(after.*field.member);
    });
}

/// The entries with what is typed, before its leave handler sees it.
entries typed_entries(const program& kavetta, const std::optional<typed_entry>& typed) {
    entries boxes = kavetta.entries;
    if (const entry_field* field = typed ? find_entry(typed->control) : nullptr) {
        boxes.*field->member = typed->text;
    }
    return boxes;
}

}  // namespace

calc_stage last_calculated_stage(const program& kavetta) {
    const design_view& view = kavetta.design_view;
    if (!shows_outline(view.inlet_portline) && !shows_outline(view.outlet_portline)) {
        return calc_stage::profiles;
    }
    return kavetta.performance_valid ? calc_stage::performance : calc_stage::ports;
}

program trial_copy(const program& kavetta) {
    program copy = kavetta;
    copy.folder.clear();
    copy.unsaved = std::make_shared<unsaved_work>();
    copy.packages.reset();
    copy.modeller.reset();
    copy.driven_package.reset();
    copy.app_state.zoom_all_requested = 0;
    copy.hints.clear();
    clear_port_lines(copy.design_view);
    return copy;
}

design_trial try_design(const program& kavetta, const std::optional<typed_entry>& typed,
                        calc_stage last) {
    design_trial trial;
    trial.tried = trial_copy(kavetta);
    silent_user person;
    const entries before = typed_entries(trial.tried, typed);
    trial.result = type_and_calculate(
        trial.tried, person, typed ? std::vector{*typed} : std::vector<typed_entry>(), last);
    trial.messages = person.messages();
    trial.accepted =
        trial.result.is_accepted() && !has_replaced_number(before, trial.tried.entries);
    return trial;
}

}  // namespace kvt
