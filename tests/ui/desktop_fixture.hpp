// A running desktop program with a folder of its own, its dialogs answered by a robot.
#pragma once

#include "base/path_text.hpp"
#include "base/text_file.hpp"
#include "support/temporary_folder.hpp"
#include "ui/dialog_robot.hpp"
#include "ui/shell/desktop.hpp"
#include "ui/shell/qt_text.hpp"
#include "ui/typing.hpp"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QRadioButton>
#include <QStatusBar>
#include <QTest>

#include <gtest/gtest.h>
#include <string>

namespace kvt {

/// The folder of the examples that the start prompt shows.
inline const std::filesystem::path DELIVERED_PROJECTS =
    std::filesystem::path(KVT_SHARE_FOLDER) / "projects";

/// The delivered designs with known results.
inline std::string design_file(const std::string& name) {
    return std::string(KVT_TEST_DATA) + "/designs/" + name + ".KVT";
}

class desktop_test : public testing::Test {
  protected:
    desktop_test() {
        std::filesystem::create_directories(folder.path() / "projects");
        write_settings('1');
        // A layout that can't be read gives the built-in one, at any size of the screen.
        write_file(folder.path() / "screen.ini", "");
    }

    void TearDown() override { EXPECT_EQ(robot.surprises, std::vector<std::string>()); }

    void write_settings(char language) {
        write_file(folder.path() / "KVT.ini",
                   std::string("\r\n\r\n\r\n\r\n") + language + "\r\nmanual\r\n##\r\n");
    }

    /// Starts with the prompt closed, or with a project.
    void start(const std::string& path = {}) {
        program_on_screen = std::make_unique<desktop>(folder.path());
        if (path.empty()) {
            robot.prompts.emplace_back("");
        }
        program_on_screen->start(path);
        if (!program_on_screen->runner().has_ended()) {
            window().activateWindow();
            EXPECT_TRUE(QTest::qWaitForWindowActive(&window()));
        }
    }

    desktop& desk() { return *program_on_screen; }
    MDIForm1& window() { return desk().window(); }
    kvt::program& kavetta() { return desk().program(); }

    /// The control of a name; where several forms have one, that of the Design form.
    template <typename control>
    control* find(const char* name) {
        auto* found = window().findChild<QWidget*>("Form1")->findChild<control*>(name);
        if (found == nullptr) {
            found = window().findChild<control*>(name);
        }
        EXPECT_NE(found, nullptr) << name;
        return found;
    }
    template <typename control>
    control* find_on(const char* form, const char* name) {
        auto* found = find<QWidget>(form)->template findChild<control*>(name);
        EXPECT_NE(found, nullptr) << form << "." << name;
        return found;
    }
    QLineEdit* box(const char* name) { return find<QLineEdit>(name); }
    std::string shown(const char* name) { return utf8_text(box(name)->text()); }
    std::string label(const char* name) { return utf8_text(find<QLabel>(name)->text()); }
    std::string label_on(const char* form, const char* name) {
        return utf8_text(find_on<QLabel>(form, name)->text());
    }
    std::string status() { return utf8_text(window().statusBar()->currentMessage()); }

    /// The window of a form that is built when it is shown; nullptr while it is not.
    QMdiSubWindow* loaded(const char* form) { return window().findChild<QMdiSubWindow*>(form); }

    /// A delivered design in the program's folder, so that files written beside it stay there.
    std::string own_design_file(const std::string& name) {
        const std::filesystem::path own = folder.path() / "projects" / (name + ".KVT");
        std::filesystem::copy_file(design_file(name), own,
                                   std::filesystem::copy_options::overwrite_existing);
        return utf8_of_path(own);
    }

    /// Clicks into a box, marks what it holds, and types key by key.
    void type(const char* name, const std::string& text) {
        QTest::mouseClick(box(name), Qt::LeftButton);
        box(name)->selectAll();
        if (text.empty()) {
            QTest::keyClick(box(name), Qt::Key_Delete);
        }
        type_keys(box(name), qt_text(text));
    }
    void press(const char* button) {
        QTest::mouseClick(find<QAbstractButton>(button), Qt::LeftButton);
        settle();
    }
    void choose(const char* entry) {
        find<QAction>(entry)->trigger();
        settle();
    }
    /// Lets what waits in the event loop happen, e.g. the handler of an entry that was left. Then
    /// gives the main window back what a window manager gives back behind a dialog: without a
    /// screen there is none.
    void settle() {
        for (int round = 0; round < 5; ++round) {
            QCoreApplication::processEvents();
        }
        if (QApplication::activeWindow() == nullptr && !desk().runner().has_ended()) {
            window().activateWindow();
            EXPECT_TRUE(QTest::qWaitForWindowActive(&window()));
            QCoreApplication::processEvents();
        }
    }

    temporary_folder folder;
    dialog_robot robot;
    std::unique_ptr<desktop> program_on_screen;
};

}  // namespace kvt
