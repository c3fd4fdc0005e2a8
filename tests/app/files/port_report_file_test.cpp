// Tests of the report file: its folder, its bytes, and when it is written.
#include "app/files/port_report_file.hpp"

#include "app/desk/settings_commands.hpp"
#include "app/stages/calculate_profiles.hpp"
#include "app/stages/design_ports.hpp"
#include "base/path_text.hpp"
#include "base/text_file.hpp"
#include "support/open_design.hpp"
#include "support/temporary_folder.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

class port_report_file : public testing::Test {
  protected:
    port_report_file() : kavetta(opened_design("n09_crank_oil")) {
        EXPECT_EQ(calculate_profiles(kavetta, person), run_end::ok);
        kavetta.folder = folder.path();
        kavetta.app_state.projects_folder = utf8_of_path(folder.path());
        kavetta.date = "03.11.21";
    }

    std::filesystem::path file() const { return folder / "port_radius_coordinates.txt"; }

    temporary_folder folder;
    program kavetta;
    scripted_user person;
};

TEST_F(port_report_file, follows_a_finished_outlet_and_replaces_an_earlier_one) {
    write_file(file(), "old");
    design_ports(kavetta, person);
    const std::vector<std::string> lines = split_lines(read_file(file()));
    ASSERT_EQ(lines.size(), 24U);
    EXPECT_EQ(lines[0], "Kavetta V2021.1.1 - Port Radius Co-ordinates");
    EXPECT_EQ(lines[2], "03.11.21");
    EXPECT_EQ(lines[3], "n09_crank_oil");
    EXPECT_EQ(lines[23], "End of File");
    EXPECT_TRUE(read_file(file()).ends_with("End of File\r\n"));
}

TEST_F(port_report_file, does_not_follow_a_refused_outlet) {
    kavetta.entries.outlet_end_inner = "190";
    kavetta.entries.outlet_end_outer = "188";
    design_ports(kavetta, person);
    EXPECT_EQ(person.messages.size(), 1U);
    EXPECT_FALSE(std::filesystem::exists(file()));
}

TEST_F(port_report_file, follows_an_outlet_beside_a_refused_inlet) {
    kavetta.entries.inlet_end_inner = "190";
    kavetta.entries.inlet_end_outer = "188";
    design_ports(kavetta, person);
    EXPECT_TRUE(std::filesystem::exists(file()));
}

TEST_F(port_report_file, is_not_written_by_a_program_without_a_folder) {
    kavetta.folder.clear();
    design_ports(kavetta, person);
    EXPECT_FALSE(std::filesystem::exists(file()));
}

TEST_F(port_report_file, goes_to_the_folder_of_the_project_when_no_folder_is_known) {
    std::filesystem::create_directories(folder / "pumps");
    kavetta.app_state.projects_folder.clear();
    kavetta.app_state.project_path = utf8_of_path(folder / "pumps/pump.KVT");
    EXPECT_EQ(project_folder(kavetta), folder / "pumps");
    kavetta.app_state.project_path.clear();
    EXPECT_EQ(project_folder(kavetta), folder / "projects");
}

TEST_F(port_report_file, that_cannot_be_written_is_told_and_the_ports_are_designed) {
    kavetta.app_state.projects_folder = utf8_of_path(folder / "none");
    testing::internal::CaptureStderr();
    const ports_designed done = design_ports(kavetta, person);
    const std::string line = "The file could not be saved: " +
                             utf8_of_path(folder / "none/port_radius_coordinates.txt") +
                             ": Path not found";
    EXPECT_EQ(testing::internal::GetCapturedStderr(), line + "\n");
    EXPECT_EQ(person.statuses, std::vector<std::string>{line});
    EXPECT_TRUE(done.inlet);
    EXPECT_TRUE(done.outlet);
    EXPECT_TRUE(person.messages.empty());
    EXPECT_EQ(person.log.back(), "not busy");
}

TEST_F(port_report_file, is_written_beside_the_project_also_after_save_as) {
    std::filesystem::create_directories(folder / "pumps");
    person.files = {folder.file("pumps/pump.KVT")};
    ASSERT_TRUE(save_project_as(kavetta, person));
    design_ports(kavetta, person);
    EXPECT_TRUE(std::filesystem::exists(folder / "pumps/port_radius_coordinates.txt"));
    EXPECT_FALSE(std::filesystem::exists(file()));
}

TEST_F(port_report_file, carries_today_s_date_when_none_is_given) {
    kavetta.date.clear();
    const std::vector<std::string> lines = port_report(kavetta);
    EXPECT_FALSE(lines[2].empty());
    EXPECT_NE(lines[2].find_first_of("0123456789"), std::string::npos);
}

}  // namespace
}  // namespace kvt
