// kvt_control_places: where the controls of the forms stand in the main window, so that the road
// test knows where to click. Usage: kvt_control_places SHARE_FOLDER. Prints "form control x y"
// lines: the middle of each control in pixels from the upper left corner of the main window, with
// the default layout. "MDIForm1" stands before the menus and, where they appear when their menu is
// open, the menu entries.
#include "app/desk/start_up.hpp"
#include "base/text_file.hpp"
#include "support/temporary_folder.hpp"
#include "ui/shell/application_style.hpp"
#include "ui/shell/desktop.hpp"

#include <QApplication>
#include <QMdiSubWindow>
#include <QMenuBar>

#include <cstdio>
#include <exception>

namespace {

constexpr int FROM_LEFT = 20;

void print_places(kvt::MDIForm1& window) {
    for (const QMdiSubWindow* form : window.findChildren<QMdiSubWindow*>()) {
        for (const QWidget* control : form->findChildren<QWidget*>()) {
            if (control->isVisible() && !control->objectName().isEmpty()) {
                const QPoint middle = control->mapTo(&window, control->rect().center());
                std::printf("%s %s %d %d\n", qPrintable(form->objectName()),
                            qPrintable(control->objectName()), middle.x(), middle.y());
            }
        }
    }
}

void print_place(const QString& name, const QPoint& middle) {
    std::printf("MDIForm1 %s %d %d\n", qPrintable(name), middle.x(), middle.y());
}

void print_menus(kvt::MDIForm1& window) {
    QMenuBar* bar = window.menuBar();
    for (QAction* title : bar->actions()) {
        const QRect place = bar->actionGeometry(title);
        print_place(title->menu()->objectName(), bar->mapTo(&window, place.center()));
        for (QAction* entry : title->menu()->actions()) {
            // Near the left end: a menu is as wide as its longest entry, which can be the path of a
            // project.
            const QRect row = title->menu()->actionGeometry(entry);
            const QPoint start(row.left() + FROM_LEFT, row.center().y());
            print_place(entry->objectName(), bar->mapTo(&window, place.bottomLeft() + start));
        }
    }
}

}  // namespace

int main(int argc, char** argv) try {
    QApplication application(argc, argv);
    if (argc != 2) {
        std::fputs("usage: kvt_control_places SHARE_FOLDER\n", stderr);
        return 2;
    }
    kvt::set_application_style(application);
    const kvt::temporary_folder folder;
    kvt::fill_program_folder(folder.path(), argv[1]);
    // A layout that can't be read gives the built-in one, at any size of the screen.
    kvt::write_file(folder.path() / "screen.ini", "");
    kvt::desktop desktop(folder.path());
    // A project in place of the prompt, which would wait for an answer.
    if (!desktop.start(folder.file("projects/engine_oil.KVT"))) {
        return 1;
    }
    QApplication::processEvents();
    print_places(desktop.window());
    print_menus(desktop.window());
    return 0;
} catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
}
