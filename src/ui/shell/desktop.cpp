#include "ui/shell/desktop.hpp"

#include "app/desk/autosave.hpp"
#include "app/desk/layout_commands.hpp"
#include "app/desk/start_up.hpp"
#include "app/files/project_commands.hpp"
#include "app/models/built_in_modeller.hpp"
#include "app/program.hpp"
#include "automation/system_host.hpp"
#include "views/charts/result_chart.hpp"

#include <QApplication>
#include <QLocale>

namespace kvt {

desktop::desktop(const std::filesystem::path& folder)
    : person_(program_),
      runner_(program_, person_),
      entry_focus_(runner_),
      window_(form_context{program_, runner_, person_}),
      charts_(form_context{program_, runner_, person_}) {
    program_.folder = folder;
    program_.packages = automation::system_host();
    program_.modeller = std::make_shared<built_in_modeller>();
    program_.decimal_mark = QLocale().decimalPoint() == "," ? ',' : '.';
    autosave_timer_.setObjectName("autosave_timer");
    QObject::connect(&autosave_timer_, &QTimer::timeout, &autosave_timer_,
                     [this] { save_unsaved(); });
    follow_commands();
    person_.attach(
        &window_, [this] { window_.refresh(); },
        [this](std::string_view form) { load_form(form); });
}

void desktop::load_form(std::string_view form) {
    if (const chart_row* chart = find_chart(form)) {
        charts_.load(*chart);
    } else {
        window_.load_child(form);
    }
}

void desktop::follow_commands() {
    QObject::connect(&runner_, &command_runner::edited, &runner_,
                     [this] { person_.entry_edited(); });
    QObject::connect(&runner_, &command_runner::finished, &runner_, [this] {
        person_.command_ended();
        qt_language_.follow(program_.app_state.language);
    });
}

bool desktop::load() {
    if (!is_loaded_) {
        is_loaded_ = true;
        runner_.act([](kvt::program& kavetta, user&) { load_settings(kavetta); });
    }
    return !runner_.has_ended();
}

bool desktop::show_splash(const std::string& path) {
    if (!load()) {
        return false;
    }
    start_path_ = path;
    splash_ = std::make_unique<splashform>();
    QObject::connect(splash_.get(), &splashform::elapsed, splash_.get(), [this, path] {
        start(path);
        splash_->close();
    });
    splash_->show();
    return true;
}

bool desktop::start(const std::string& path) {
    if (!load()) {
        return false;
    }
    start_layout layout;
    runner_.act([&](kvt::program& kavetta, user& person) {
        // The first touch of the Design form, in the middle of the layout, brings the prompt.
        start_project(kavetta, person, path);
        layout = show_start_layout(kavetta, person);
    });
    if (runner_.has_ended()) {
        return false;
    }
    runner_.begin_history();
    window_.show_start(layout);
    is_started_ = true;
    autosave_timer_.start(AUTOSAVE_INTERVAL_MS);
    return true;
}

void desktop::take_projects(const QString& place) {
    handover_ = std::make_unique<handover_server>(
        place, [this](const std::string& project) { return answer_to(project); });
    QObject::connect(handover_.get(), &handover_server::handed_over, handover_.get(),
                     [this](const std::string& project, const QByteArray& token) {
                         open_handed(project, token);
                     });
}

handover_answer desktop::answer_to(const std::string& project) const {
    if (!is_started_) {
        return answer_early_handover(start_path_, project);
    }
    const bool is_busy =
        runner_.is_running() || runner_.has_ended() || QApplication::activeModalWidget() != nullptr;
    return answer_handover(program_, project, is_busy);
}

void desktop::open_handed(const std::string& project, const QByteArray& token) {
    if (!is_started_) {
        return;  // the window is about to come
    }
    if (answer_to(project) == handover_answer::takes) {
        runner_.act([&project](kvt::program& kavetta, user& person) {
            open_project_file(kavetta, person, project);
        });
    }
    window_.come_to_front(token);
}

/// A command that waits for an answer has its entries in the middle of a change.
void desktop::save_unsaved() {
    if (!runner_.is_running() && !runner_.has_ended()) {
        autosave(program_);
    }
}

}  // namespace kvt
