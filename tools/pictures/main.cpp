// kvt_pictures: draws the pictures that are delivered with the program: the explanations in both
// languages, and the guide to the simulation exchange. Usage: kvt_pictures DESIGN.KVT OUT_FOLDER.
// The design is calculated and its ports designed; their drawing is the picture. Exit status 1 when
// the design is refused or a text can't be read.
#include "app/files/project_commands.hpp"
#include "app/program.hpp"
#include "app/stages/calculate_profiles.hpp"
#include "app/stages/design_ports.hpp"
#include "base/run_time_error.hpp"
#include "core/report_printer.hpp"
#include "core/user.hpp"
#include "pictures/explanation_painting.hpp"
#include "pictures/gt_guide_painting.hpp"
#include "views/port_explanation.hpp"
#include "views/rotor_explanation.hpp"

#include <QGuiApplication>
#include <QTemporaryDir>

#include <cstdio>

namespace {

constexpr int WIDTH = 1800;       ///< pixels; twice what a window shows, for dense screens
constexpr int JPEG_QUALITY = 95;  ///< thin lines stay clean

/// Nobody is there to answer; a message means that the design was refused.
class silent_user : public kvt::user {
  public:
    void show_message(std::string_view text) override {
        std::fprintf(stderr, "%.*s\n", static_cast<int>(text.size()), text.data());
        has_refused = true;
    }
    kvt::answer ask(std::string_view, kvt::question_buttons) override {
        return kvt::answer::cancel;
    }
    bool ask_to_go_on(std::string_view failure) override {
        show_message(failure);
        return false;
    }
    std::optional<std::string> choose_file(const kvt::file_dialog&) override {
        return std::nullopt;
    }
    void open_file(std::string_view) override {}
    std::unique_ptr<kvt::report_printer> choose_printer(const kvt::print_request&) override {
        return nullptr;
    }
    std::optional<std::string> ask_project_name() override { return std::nullopt; }
    kvt::start_choice ask_new_or_open() override { return kvt::start_choice::neither; }
    std::optional<std::string> ask_modelling_package(std::string_view) override {
        return std::nullopt;
    }
    void show_status(std::string_view) override {}
    void show_form(std::string_view) override {}
    void unload_form(std::string_view) override {}
    void set_focus(std::string_view) override {}
    void set_busy(bool) override {}
    void show_progress(std::string_view, int) override {}
    void show_titled_progress(std::string_view, int) override {}
    void start_tool(const kvt::started_tool&) override {}
    bool is_tool_running() override { return false; }
    void end_tool() override {}
    void start_detached(const kvt::started_tool&) override {}
    bool wait(std::chrono::milliseconds) override { return true; }

    bool has_refused = false;
};

/// The design with its ports. The report of the ports goes to a folder that does not stay.
bool calculate(const char* design, kvt::program& kavetta) {
    const QTemporaryDir folder;
    silent_user person;
    kvt::load_project(kavetta, person, design);
    kavetta.folder = folder.path().toStdString();
    kavetta.app_state.projects_folder = folder.path().toStdString();
    const bool has_rotors = kvt::calculate_profiles(kavetta, person) == kvt::run_end::ok;
    return has_rotors &&
           kvt::design_ports(kavetta, person) == kvt::ports_designed{true, true, true} &&
           !person.has_refused;
}

bool write(const kvt::explanation& drawing, std::int16_t language, const QString& path) {
    const kvt::painted_explanation painted = kvt::paint_explanation(drawing, WIDTH, language);
    const std::vector<std::string> findings = kvt::unreadable_texts(painted);
    for (const std::string& finding : findings) {
        std::fprintf(stderr, "%s: %s\n", qPrintable(path), finding.c_str());
    }
    return painted.picture.save(path, "JPG", JPEG_QUALITY) && findings.empty();
}

bool write_pictures(const kvt::program& kavetta, const QString& folder) {
    const kvt::explanation rotors =
        kvt::explain_rotors(kavetta.design_params, kavetta.rotor_profiles);
    const kvt::explanation ports =
        kvt::explain_ports(kavetta.design_params, kavetta.rotor_profiles, kavetta.port_params);
    bool all_written = write(rotors, kvt::ENGLISH, folder + "/explain screen - small1.jpg");
    all_written =
        write(rotors, kvt::GERMAN, folder + "/explain screen - small german1.jpg") && all_written;
    all_written = write(ports, kvt::ENGLISH, folder + "/port explain - small2.jpg") && all_written;
    return write(ports, kvt::GERMAN, folder + "/port explain - small german2.jpg") && all_written;
}

bool write_gt_guide(const QString& folder) {
    constexpr int GUIDE_WIDTH = 1440;
    bool all_written = true;
    for (int screen = 1; screen <= kvt::GT_GUIDE_SCREENS; ++screen) {
        all_written = kvt::paint_gt_guide(screen, GUIDE_WIDTH)
                          .save(QString("%1/GT_screen_%2.jpg").arg(folder).arg(screen), "JPG",
                                JPEG_QUALITY) &&
                      all_written;
    }
    return all_written;
}

}  // namespace

int main(int argc, char** argv) {
    QGuiApplication application(argc, argv);
    if (argc != 3) {
        std::fputs("usage: kvt_pictures DESIGN.KVT OUT_FOLDER\n", stderr);
        return 2;
    }
    try {
        kvt::program kavetta;
        return calculate(argv[1], kavetta) && write_pictures(kavetta, argv[2]) &&
                       write_gt_guide(argv[2])
                   ? 0
                   : 1;
    } catch (const kvt::run_time_error& error) {
        std::fprintf(stderr, "%s: %s\n", argv[1], error.what());
        return 1;
    }
}
