#include "ui/shell/command_runner.hpp"

#include "app/desk/command_hints.hpp"
#include "app/desk/run_command.hpp"
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
    return left_entry_.empty() || running_ ||
           run_with(std::exchange(left_entry_, {}), [](program&, user&) { return false; });
}

bool command_runner::run_with(const std::string& entry, const command& action) {
    if (running_ || ended_) {
        return false;
    }
    running_ = true;
    bool is_done = false;
    ended_ = run_command(program_, person_, [&] {
        leave_entry(program_, person_, entry);
        const bool ends = action(program_, person_);
        is_done = true;
        return ends;
    });
    running_ = false;
    emit finished();
    if (ended_) {
        emit ended();
    }
    return is_done;
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
