#include "app/desk/exit_program.hpp"

#include "app/desk/autosave.hpp"
#include "app/desk/settings_commands.hpp"
#include "app/files/project_commands.hpp"
#include "app/program.hpp"
#include "core/text_table.hpp"
#include "core/user.hpp"

namespace kvt {

bool exit_program(program& kavetta, user& person) {
    const std::string_view question =
        message_text(message::save_before_exit, kavetta.app_state.language);
    switch (person.ask(question, question_buttons::yes_no_cancel)) {
        case answer::cancel:
            kavetta.app_state.exit_cancelled = true;
            return false;
        case answer::yes:
            if (save_project_as(kavetta, person)) {
                forget_unsaved_entries(kavetta);
            } else {
                save_recovery(kavetta);
            }
            break;
        case answer::no:
            forget_unsaved_entries(kavetta);
            break;
    }
    save_settings(kavetta);
    return true;
}

}  // namespace kvt
