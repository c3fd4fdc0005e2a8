// scripted_user: a user for tests that answers from a script and keeps a log of everything a
// command did to it.
#pragma once

#include "base/path_text.hpp"
#include "core/report_printer.hpp"
#include "core/user.hpp"

#include <deque>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kvt {

class scripted_user : public user {
  public:
    std::vector<std::string> messages;  ///< the texts of the message boxes, in order
    std::vector<std::string> questions;
    std::vector<std::string> statuses;
    std::vector<std::string>
        log;  ///< everything, one line a call: "unload perf_res", "focus ecc", ...
    std::vector<file_dialog> dialogs;   ///< the dialogs that were shown
    std::vector<print_request> prints;  ///< the print dialogs that were shown
    // The script. A question, dialog or prompt that the script does not foresee throws.
    std::deque<answer> answers;
    std::deque<std::optional<std::string>> files;
    std::deque<std::optional<std::string>> project_names;
    std::deque<start_answer> start_answers;
    std::deque<std::optional<std::string>> packages;  ///< codes chosen on Form4; nothing cancels
    std::deque<std::unique_ptr<report_printer>> printers;
    /// For failures; without an entry the program ends.
    std::deque<bool> going_on;

    void show_message(std::string_view text) override {
        messages.emplace_back(text);
        log.push_back("message " + std::string(text));
    }
    answer ask(std::string_view question, question_buttons) override {
        questions.emplace_back(question);
        log.push_back("ask " + std::string(question));
        return next(answers);
    }
    bool ask_to_go_on(std::string_view failure) override {
        show_message(failure);
        return !going_on.empty() && next(going_on);
    }
    std::optional<std::string> choose_file(const file_dialog& dialog) override {
        dialogs.push_back(dialog);
        log.push_back("dialog " + dialog.title);
        return next(files);
    }
    void open_file(std::string_view path) override { log.push_back("open " + std::string(path)); }
    std::optional<std::string> ask_project_name() override {
        log.emplace_back("project name");
        return next(project_names);
    }
    start_answer ask_new_or_open() override {
        log.emplace_back("new or open");
        return next(start_answers);
    }
    std::optional<std::string> ask_modelling_package(std::string_view code) override {
        log.push_back("modelling package " + std::string(code));
        return next(packages);
    }
    std::unique_ptr<report_printer> choose_printer(const print_request& request) override {
        prints.push_back(request);
        log.push_back("print " + request.document);
        return next(printers);
    }
    void show_status(std::string_view text) override {
        statuses.emplace_back(text);
        log.push_back("status " + std::string(text));
    }
    void show_form(std::string_view form) override { log.push_back("show " + std::string(form)); }
    void unload_form(std::string_view form) override {
        log.push_back("unload " + std::string(form));
    }
    void set_focus(std::string_view control) override {
        log.push_back("focus " + std::string(control));
    }
    void set_busy(bool busy) override { log.emplace_back(busy ? "busy" : "not busy"); }
    void show_progress(std::string_view text, int percent) override {
        log.push_back("progress " + std::string(text) + " " + std::to_string(percent));
    }
    void show_titled_progress(std::string_view title, int percent) override {
        log.push_back("titled progress " + std::string(title) + " " + std::to_string(percent));
    }
    // Programs are only named, and have ended at once.
    void start_tool(const started_tool& tool) override { log.push_back("start " + line_of(tool)); }
    bool is_tool_running() override { return false; }
    void end_tool() override {}
    void start_detached(const started_tool& tool) override {
        log.push_back("detached " + line_of(tool));
    }
    bool wait(std::chrono::milliseconds) override { return true; }

  protected:
    static std::string line_of(const started_tool& tool) {
        std::string line = utf8_of_path(tool.program);
        for (const std::string& argument : tool.arguments) {
            line += " " + argument;
        }
        return line;
    }

  private:
    template <typename value>
    static value next(std::deque<value>& script) {
        if (script.empty()) {
            throw std::logic_error("the script of the user has no further answer");
        }
        value first = std::move(script.front());
        script.pop_front();
        return first;
    }
};

}  // namespace kvt
