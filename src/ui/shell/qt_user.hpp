// qt_user: the person in front of the screen. Messages, questions and file dialogs are modal
// windows.
#pragma once

#include "app/desk/told_messages.hpp"
#include "app/files/examples.hpp"
#include "base/child_process.hpp"
#include "core/text_table.hpp"
#include "core/user.hpp"

#include <QPointer>
#include <QStatusBar>

#include <functional>
#include <memory>
#include <utility>
#include <vector>

class QMainWindow;
class QMessageBox;

namespace kvt {

struct program;

class progressfrm;

class qt_user : public user {
  public:
    explicit qt_user(const program& kavetta);

    /// The window that dialogs stand above, how to show the program's state before one appears, and
    /// how to load a form that is not there.
    void attach(QMainWindow* window, std::function<void()> refresh,
                std::function<void(std::string_view)> load);

    /// The delivered designs that the start prompt shows.
    void offer_examples(std::vector<delivered_example> examples) {
        examples_ = std::move(examples);
    }

    /// The user has edited an entry, or a command is over: what was told before may be told again.
    void entry_edited() { told_.entry_edited(); }
    void command_ended();

    /// A box; a line in the status bar when the text has stood in a box since the last change of an
    /// entry.
    void show_message(std::string_view text) override;
    answer ask(std::string_view question, question_buttons buttons) override;
    /// The main button is Go On; closing the box ends, and so does a failure before there is a main
    /// window to go on in.
    bool ask_to_go_on(std::string_view failure) override;
    std::optional<std::string> choose_file(const file_dialog& dialog) override;
    void open_file(std::string_view path) override;
    std::optional<std::string> ask_project_name() override;
    start_answer ask_new_or_open() override;
    std::optional<std::string> ask_modelling_package(std::string_view code) override;
    std::unique_ptr<report_printer> choose_printer(const print_request& request) override;
    void show_status(std::string_view text) override;
    void show_form(std::string_view form) override;
    void unload_form(std::string_view form) override;
    void set_focus(std::string_view control) override;
    void set_busy(bool busy) override;
    void show_progress(std::string_view text, int percent) override;
    void show_titled_progress(std::string_view title, int percent) override;
    void start_tool(const started_tool& tool) override {
        tool_.start(tool.program, tool.arguments, tool.folder);
    }
    bool is_tool_running() override { return tool_.is_running(); }
    void end_tool() override { tool_.end(); }
    void start_detached(const started_tool& tool) override {
        start_process(tool.program, tool.arguments, tool.folder, process_tie::own_session);
    }
    /// The windows are painted meanwhile; only progressfrm takes input, Esc there ends the wait.
    bool wait(std::chrono::milliseconds time) override;

  private:
    QWidget* parent() const;
    /// The child window or the chart of a name; nullptr while it is not loaded.
    QWidget* window_of(std::string_view form) const;
    QString button_text(message id) const;
    void prepare(QMessageBox& box, std::string_view text) const;
    void refresh() const;

    const program& kavetta_;
    QPointer<QMainWindow> window_;
    std::function<void()> refresh_;
    std::function<void(std::string_view)> load_;
    std::vector<delivered_example> examples_;
    QPointer<progressfrm> progress_;
    child_process tool_;
    told_messages told_;
    bool busy_ = false;
};

}  // namespace kvt
