// kvt_pictures: draws the pictures that are delivered with the program: the explanations in both
// languages, and the guide to the simulation exchange. Usage: kvt_pictures DESIGN.KVT OUT_FOLDER.
// The design is calculated and its ports designed; their drawing is the picture. Exit status 1 when
// the design is refused or a text can't be read.
#include "app/files/project_commands.hpp"
#include "app/program.hpp"
#include "app/stages/calculate_profiles.hpp"
#include "app/stages/design_ports.hpp"
#include "app/stages/silent_user.hpp"
#include "base/run_time_error.hpp"
#include "pictures/explanation_painting.hpp"
#include "pictures/gt_guide_painting.hpp"
#include "views/port_explanation.hpp"
#include "views/rotor_explanation.hpp"

#include <QGuiApplication>

#include <cstdio>

namespace {

constexpr int WIDTH = 1800;       ///< pixels; twice what a window shows, for dense screens
constexpr int JPEG_QUALITY = 95;  ///< thin lines stay clean

/// The design with its ports. A message means that it was refused. Without a folder of the program
/// no report of the ports is written.
bool calculate(const char* design, kvt::program& kavetta) {
    kvt::silent_user person;
    kvt::load_project(kavetta, person, design);
    const bool has_rotors = kvt::calculate_profiles(kavetta, person) == kvt::run_end::ok;
    const bool has_ports =
        has_rotors && kvt::design_ports(kavetta, person) == kvt::ports_designed{true, true, true};
    for (const std::string& message : person.messages()) {
        std::fprintf(stderr, "%s\n", message.c_str());
    }
    return has_ports && person.messages().empty();
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
