// silent_user: nobody on the other side of a command. Messages are kept, every question is answered
// Yes (a value that a question could drop is kept), every dialog is cancelled, a failure ends.
#pragma once

#include "core/report_printer.hpp"
#include "core/user.hpp"

#include <memory>
#include <string>
#include <vector>

namespace kvt {

class silent_user : public user {
  public:
    const std::vector<std::string>& messages() const { return messages_; }

    void show_message(std::string_view text) override { messages_.emplace_back(text); }
    answer ask(std::string_view, question_buttons) override { return answer::yes; }
    bool ask_to_go_on(std::string_view failure) override {
        show_message(failure);
        return false;
    }
    std::optional<std::string> choose_file(const file_dialog&) override { return std::nullopt; }
    std::optional<std::string> ask_project_name() override { return std::nullopt; }
    start_answer ask_new_or_open() override { return {}; }
    std::optional<std::string> ask_modelling_package(std::string_view) override {
        return std::nullopt;
    }
    std::unique_ptr<report_printer> choose_printer(const print_request&) override {
        return nullptr;
    }
    void show_status(std::string_view) override {}
    void open_file(std::string_view) override {}
    void show_form(std::string_view) override {}
    void unload_form(std::string_view) override {}
    void set_focus(std::string_view) override {}
    void set_busy(bool) override {}
    void show_progress(std::string_view, int) override {}
    void show_titled_progress(std::string_view, int) override {}
    void start_tool(const started_tool&) override {}
    bool is_tool_running() override { return false; }
    void end_tool() override {}
    void start_detached(const started_tool&) override {}
    bool wait(std::chrono::milliseconds) override { return true; }

  private:
    std::vector<std::string> messages_;
};

}  // namespace kvt
