// The file dialogs: filters, start folder, proposed name, default extension.
#include "ui/shell/file_dialogs.hpp"

#include "app/program.hpp"
#include "base/path_text.hpp"
#include "ui/desktop_fixture.hpp"

#include <QFileDialog>
#include <QTreeView>

namespace kvt {

namespace {

class file_dialogs_test : public desktop_test {};

}  // namespace

TEST_F(file_dialogs_test, the_save_dialog_proposes_the_name_and_adds_the_extension) {
    start();
    kavetta().app_state.project_name = "pump";
    QString proposed;
    QString filter;
    QString title;
    robot.at_file_dialog = [&](QFileDialog& dialog) {
        proposed = dialog.findChild<QLineEdit*>("fileNameEdit")->text();
        filter = dialog.selectedNameFilter();
        title = dialog.windowTitle();
        EXPECT_EQ(dialog.directory().absolutePath(),
                  qt_text(utf8_of_path(folder.path() / "projects")));
        EXPECT_FALSE(dialog.testOption(QFileDialog::DontConfirmOverwrite));
    };
    robot.files.emplace_back(utf8_of_path(folder.path() / "projects" / "mine"));
    choose("mnufilesaveas");
    EXPECT_EQ(proposed, "pump");
    EXPECT_EQ(filter, "KVT (*.KVT *.kvt)");
    EXPECT_EQ(title, "Kavetta V2021 - Save Project");
    EXPECT_TRUE(std::filesystem::exists(folder.path() / "projects" / "mine.KVT"));
    EXPECT_EQ(kavetta().app_state.project_name, "mine");
}

TEST_F(file_dialogs_test, a_point_in_the_name_is_not_its_ending) {
    start(own_design_file("n04_fuel"));
    const std::string projects = utf8_of_path(folder.path() / "projects");
    robot.files = {projects + "/Pump 2.5", projects + "/lower.kvt"};
    choose("mnufilesaveas");
    EXPECT_TRUE(std::filesystem::exists(projects + "/Pump 2.5.KVT"));
    EXPECT_EQ(kavetta().app_state.project_name, "Pump 2.5");
    choose("mnufilesaveas");
    EXPECT_TRUE(std::filesystem::exists(projects + "/lower.kvt"));
    press("Calc");
    robot.files = {projects + "/rotor v1.2", projects + "/ROTOR.STP"};
    choose("mnudxfinner");
    EXPECT_TRUE(std::filesystem::exists(projects + "/rotor v1.2.dxf"));
    choose("mnustepinner");
    EXPECT_TRUE(std::filesystem::exists(projects + "/ROTOR.STP"));
}

TEST_F(file_dialogs_test, the_question_before_overwriting_is_about_the_name_with_its_ending) {
    start(own_design_file("n04_fuel"));
    const std::string projects = utf8_of_path(folder.path() / "projects");
    write_file(projects + "/Pump 2.5.KVT", "there");
    write_file(projects + "/Pump 3.5", "there");
    robot.files = {projects + "/Pump 2.5", std::nullopt, projects + "/Pump 3.5"};
    robot.answers = {"&No"};
    choose("mnufilesaveas");
    EXPECT_EQ(robot.questions.size(), 1U);
    EXPECT_EQ(read_file(projects + "/Pump 2.5.KVT"), "there");
    choose("mnufilesaveas");
    EXPECT_EQ(robot.questions.size(), 1U);
    EXPECT_TRUE(std::filesystem::exists(projects + "/Pump 3.5.KVT"));
    EXPECT_EQ(read_file(projects + "/Pump 3.5"), "there");
}

TEST(run_file_dialog, without_an_extension_the_chosen_row_of_the_filter_gives_the_ending) {
    const temporary_folder folder;
    dialog_robot robot;
    const auto saved_as = [&](const std::string& name, int row) {
        file_dialog dialog;
        dialog.saving = true;
        dialog.filter = "PNG|*.png|SVG|*.svg";
        dialog.filter_index = row;
        robot.files.emplace_back(folder.file(name));
        return run_file_dialog(dialog, nullptr);
    };
    EXPECT_EQ(saved_as("chart", 1), folder.file("chart.png"));
    EXPECT_EQ(saved_as("chart 2.5", 2), folder.file("chart 2.5.svg"));
    EXPECT_EQ(saved_as("chart.SVG", 1), folder.file("chart.SVG"));
    robot.at_file_dialog = [](QFileDialog& dialog) {
        dialog.selectFile("typed.png");
        emit dialog.filterSelected("SVG (*.svg)");
        EXPECT_EQ(dialog.findChild<QLineEdit*>("fileNameEdit")->text(), "typed.svg");
    };
    EXPECT_EQ(saved_as("chart", 2), folder.file("chart.svg"));
}

TEST(run_file_dialog, a_row_may_have_several_endings_and_all_files_have_that_of_the_dialog) {
    const temporary_folder folder;
    dialog_robot robot;
    const auto saved_as = [&](const std::string& name, int row) {
        file_dialog dialog;
        dialog.saving = true;
        dialog.filter = "STEP|*.stp;*.step|STL|*.stl|All files|*.*";
        dialog.filter_index = row;
        dialog.default_extension = "stp";
        robot.files.emplace_back(folder.file(name));
        return run_file_dialog(dialog, nullptr);
    };
    EXPECT_EQ(saved_as("pump", 1), folder.file("pump.stp"));
    EXPECT_EQ(saved_as("pump.step", 1), folder.file("pump.step"));
    EXPECT_EQ(saved_as("pump.step", 2), folder.file("pump.step"));
    EXPECT_EQ(saved_as("pump", 2), folder.file("pump.stl"));
    EXPECT_EQ(saved_as("pump", 3), folder.file("pump.stp"));
    EXPECT_EQ(saved_as("pump.txt", 3), folder.file("pump.txt.stp"));
    robot.at_file_dialog = [](QFileDialog& dialog) {
        dialog.selectFile("typed.step");
        emit dialog.filterSelected("All files (*)");
        EXPECT_EQ(dialog.findChild<QLineEdit*>("fileNameEdit")->text(), "typed.step");
        emit dialog.filterSelected("STEP (*.stp *.step)");
        EXPECT_EQ(dialog.findChild<QLineEdit*>("fileNameEdit")->text(), "typed.step");
        emit dialog.filterSelected("STL (*.stl)");
        EXPECT_EQ(dialog.findChild<QLineEdit*>("fileNameEdit")->text(), "typed.stl");
    };
    EXPECT_EQ(saved_as("pump", 1), folder.file("pump.stp"));
}

TEST_F(file_dialogs_test, open_finds_a_project_without_its_ending_typed) {
    start();
    const std::string path = own_design_file("n04_fuel");
    robot.files = {path.substr(0, path.size() - 4)};
    choose("mnufileopen");
    EXPECT_EQ(kavetta().app_state.project_path, path);
    const std::string other = utf8_of_path(folder.path() / "projects" / "n04_fuel.bak");
    std::filesystem::copy_file(path, other);
    robot.files = {other};
    choose("mnufileopen");
    EXPECT_EQ(kavetta().app_state.project_path, other);
}

TEST_F(file_dialogs_test, every_dialog_starts_in_the_folder_of_the_project) {
    const std::filesystem::path pumps = folder.path() / "pumps";
    std::filesystem::create_directories(pumps);
    start();
    std::filesystem::copy_file(design_file("n04_fuel"), pumps / "pump.KVT");
    robot.files = {utf8_of_path(pumps / "pump.KVT"), std::nullopt, std::nullopt, std::nullopt};
    choose("mnufileopen");
    press("Calc");
    std::vector<std::string> folders;
    robot.at_file_dialog = [&](QFileDialog& dialog) {
        folders.push_back(utf8_text(dialog.directory().absolutePath()));
    };
    choose("mnufileopen");
    choose("mnufilesaveas");
    choose("mnudxfinner");
    EXPECT_EQ(folders, std::vector<std::string>(3, utf8_of_path(pumps)));
}

TEST_F(file_dialogs_test, show_names_in_full) {
    start();
    const std::string name = "oil pump " + std::string(60, 'm') + ".KVT";
    write_file(folder.path() / "projects" / name, "");
    int needed = 0;
    int width = 0;
    robot.at_file_dialog = [&](QFileDialog& dialog) {
        const auto* list = dialog.findChild<QTreeView*>("treeView");
        ASSERT_TRUE(list->isVisible());
        needed = list->fontMetrics().horizontalAdvance(qt_text(name));
        // The names come from a thread of their own.
        EXPECT_TRUE(QTest::qWaitFor([&] { return list->columnWidth(0) > needed; }));
        width = list->columnWidth(0);
    };
    robot.files.emplace_back(std::nullopt);
    choose("mnufileopen");
    EXPECT_GT(needed, 0);
    EXPECT_GT(width, needed);
}

}  // namespace kvt
