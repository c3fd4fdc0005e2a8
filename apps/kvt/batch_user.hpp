// batch_user: the person on the other side when nobody sits there: messages are collected,
// questions get defaults.
#pragma once

#include "app/stages/silent_user.hpp"
#include "base/child_process.hpp"
#include "core/hints.hpp"

#include <cstdint>
#include <iosfwd>
#include <string_view>
#include <vector>

namespace kvt {

/// Messages and status lines go to the given stream, a carriage return in a message as a line
/// break. Other programs are started.
class batch_user : public silent_user {
  public:
    explicit batch_user(std::ostream& err) : err_(err) {}

    /// The hints of a run, a line each, behind everything that was told.
    void show_hints(const std::vector<hint>& hints, std::int16_t language);

    void show_message(std::string_view text) override;
    answer ask(std::string_view question, question_buttons buttons) override;
    void show_status(std::string_view text) override;
    void start_tool(const started_tool& tool) override;
    bool is_tool_running() override { return tool_.is_running(); }
    void end_tool() override { tool_.end(); }
    void start_detached(const started_tool& tool) override;
    bool wait(std::chrono::milliseconds time) override;

  private:
    std::ostream& err_;
    child_process tool_;
};

}  // namespace kvt
