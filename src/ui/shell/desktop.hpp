// desktop: one running Kavetta with its windows, from the settings to the end.
#pragma once

#include "app/files/examples.hpp"
#include "app/program.hpp"
#include "ui/parts/entry_focus.hpp"
#include "ui/parts/entry_undo_keys.hpp"
#include "ui/parts/quiet_wheel.hpp"
#include "ui/shell/MDIForm1.hpp"
#include "ui/shell/chart_windows.hpp"
#include "ui/shell/command_runner.hpp"
#include "ui/shell/handover_server.hpp"
#include "ui/shell/qt_language.hpp"
#include "ui/shell/qt_user.hpp"
#include "ui/shell/splashform.hpp"

#include <QTimer>

#include <filesystem>
#include <memory>
#include <string>

namespace kvt {

class desktop {
  public:
    /// folder is the program's folder, already filled.
    explicit desktop(const std::filesystem::path& folder);

    /// Reads the settings and shows the splash picture; when its time is over the program starts.
    /// False when the program ended meanwhile.
    bool show_splash(const std::string& path = {});

    /// Asks new or open (or opens the project of path in its place), reads the layout, then shows
    /// the windows; from then on changed entries are saved every 30 s. Reads the settings first
    /// when that was not done. False when the program ended meanwhile.
    bool start(const std::string& path = {});

    /// The start prompt shows the projects of a folder as examples.
    void offer_examples(const std::filesystem::path& folder) {
        person_.offer_examples(delivered_examples(folder));
    }

    /// From now on later starts of the program hand their projects over at this place: one that is
    /// open here already, and one that can be opened without a loss.
    void take_projects(const QString& place);

    kvt::program& program() { return program_; }
    command_runner& runner() { return runner_; }
    MDIForm1& window() { return window_; }
    /// The timer that saves changed entries.
    QTimer& autosave_timer() { return autosave_timer_; }

  private:
    void follow_commands();
    void load_form(std::string_view form);
    bool load();
    void save_unsaved();
    handover_answer answer_to(const std::string& project) const;
    void open_handed(const std::string& project, const QByteArray& token);

    kvt::program program_;
    qt_user person_;
    command_runner runner_;
    entry_focus entry_focus_;
    entry_undo_keys entry_undo_keys_;
    quiet_wheel quiet_wheel_;
    qt_language qt_language_;
    MDIForm1 window_;
    chart_windows charts_;
    std::unique_ptr<splashform> splash_;
    QTimer autosave_timer_;
    std::unique_ptr<handover_server> handover_;
    std::string start_path_;
    bool is_loaded_ = false;
    bool is_started_ = false;
};

}  // namespace kvt
