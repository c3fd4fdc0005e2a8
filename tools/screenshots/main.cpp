// kvt_screenshots: pictures of the running program.
//   kvt_screenshots guide SHARE PROJECT.KVT OUT     the pictures of the user's guide, English
//   kvt_screenshots pieces SHARE PROJECT.KVT OUT    every form, both languages, palettes of
//   desktops kvt_screenshots sheets PIECES OUT               one contact sheet a form from such
//   pieces
// SHARE is the folder of the delivered files. With QT_SCALE_FACTOR=2 the pictures are those of a
// dense screen.
#include "app/stages/design_assist.hpp"
#include "base/run_time_error.hpp"
#include "core/app_state.hpp"
#include "screenshots/contact_sheets.hpp"
#include "screenshots/desktop_palettes.hpp"
#include "screenshots/form_pictures.hpp"
#include "ui/shell/application_style.hpp"

#include <QApplication>
#include <QDir>
#include <QMdiSubWindow>
#include <QStatusBar>

#include <cmath>
#include <cstdio>
#include <string>

namespace {

bool save(const kvt::form_pictures& pictures, const QDir& folder) {
    bool all_saved = !pictures.empty();
    for (const auto& [name, picture] : pictures) {
        all_saved = picture.save(folder.filePath(name + ".png")) && all_saved;
    }
    return all_saved;
}

/// The pictures before the ports: the rotors alone, and the Design form with its assist.
kvt::form_pictures early_pictures(kvt::staged_program& stage) {
    stage.calculate_rotors();
    kvt::form_pictures pictures;
    pictures["viewwinfrm_rotors"] = kvt::pictures_of_children(stage.window())["viewwinfrm"];
    stage.runner().act([](kvt::program& kavetta, kvt::user&) { kvt::set_assist(kavetta, true); });
    kvt::staged_program::settle();
    pictures["Form1_assist"] = kvt::pictures_of_children(stage.window())["Form1"];
    stage.runner().act([](kvt::program& kavetta, kvt::user&) { kvt::set_assist(kavetta, false); });
    return pictures;
}

/// The main window with the five windows that are always there.
QPixmap picture_of_workplace(kvt::staged_program& stage) {
    for (const char* name :
         {"explain", "port_explain", "perf_res", "result_tables", "exact_figures"}) {
        if (auto* form = stage.window().findChild<QMdiSubWindow*>(name)) {
            form->hide();
        }
    }
    kvt::staged_program::settle();
    // It names the folder of this run.
    stage.window().statusBar()->clearMessage();
    return stage.window().grab();
}

/// Dialogs that need a command's context are opened by their menu entries.
kvt::form_pictures pictures_of_all_dialogs(kvt::staged_program& stage) {
    kvt::form_pictures pictures = kvt::pictures_of_dialogs(stage.program());
    if (const QPixmap cnc = stage.dialog_of("mnudatacnc"); !cnc.isNull()) {
        pictures["Form3"] = cnc;
    }
    if (const QPixmap packages = stage.dialog_of("mnumodelpackage"); !packages.isNull()) {
        pictures["Form4"] = packages;
    }
    return pictures;
}

bool take_guide_pictures(const std::string& share, const std::string& project, const QDir& out) {
    kvt::staged_program stage(share, project, kvt::ENGLISH);
    kvt::form_pictures pictures = early_pictures(stage);
    const bool calculated = stage.calculate();
    pictures.merge(kvt::pictures_of_children(stage.window()));
    pictures.merge(pictures_of_all_dialogs(stage));
    stage.open_charts();
    pictures.merge(kvt::pictures_of_charts());
    pictures.merge(kvt::pictures_of_study(stage));
    pictures["workplace"] = picture_of_workplace(stage);
    return save(pictures, out) && calculated;
}

bool take_pieces(const std::string& share, const std::string& project, const QDir& out) {
    const int percent = static_cast<int>(std::lround(qApp->devicePixelRatio() * 100.0));
    bool all_taken = true;
    for (const kvt::desktop_palette& desktop : kvt::desktop_palettes()) {
        QApplication::setPalette(desktop.palette);
        for (const std::int16_t language : {kvt::ENGLISH, kvt::GERMAN}) {
            kvt::staged_program stage(share, project, language);
            all_taken = stage.calculate() && all_taken;
            kvt::form_pictures pictures = kvt::pictures_of_children(stage.window());
            pictures.merge(pictures_of_all_dialogs(stage));
            stage.open_charts();
            pictures.merge(kvt::pictures_of_charts());
            pictures.merge(kvt::pictures_of_study(stage));
            pictures["MDIForm1"] = picture_of_workplace(stage);
            kvt::form_pictures pieces;
            for (const auto& [name, picture] : pictures) {
                const QString piece = kvt::piece_name(
                    name, language == kvt::ENGLISH ? "english" : "german", desktop.name, percent);
                pieces[piece.chopped(4)] = picture;
            }
            all_taken = save(pieces, out) && all_taken;
        }
    }
    return all_taken;
}

int usage() {
    std::fputs(
        "usage: kvt_screenshots guide|pieces SHARE PROJECT.KVT OUT\n"
        "       kvt_screenshots sheets PIECES OUT\n",
        stderr);
    return 2;
}

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    kvt::set_application_style(application);
    const std::string mode = argc > 1 ? argv[1] : "";
    const QDir out(argc > 1 ? argv[argc - 1] : "");
    try {
        if (mode == "guide" && argc == 5) {
            return take_guide_pictures(argv[2], argv[3], out) ? 0 : 1;
        }
        if (mode == "pieces" && argc == 5) {
            return take_pieces(argv[2], argv[3], out) ? 0 : 1;
        }
        if (mode == "sheets" && argc == 4) {
            return kvt::write_contact_sheets(argv[2], argv[3]) > 0 ? 0 : 1;
        }
    } catch (const kvt::run_time_error& error) {
        std::fprintf(stderr, "kvt_screenshots: %s\n", error.what());
        return 1;
    }
    return usage();
}
