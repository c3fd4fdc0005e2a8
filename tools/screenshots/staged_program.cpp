#include "screenshots/staged_program.hpp"

#include "app/desk/start_up.hpp"
#include "app/program.hpp"
#include "app/stages/calculate_performance.hpp"
#include "app/stages/calculate_profiles.hpp"
#include "app/stages/design_ports.hpp"
#include "app/windows/result_charts.hpp"
#include "base/text_file.hpp"
#include "ui/shell/qt_text.hpp"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>

namespace kvt {

namespace {

constexpr int WIDTH = 1040;
constexpr int HEIGHT = 800;
constexpr int WATCH_MS = 20;

}  // namespace

staged_program::staged_program(const std::string& share, const std::string& project,
                               std::int16_t language) {
    const std::filesystem::path path = utf8_text(folder_.path());
    fill_program_folder(path, share);
    write_file(path / "KVT.ini",
               "\r\n\r\n\r\n\r\n" + std::to_string(language) + "\r\nmanual\r\n##\r\n");
    QObject::connect(&watch_, &QTimer::timeout, [this] { close_dialog(); });
    watch_.start(WATCH_MS);
    desktop_ = std::make_unique<desktop>(path);
    program().window_rectangles.main_window_maximised = false;
    // A copy: Design Ports writes its report beside the project.
    const std::filesystem::path copy =
        path / "projects" / std::filesystem::path(project).filename();
    write_file(copy, read_file(project));
    desktop_->start(copy.string());
    window().showNormal();
    window().resize(WIDTH, HEIGHT);
    settle();
}

bool staged_program::calculate_rotors() {
    bool done = false;
    runner().act([&done](kvt::program& kavetta, user& person) {
        done = calculate_profiles(kavetta, person) == run_end::ok;
    });
    settle();
    return done;
}

bool staged_program::calculate() {
    bool done = calculate_rotors();
    runner().act([&done](kvt::program& kavetta, user& person) {
        const ports_designed ports = design_ports(kavetta, person);
        done = done && ports.inlet && ports.outlet;
        done = done && calculate_performance(kavetta, person);
        for (const char* form : {"explain", "port_explain", "result_tables", "exact_figures"}) {
            person.show_form(form);
        }
    });
    // The last of the exact figures.
    await([this] {
        return program().exact_record.results.state_of(exact_part::timing) != part_state::waiting;
    });
    settle();
    return done;
}

void staged_program::await(const std::function<bool()>& is_so) {
    constexpr qint64 LONGEST_WAIT_MS = 60000;
    QElapsedTimer clock;
    clock.start();
    while (!is_so() && clock.elapsed() < LONGEST_WAIT_MS) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, WATCH_MS);
    }
}

void staged_program::open_charts() {
    runner().act([](kvt::program& kavetta, user& person) {
        for (const chart_row& chart : chart_rows()) {
            const entry_field* box = find_entry(find_form(chart.form)->opened_by);
            kavetta.entries.*box->member = "1";
        }
        create_charts(kavetta, person);
    });
    settle();
}

QPixmap staged_program::dialog_of(const QString& menu_entry) {
    last_dialog_ = QPixmap();
    if (auto* entry = window().findChild<QAction*>(menu_entry)) {
        entry->trigger();
        settle();
    }
    return last_dialog_;
}

void staged_program::settle() {
    for (int round = 0; round < 5; ++round) {
        QApplication::processEvents();
    }
}

void staged_program::close_dialog() {
    if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
        last_dialog_ = dialog->grab();
        dialog->reject();
    }
}

}  // namespace kvt
