// The File menu and Clear Design, as the user meets them.
#include "app/program.hpp"
#include "base/path_text.hpp"
#include "ui/desktop_fixture.hpp"

namespace kvt {

namespace {

class project_commands_ui : public desktop_test {};

}  // namespace

TEST_F(project_commands_ui, open_fills_every_box_and_lists_the_project) {
    start();
    robot.files.emplace_back(design_file("n07_engine_oil_groove"));
    choose("mnufileopen");
    EXPECT_EQ(robot.titles, std::vector<std::string>{"Kavetta V2021 - Open Project"});
    EXPECT_EQ(shown("numlobes"), "7");
    EXPECT_EQ(shown("coarseness"), "1");
    const auto* recent = find<QAction>("mnufileprev0");
    EXPECT_TRUE(recent->isVisible());
    EXPECT_EQ(utf8_text(recent->text()), design_file("n07_engine_oil_groove"));
    EXPECT_FALSE(find<QAction>("mnufileprev1")->isVisible());
}

TEST_F(project_commands_ui, a_broken_file_leaves_a_line_in_the_status_bar_and_the_boxes_alone) {
    start();
    type("ecc", "2.5");
    robot.files.emplace_back(std::string(KVT_TEST_DATA) + "/projects/lines_22.KVT");
    choose("mnufileopen");
    EXPECT_EQ(status(), "The file could not be opened: Input past end of file");
    EXPECT_EQ(shown("ecc"), "2.5");
    EXPECT_TRUE(robot.messages.empty());
}

TEST_F(project_commands_ui, a_recent_entry_opens_its_project_and_shows_an_ampersand) {
    const std::filesystem::path folder_with_mark = folder.path() / "oil & fuel";
    std::filesystem::create_directories(folder_with_mark);
    const std::string path = utf8_of_path(folder_with_mark / "pump.KVT");
    std::filesystem::copy_file(design_file("n04_fuel"), path);
    start(path);
    EXPECT_EQ(find<QAction>("mnufileprev0")->text(), qt_text(path).replace("&", "&&"));
    type("numlobes", "9");
    choose("mnufileprev0");
    EXPECT_EQ(shown("numlobes"), "4");
}

TEST_F(project_commands_ui, save_writes_what_stands_in_the_boxes_even_without_leaving_them) {
    const std::string path = utf8_of_path(folder.path() / "pump.KVT");
    std::filesystem::copy_file(design_file("n04_fuel"), path);
    start(path);
    type("ecc", "1,75");
    choose("mnufilesave");
    EXPECT_NE(read_file(path).find("\r\n1,75\r\n"), std::string::npos);
    EXPECT_TRUE(robot.titles.empty());
    EXPECT_EQ(status(), "Project saved: " + path);
}

TEST_F(project_commands_ui, a_cancelled_save_as_changes_nothing) {
    start();
    robot.files.emplace_back(std::nullopt);
    choose("mnufilesaveas");
    EXPECT_EQ(window().windowTitle(), "Kavetta V2021");
    EXPECT_FALSE(kavetta().app_state.project_has_file);
}

TEST_F(project_commands_ui, new_clears_boxes_results_and_drawing) {
    start(design_file("n04_fuel"));
    press("Calc");
    EXPECT_TRUE(kavetta().enabling.mnudxf);
    robot.names.emplace_back("Ölpumpe");
    robot.answers.emplace_back("Yes");
    choose("mnufilenew");
    EXPECT_EQ(robot.questions.size(), 1U);
    EXPECT_EQ(window().windowTitle(), "Kavetta V2021 - 'Ölpumpe'");
    EXPECT_EQ(shown("numlobes"), "3");
    EXPECT_EQ(label("capacity"), "0.0");
    EXPECT_EQ(label("area_ratio"), "");
    EXPECT_TRUE(kavetta().design_view.Picture1.empty());
    EXPECT_FALSE(kavetta().enabling.mnudxf);
}

TEST_F(project_commands_ui, clear_design_asks_about_fluid_and_material) {
    start(design_file("n04_fuel"));
    const std::string density = kavetta().entries.fluid_density;
    robot.answers.emplace_back("Yes");
    press("cleardesign");
    EXPECT_EQ(shown("ecc"), "0");
    EXPECT_EQ(shown("fillet"), "");
    EXPECT_EQ(kavetta().entries.fluid_density, density);
    robot.answers.emplace_back("No");
    press("cleardesign");
    EXPECT_EQ(kavetta().entries.fluid_density, "");
}

TEST_F(project_commands_ui, a_project_that_cannot_be_saved_stays_open_and_unsaved) {
    const std::string path = utf8_of_path(folder.path() / "gone" / "pump.KVT");
    std::filesystem::create_directories(folder.path() / "gone");
    std::filesystem::copy_file(design_file("n04_fuel"), path);
    start(path);
    type("ecc", "1.99");
    std::filesystem::remove_all(folder.path() / "gone");
    choose("mnufilesave");
    EXPECT_FALSE(desk().runner().has_ended());
    EXPECT_EQ(status(), "The file could not be saved: Path not found");
    EXPECT_EQ(shown("ecc"), "1.99");
    EXPECT_EQ(utf8_text(window().windowTitle()), "Kavetta V2021 - 'n04_fuel'");
    std::filesystem::create_directories(folder.path() / "gone");
    choose("mnufilesave");
    EXPECT_NE(read_file(path).find("1.99\r\n"), std::string::npos);
}

TEST_F(project_commands_ui, a_refused_file_is_not_overwritten_by_the_next_save) {
    const std::string path = own_design_file("n04_fuel");
    start(path);
    type("ecc", "1.99");
    const std::string refused = utf8_of_path(folder.path() / "projects" / "refused.KVT");
    write_file(refused, "no project\r\n");
    robot.files.emplace_back(refused);
    choose("mnufileopen");
    EXPECT_EQ(utf8_text(window().windowTitle()), "Kavetta V2021 - 'n04_fuel'");
    EXPECT_EQ(shown("ecc"), "1.99");
    choose("mnufilesave");
    EXPECT_EQ(read_file(refused), "no project\r\n");
    EXPECT_NE(read_file(path).find("1.99\r\n"), std::string::npos);
}

TEST_F(project_commands_ui, a_recent_entry_whose_file_is_gone_says_so_and_goes_on) {
    const std::string gone = own_design_file("n04_fuel");
    start(gone);
    robot.files.emplace_back(own_design_file("n07_engine_oil_groove"));
    choose("mnufileopen");
    std::filesystem::remove(gone);
    type("ecc", "1.99");
    choose("mnufileprev1");
    EXPECT_FALSE(desk().runner().has_ended());
    EXPECT_EQ(status(), "The file could not be opened: File not found (No such file or directory)");
    EXPECT_EQ(shown("ecc"), "1.99");
    EXPECT_EQ(shown("numlobes"), "7");
}

TEST_F(project_commands_ui,
       a_port_report_that_cannot_be_written_is_a_line_and_the_ports_are_drawn) {
    const std::string path = own_design_file("n09_crank_oil");
    start(path);
    press("Calc");
    const std::filesystem::path report = folder.path() / "projects" / "port_radius_coordinates.txt";
    std::filesystem::create_directory(report);
    testing::internal::CaptureStderr();
    press("design_ports");
    const std::string line = "The file could not be saved: " + utf8_of_path(report) +
                             ": Path/File access error (Is a directory)";
    EXPECT_EQ(status(), line);
    EXPECT_NE(testing::internal::GetCapturedStderr().find(line), std::string::npos);
    EXPECT_FALSE(desk().runner().has_ended());
    EXPECT_TRUE(kavetta().enabling.calc_perf);
}

}  // namespace kvt
