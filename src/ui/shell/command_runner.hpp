// Runs the commands of the desktop program, one at a time: first the leave handler of the entry in
// use, then the command, then every form is refreshed.
#pragma once

#include "app/history/edit_history.hpp"

#include <QObject>

#include <functional>
#include <string>

namespace kvt {

class user;
struct program;

class command_runner : public QObject {
    Q_OBJECT

  public:
    /// A command. True when the program ends.
    using command = std::function<bool(program&, user&)>;

    command_runner(program& kavetta, user& person);

    /// Runs a command unless one is running, the program has ended, or the handler of the entry
    /// that was left has just failed.
    void run(const command& action);
    /// The same for a command after which the program goes on.
    void act(const std::function<void(program&, user&)>& action);

    /// Runs a step of the Design view, e.g. a tick of a held button, under the same rule. No entry
    /// is left for it and no form shown anew: the view takes it over itself. True when it ran and
    /// the program goes on; a failure is that of a command, and one that is gone on after ends what
    /// makes the steps.
    bool step(const std::function<void(program&)>& action);

    /// An entry was edited: who follows the typing shows its state anew.
    void note_edit();

    /// The steps that can be undone; none before begin_history.
    const edit_history& history() const { return history_; }
    /// What is typed and chosen from now on can be undone.
    void begin_history();
    /// Goes back or forward to what stood behind a step of the history. No entry is left for it.
    void go_to_step(std::size_t step);

    bool is_running() const { return running_; }
    bool has_ended() const { return ended_; }

    /// The user has entered an entry: its leave handler is due before the next command. Empty: no
    /// entry is in use.
    void use_entry(const std::string& name);
    const std::string& entry_in_use() const { return entry_in_use_; }
    /// The user has left an entry: its handler runs from the event loop, not inside the change of
    /// focus.
    void leave(const std::string& name);

  signals:
    /// A command begins: what goes on by itself stops. Not for a step, nor for the handler of an
    /// entry that was left.
    void starting();
    void edited();
    /// A step is done: what follows the Design view shows it anew.
    void stepped();
    /// A step has failed: what makes steps stops.
    void stopped();
    /// A command has run, which may have changed the records; not for a step of the history.
    void recorded();
    /// Forms show the program's state anew.
    void finished();
    /// The program ends; nothing is asked any more.
    void ended();

  private:
    /// False when the handler failed: then nothing follows it.
    bool run_left_entry();
    /// No action: the handler of the entry alone.
    bool run_with(const std::string& entry, const command& action);
    bool run_between(const std::string& entry, const command& action);
    void finish(bool is_left_entry);
    edited_state present_state() const;
    void note_command(bool is_left_entry);

    program& program_;
    user& person_;
    bool running_ = false;
    bool ended_ = false;
    std::string entry_in_use_;
    std::string left_entry_;
    edit_history history_;
};

}  // namespace kvt
