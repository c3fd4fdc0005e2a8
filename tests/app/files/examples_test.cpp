// A new project from a delivered example.
#include "app/files/examples.hpp"

#include "app/desk/autosave.hpp"
#include "app/files/project_commands.hpp"
#include "app/files/project_fixture.hpp"
#include "base/path_text.hpp"

namespace kvt {
namespace {

using examples_test = project_test;

TEST_F(examples_test, are_the_projects_of_a_folder_by_name) {
    const temporary_folder share;
    for (const char* file : {"water_pump.KVT", "fuel.KVT", "readme.txt"}) {
        write_file(share.path() / file, "");
    }
    const std::vector<delivered_example> found = delivered_examples(share.path());
    ASSERT_EQ(found.size(), 2U);
    EXPECT_EQ(found[0].name, "fuel");
    EXPECT_EQ(found[1].name, "water pump");
    EXPECT_EQ(found[1].path, utf8_of_path(share.path() / "water_pump.KVT"));
}

TEST_F(examples_test, are_none_without_the_folder) {
    EXPECT_TRUE(delivered_examples(folder.path() / "not there").empty());
}

TEST_F(examples_test, give_their_entries_to_a_project_without_a_file) {
    const std::string path = project_file("pump.KVT", project_lines());
    const std::string recent = kavetta.app_state.mnufileprev[1];
    open_example(kavetta, person, path);
    EXPECT_EQ(kavetta.entries.ecc, "2.85");
    EXPECT_FALSE(kavetta.app_state.project_has_file);
    EXPECT_EQ(kavetta.labels.title, "Kavetta V2021 - '" + kavetta.app_state.project_name + "'");
    EXPECT_EQ(kavetta.app_state.mnufileprev[1], recent) << "it is no project of the user's";
    EXPECT_FALSE(has_unsaved_changes(kavetta));
    EXPECT_EQ(person.statuses.back(), "Opened as a new project; Save asks for its file");
}

TEST_F(examples_test, stay_as_they_were_delivered_when_the_project_is_saved) {
    const std::string path = project_file("pump.KVT", project_lines());
    const std::string delivered = read_file(path);
    open_example(kavetta, person, path);
    kavetta.entries.ecc = "2.9";
    person.files = {folder.file("mine.KVT")};
    save_project(kavetta, person);
    EXPECT_EQ(person.dialogs.size(), 1U) << "Save asks for the file";
    EXPECT_EQ(read_file(path), delivered);
    EXPECT_NE(read_file(folder.file("mine.KVT")).find("2.9"), std::string::npos);
}

TEST_F(examples_test, change_nothing_when_they_can_not_be_read) {
    kavetta.entries.ecc = "3";
    const std::string title = kavetta.labels.title;
    open_example(kavetta, person, project_file("broken.KVT", {"only", "three", "lines"}));
    EXPECT_EQ(kavetta.entries.ecc, "3");
    EXPECT_EQ(kavetta.labels.title, title);
    EXPECT_EQ(person.statuses.size(), 1U);
    EXPECT_TRUE(person.messages.empty());
}

}  // namespace
}  // namespace kvt
