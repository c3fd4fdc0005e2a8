// kvt_screenshots: pictures of the program with a calculated design, in both languages, in a light and a dark palette.
// Usage: kvt_screenshots OUT_FOLDER PROJECT.KVT. With QT_SCALE_FACTOR=2 the pictures are those of a dense screen.
#include "app/calculate_profiles.hpp"
#include "core/text_file.hpp"
#include "ui/application_style.hpp"
#include "ui/desktop.hpp"
#include "ui/qt_text.hpp"

#include <QApplication>
#include <QTemporaryDir>

#include <cstdio>
#include <string>

namespace {

constexpr int WIDTH = 1040;
constexpr int HEIGHT = 640;

/// Starts the program in a folder of its own, opens the project, calculates, and saves a picture of the window.
bool take_picture(const std::string& project, char language, const QString& picture) {
    const QTemporaryDir folder;
    const std::filesystem::path path = kvt::utf8_text(folder.path());
    kvt::write_file(path / "KVT.ini", std::string("\r\n\r\n\r\n\r\n") + language + "\r\nmanual\r\n##\r\n");
    kvt::desktop desktop(path);
    desktop.program().window_rectangles.main_window_maximised = false;
    if (!desktop.start(project)) {
        return false;
    }
    desktop.window().resize(WIDTH, HEIGHT);
    desktop.runner().act([](kvt::program& kavetta, kvt::user& person) { kvt::calculate_profiles(kavetta, person); });
    QApplication::processEvents();
    return desktop.window().grab().save(picture);
}

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    if (argc != 3) {
        std::fputs("usage: kvt_screenshots OUT_FOLDER PROJECT.KVT\n", stderr);
        return 2;
    }
    kvt::set_application_style(application);
    const QPalette light = QApplication::palette();
    bool all_taken = true;
    for (const bool is_dark : {false, true}) {
        QApplication::setPalette(is_dark ? kvt::dark_palette() : light);
        for (const char language : {'1', '2'}) {
            const QString name = QString("%1/kavetta_%2_%3.png")
                                     .arg(argv[1], language == '1' ? "english" : "german", is_dark ? "dark" : "light");
            all_taken = take_picture(argv[2], language, name) && all_taken;
        }
    }
    return all_taken ? 0 : 1;
}
