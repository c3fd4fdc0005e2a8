// batch_user: the person on the other side when nobody sits there: messages are collected,
// questions get defaults.
#pragma once

#include "base/child_process.hpp"
#include "core/hints.hpp"
#include "core/report_printer.hpp"
#include "core/user.hpp"

#include <cstdint>
#include <iosfwd>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kvt {

/// Messages and status lines go to the given stream, a carriage return in a message as a line
/// break, and messages are kept as they are, in order. Every question is answered Yes (a value that
/// a question could drop is kept), every dialog is cancelled.
class batch_user : public user {
  public:
    explicit batch_user(std::ostream& err) : err_(err) {}

    const std::vector<std::string>& messages() const { return messages_; }

    /// The hints of a run, a line each, behind everything that was told.
    void show_hints(const std::vector<hint>& hints, std::int16_t language);

    void show_message(std::string_view text) override;
    answer ask(std::string_view question, question_buttons buttons) override;
    bool ask_to_go_on(std::string_view failure) override;
    std::optional<std::string> choose_file(const file_dialog& dialog) override;
    std::optional<std::string> ask_project_name() override;
    start_choice ask_new_or_open() override;
    std::optional<std::string> ask_modelling_package(std::string_view code) override;
    std::unique_ptr<report_printer> choose_printer(const print_request& request) override;
    void show_status(std::string_view text) override;
    void start_tool(const started_tool& tool) override;
    bool is_tool_running() override { return tool_.is_running(); }
    void end_tool() override { tool_.end(); }
    void start_detached(const started_tool& tool) override;
    bool wait(std::chrono::milliseconds time) override;

    // There are no windows, no other programs, no focus, no pointer and no progress bar.
    void open_file(std::string_view) override {}
    void show_form(std::string_view) override {}
    void unload_form(std::string_view) override {}
    void set_focus(std::string_view) override {}
    void set_busy(bool) override {}
    void show_progress(std::string_view, int) override {}
    void show_titled_progress(std::string_view, int) override {}

  private:
    std::ostream& err_;
    std::vector<std::string> messages_;
    child_process tool_;
};

}  // namespace kvt
