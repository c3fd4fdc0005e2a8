#include "app/trial/pinned_design.hpp"

#include "app/desk/settings_commands.hpp"
#include "app/files/project_commands.hpp"
#include "app/files/whole_load.hpp"
#include "app/program.hpp"
#include "app/stages/silent_user.hpp"
#include "app/trial/design_trial.hpp"
#include "app/trial/tried_design.hpp"
#include "core/text_table.hpp"
#include "core/user.hpp"
#include "views/zoom.hpp"

#include <memory>
#include <optional>
#include <utility>

namespace kvt {

namespace {

std::string text_of(const program& kavetta, std::string_view name) {
    return std::string(form_text("pinned", name, kavetta.app_state.language));
}

void pin(program& kavetta, user& person, pinned_design pinned) {
    kavetta.pinned = std::make_shared<const pinned_design>(std::move(pinned));
    person.show_status(pinned_text(kavetta));
}

/// A copy of the program in which the project is open. Throws run_time_error when it can't be.
program opened_apart(const program& kavetta, const std::string& path) {
    program copy = trial_copy(kavetta);
    silent_user nobody;
    load_entries(copy, nobody, path);
    return copy;
}

std::string refusal_text(const program& kavetta, const tried_design& tried) {
    std::string text = text_of(kavetta, "refused");
    for (const std::string& reason : tried.messages) {
        text += "\n" + reason;
    }
    return text;
}

void pin_project(program& kavetta, user& person, const std::string& path) {
    const program opened = opened_apart(kavetta, path);
    const std::string name = opened.app_state.project_name;
    const tried_design tried =
        tried_design_of(try_design(opened, std::nullopt, calc_stage::performance));
    if (tried.design == nullptr) {
        person.show_message(refusal_text(kavetta, tried));
        return;
    }
    pin(kavetta, person, {name, *tried.design});
}

}  // namespace

std::string pinned_text(const program& kavetta) {
    return kavetta.pinned == nullptr ? "" : text_of(kavetta, "name") + kavetta.pinned->name;
}

const perf_results* pinned_performance(const program& kavetta) {
    const pinned_design* pinned = kavetta.pinned.get();
    return pinned == nullptr || !pinned->design.has_performance ? nullptr
                                                                : &pinned->design.perf_results;
}

bool can_pin_design(const program& kavetta) {
    return has_rotors(kavetta.design_view);
}

void pin_design(program& kavetta, user& person) {
    if (can_pin_design(kavetta)) {
        pin(kavetta, person, {kavetta.app_state.project_name, kept_design_of(kavetta)});
    }
}

void pin_project_file(program& kavetta, user& person) {
    try {
        const std::optional<std::string> path =
            choose_project(kavetta, person, text_of(kavetta, "title"), project_folder(kavetta));
        if (path) {
            pin_project(kavetta, person, *path);
        }
    } catch (const run_time_error& error) {
        show_failure_status(kavetta, person, message::open_failed, error);
    }
}

void unpin_design(program& kavetta, user&) {
    kavetta.pinned.reset();
}

}  // namespace kvt
