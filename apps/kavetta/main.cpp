// kavetta: the desktop program.
#include "app/desk/run_command.hpp"
#include "app/desk/start_up.hpp"
#include "base/run_time_error.hpp"
#include "core/app_state.hpp"
#include "core/failure_text.hpp"
#include "ui/shell/application_style.hpp"
#include "ui/shell/desktop.hpp"
#include "ui/shell/hand_over.hpp"
#include "ui/shell/qt_path.hpp"
#include "ui/shell/qt_text.hpp"

#include <QApplication>
#include <QFileInfo>
#include <QMessageBox>

#include <filesystem>
#include <optional>

namespace {

/// The share folder beside the installed program, else the one of the build.
std::filesystem::path share_folder() {
    const std::filesystem::path beside =
        kvt::path_of_qt(QApplication::applicationDirPath()) / KVT_INSTALLED_SHARE_FOLDER;
    std::error_code error;
    return std::filesystem::is_directory(beside, error) ? beside
                                                        : kvt::path_of_utf8(KVT_SHARE_FOLDER);
}

/// The program's folder, filled with the delivered files that are missing. Nothing when that fails:
/// the user is told.
std::optional<std::filesystem::path> filled_program_folder() {
    try {
        const std::filesystem::path folder = kvt::program_folder();
        kvt::fill_program_folder(folder, share_folder());
        return folder;
    } catch (const kvt::run_time_error& error) {
        const std::string text(kvt::failure_text(error.kind(), kvt::ENGLISH));
        QMessageBox::critical(nullptr, kvt::qt_text("Kavetta"),
                              kvt::qt_text(std::to_string(error.number()) + ": " + text + "\n" +
                                           text + ": " + error.detail()));
        return std::nullopt;
    }
}

/// The project named on the command line as a full path; empty without one.
std::string project_argument() {
    const QStringList arguments = QApplication::arguments();
    return arguments.size() < 2 ? std::string()
                                : kvt::native_path_text(QFileInfo(arguments[1]).absoluteFilePath());
}

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    kvt::set_application_style(application);
    const std::optional<std::filesystem::path> folder = filled_program_folder();
    if (!folder) {
        return 1;
    }
    const std::string project = project_argument();
    const QString place = kvt::handover_place(*folder);
    std::optional<kvt::file_lock> turn = kvt::wait_for_handover_turn(place);
    if (!project.empty() && kvt::hand_over(place, project)) {
        return 0;
    }
    kvt::desktop desktop(*folder);
    desktop.offer_examples(share_folder() / "projects");
    desktop.take_projects(place);
    turn.reset();
    // The end of the program raises no further close events.
    QObject::connect(&desktop.runner(), &kvt::command_runner::ended, [] { QApplication::exit(0); });
    return desktop.show_splash(project) ? QApplication::exec() : 0;
}
