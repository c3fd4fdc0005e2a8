#include "ui/shell/command_runner.hpp"

#include "app/desk/command_hints.hpp"
#include "app/desk/run_command.hpp"
#include "app/program.hpp"
#include "app/stages/entry_handlers.hpp"

#include <QMetaObject>

#include <utility>

namespace kvt {

command_runner::command_runner(program& kavetta, user& person)
    : program_(kavetta), person_(person) {}

void command_runner::run(const command& action) {
    if (!running_ && !ended_) {
        emit starting();
    }
    if (!run_left_entry()) {
        return;
    }
    run_with(entry_in_use_, [&action](program& kavetta, user& person) {
        return run_with_hints(kavetta, person, [&] { return action(kavetta, person); });
    });
}

void command_runner::act(const std::function<void(program&, user&)>& action) {
    run([&action](program& kavetta, user& person) {
        action(kavetta, person);
        return false;
    });
}

void command_runner::use_entry(const std::string& name) {
    entry_in_use_ = name;
}

void command_runner::leave(const std::string& name) {
    // A command that moves the focus has already run the handler of the entry it was started from.
    if (running_ || ended_) {
        return;
    }
    run_left_entry();
    left_entry_ = name;
    QMetaObject::invokeMethod(this, &command_runner::run_left_entry, Qt::QueuedConnection);
}

bool command_runner::run_left_entry() {
    if (left_entry_.empty() || running_) {
        return true;
    }
    return run_with(std::exchange(left_entry_, {}), nullptr);
}

void command_runner::note_edit() {
    if (history_.has_begun()) {
        history_.note_typing(present_state());
    }
    emit edited();
}

void command_runner::begin_history() {
    history_.begin(edited_state_of(program_, nullptr));
    emit finished();
}

edited_state command_runner::present_state() const {
    return edited_state_of(program_, &history_.present());
}

void command_runner::note_command(bool is_left_entry) {
    const text_row* caption = std::exchange(program_.step_caption, nullptr);
    if (!history_.has_begun()) {
        return;
    }
    if (is_left_entry) {
        history_.note_left_entry(present_state());
    } else {
        history_.note_command(present_state(), caption);
    }
}

void command_runner::go_to_step(std::size_t step) {
    if (running_ || ended_ || step >= history_.size() || step == history_.position()) {
        return;
    }
    emit starting();
    left_entry_.clear();
    run_between({}, [&](program& kavetta, user& person) {
        restore_edited_state(kavetta, person, history_.step(step).state);
        history_.move_to(step);
        return false;
    });
    finish(false);
}

bool command_runner::run_with(const std::string& entry, const command& action) {
    if (running_ || ended_) {
        return false;
    }
    const bool is_done = run_between(entry, action);
    emit recorded();
    finish(action == nullptr);
    return is_done;
}

/// The handler and the action, between which and after which nothing else runs.
bool command_runner::run_between(const std::string& entry, const command& action) {
    running_ = true;
    bool is_done = false;
    ended_ = run_command(program_, person_, [&] {
        leave_entry(program_, person_, entry);
        const bool ends = action != nullptr && action(program_, person_);
        is_done = true;
        return ends;
    });
    running_ = false;
    return is_done;
}

void command_runner::finish(bool is_left_entry) {
    note_command(is_left_entry);
    emit finished();
    if (ended_) {
        emit ended();
    }
}

bool command_runner::step(const std::function<void(program&)>& action) {
    if (running_ || ended_) {
        return false;
    }
    running_ = true;
    bool is_done = false;
    ended_ = run_view_step(program_, person_, [&] {
        action(program_);
        is_done = true;
    });
    running_ = false;
    if (is_done) {
        emit stepped();
    } else {
        emit stopped();
        emit finished();
    }
    if (ended_) {
        emit ended();
    }
    return is_done;
}

}  // namespace kvt
