#include "app/desk/run_command.hpp"

#include "app/desk/autosave.hpp"
#include "app/program.hpp"
#include "base/path_text.hpp"
#include "base/run_time_error.hpp"
#include "core/failure_text.hpp"
#include "core/text_table.hpp"
#include "core/user.hpp"

#include <string>
#include <utility>

namespace kvt {

namespace {

/// The failure, where the entries are, and below it what may have led there.
std::string fatal_text(const program& kavetta, const run_time_error& error,
                       const std::filesystem::path& recovery) {
    const auto text = [&kavetta](message id) {
        return std::string(message_text(id, kavetta.app_state.language));
    };
    std::string told = text(message::run_time_failure) + std::to_string(error.number()) + ": " +
                       std::string(failure_text(error.kind(), kavetta.app_state.language)) + ". ";
    told += recovery.empty() ? text(message::entries_not_saved)
                             : text(message::entries_saved_to) + utf8_of_path(recovery);
    for (const hint& row : kavetta.hints) {
        told += "\r" + hint_line(row, kavetta.app_state.language);
    }
    return told;
}

/// Saves the entries, tells the failure, and answers whether the user ends the program.
bool is_ended(const program& kavetta, user& person, const run_time_error& error) {
    const std::filesystem::path recovery = save_recovery(kavetta);
    person.set_busy(false);
    if (!person.ask_to_go_on(fatal_text(kavetta, error, recovery))) {
        return true;
    }
    person.unload_form("progressfrm");
    return false;
}

}  // namespace

bool run_command(program& kavetta, user& person, const std::function<bool()>& command) {
    program before = kavetta;
    try {
        return command();
    } catch (const run_time_error& error) {
        if (is_ended(kavetta, person, error)) {
            return true;
        }
        before.hints = std::move(kavetta.hints);
        kavetta = std::move(before);
        return false;
    }
}

bool run_view_step(program& kavetta, user& person, const std::function<void()>& step) {
    view_state state = kavetta.view_state;
    design_view view = kavetta.design_view;
    std::string angle = kavetta.entries.rotated_angle;
    try {
        step();
    } catch (const run_time_error& error) {
        if (is_ended(kavetta, person, error)) {
            return true;
        }
        kavetta.view_state = state;
        kavetta.design_view = std::move(view);
        kavetta.entries.rotated_angle = std::move(angle);
    }
    return false;
}

}  // namespace kvt
