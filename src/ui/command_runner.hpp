// Runs the commands of the desktop program, one at a time: first the leave handler of the entry in use, then the
// command, then every form is refreshed.
#pragma once

#include "app/program.hpp"

#include <QObject>

#include <functional>
#include <string>

namespace kvt {

class command_runner : public QObject {
    Q_OBJECT

  public:
    /// A command. True when the program ends.
    using command = std::function<bool(program&, user&)>;

    command_runner(program& kavetta, user& person);

    /// Runs a command unless one is running or the program has ended.
    void run(const command& action);
    /// The same for a command after which the program goes on.
    void act(const std::function<void(program&, user&)>& action);

    bool is_running() const { return running_; }
    bool has_ended() const { return ended_; }

    /// The user has entered an entry: its leave handler is due before the next command. Empty: no entry is in use.
    void use_entry(const std::string& name);
    /// The user has left an entry: its handler runs from the event loop, not inside the change of focus.
    void leave(const std::string& name);

  signals:
    /// Forms show the program's state anew.
    void finished();
    /// The program ends; nothing is asked any more.
    void ended();

  private:
    void run_left_entry();
    void run_with(const std::string& entry, const command& action);

    program& program_;
    user& person_;
    bool running_ = false;
    bool ended_ = false;
    std::string entry_in_use_;
    std::string left_entry_;
};

}  // namespace kvt
