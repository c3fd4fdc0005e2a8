// Start-up: the program's folder, the settings, the prompt.
#include "app/desk/start_up.hpp"

#include "app/desk/settings_commands.hpp"
#include "app/files/project_fixture.hpp"
#include "app/stages/design_assist.hpp"
#include "base/path_text.hpp"
#include "base/run_time_error.hpp"
#include "support/environment_value.hpp"

namespace kvt {
namespace {

using start_up_test = project_test;

TEST_F(start_up_test, takes_the_program_folder_from_the_environment) {
    environment_value named("KAVETTA_HOME", utf8_of_path(folder.path()));
    EXPECT_EQ(program_folder(), folder.path());
    named.set(std::nullopt);
    EXPECT_EQ(program_folder(), user_data_folder() / "Kavetta");
}

TEST_F(start_up_test, fills_the_folder_with_what_is_missing_and_keeps_what_is_there) {
    const temporary_folder share;
    write_file(share.path() / "KVT.ini", "delivered");
    std::filesystem::create_directories(share.path() / "projects");
    write_file(share.path() / "projects" / "example.KVT", "example");
    const std::filesystem::path home = folder.path() / "new" / "home";

    fill_program_folder(home, share.path());
    EXPECT_EQ(read_file(home / "KVT.ini"), "delivered");
    EXPECT_EQ(read_file(home / "projects" / "example.KVT"), "example");
    EXPECT_TRUE(std::filesystem::is_directory(home / "images"));
    EXPECT_TRUE(std::filesystem::is_directory(home / "updates"));

    write_file(home / "KVT.ini", "the user's own");
    fill_program_folder(home, share.path());
    EXPECT_EQ(read_file(home / "KVT.ini"), "the user's own");
}

TEST_F(start_up_test, fails_for_good_without_a_settings_file) {
    std::filesystem::remove(folder.path() / "KVT.ini");
    EXPECT_THROW(load_settings(kavetta), run_time_error);
}

TEST_F(start_up_test, reads_recent_list_package_and_language) {
    write_settings_lines({"/a.KVT", "/b.KVT", "/c.KVT", "SolidWorks", "2", "auto", "#12-Mar-21#"});
    load_settings(kavetta);
    EXPECT_EQ(kavetta.app_state.mnufileprev[0], "&1") << "entry 0 belongs to the present run";
    EXPECT_EQ(kavetta.app_state.mnufileprev[1], "/a.KVT");
    EXPECT_EQ(kavetta.app_state.mnufileprev[3], "/c.KVT");
    EXPECT_EQ(kavetta.app_state.modelling_package, "SolidWorks");
    EXPECT_EQ(kavetta.app_state.language, GERMAN);
}

TEST_F(start_up_test, has_german_captions_before_the_prompt_asks) {
    write_settings_lines({"", "", "", "", "2", "", ""});
    load_settings(kavetta);
    EXPECT_EQ(kavetta.captions.of("Form2", "open"), "Öffnen Sie");
    EXPECT_EQ(kavetta.captions.of("newprojectname", ""), "Neu Projekt");
    EXPECT_EQ(kavetta.captions.of("Form1", ""), "Entwurf");
}

/// Until a project is there: New and Open hide what belongs to the assist.
TEST_F(start_up_test, shows_the_assist_switched_off) {
    load_settings(kavetta);
    EXPECT_EQ(look_of_assist(kavetta.app_state),
              (assist_look{"Assist OFF", false, true, false, true}));
    person.start_answers = {start_answer{start_choice::neither, {}}};
    start_project(kavetta, person);
    EXPECT_EQ(look_of_assist(kavetta.app_state),
              (assist_look{"Assist OFF", false, true, false, true}));
}

TEST_F(start_up_test, starts_a_new_project_without_asking_for_fluid_values) {
    person.start_answers = {start_answer{start_choice::new_project, {}}};
    person.project_names = {std::nullopt};
    start_project(kavetta, person);
    EXPECT_EQ(kavetta.labels.title, "Kavetta V2021 - ''") << "cancelled: an empty name";
    EXPECT_TRUE(person.questions.empty());
}

TEST_F(start_up_test, opens_a_project_from_the_prompt) {
    person.start_answers = {start_answer{start_choice::open_project, {}}};
    person.files = {project_file("pump.KVT", project_lines())};
    start_project(kavetta, person);
    EXPECT_EQ(kavetta.entries.ecc, "2.85");
}

TEST_F(start_up_test, begins_a_project_without_a_file_from_an_example) {
    person.start_answers = {
        start_answer{start_choice::example, project_file("pump.KVT", project_lines())}};
    start_project(kavetta, person);
    EXPECT_EQ(kavetta.entries.ecc, "2.85");
    EXPECT_FALSE(kavetta.app_state.project_has_file);
}

TEST_F(start_up_test, leaves_the_form_empty_when_the_prompt_is_closed) {
    person.start_answers = {start_answer{start_choice::neither, {}}};
    start_project(kavetta, person);
    EXPECT_EQ(kavetta.labels.title, "Kavetta V2021");
    EXPECT_EQ(kavetta.entries, entries());
    EXPECT_EQ(kavetta.enabling, enabling());
}

TEST_F(start_up_test, opens_a_path_in_place_of_the_prompt_and_survives_a_wrong_one) {
    start_project(kavetta, person, project_file("pump.KVT", project_lines()));
    EXPECT_EQ(kavetta.entries.ecc, "2.85");
    start_project(kavetta, person, folder.file("not there.KVT"));
    EXPECT_EQ(person.statuses.size(), 2U);
    EXPECT_TRUE(person.messages.empty());
}

TEST_F(start_up_test, keeps_recent_paths_whole_that_KVT_ini_can_not_hold) {
    const std::filesystem::path cyrillic = folder.path() / "Насосы";
    std::filesystem::create_directory(cyrillic);
    const std::string path = utf8_of_path(cyrillic / "Насос.KVT");
    write_file(path_of_utf8(path), joined(project_lines()));
    start_project(kavetta, person, path);
    start_project(kavetta, person, project_file("pump.KVT", project_lines()));
    program again;
    again.folder = folder.path();
    load_settings(again);
    EXPECT_EQ(again.app_state.mnufileprev[1], path);
    find_projects_folder(again);
    EXPECT_EQ(again.app_state.projects_folder, utf8_of_path(cyrillic));
    again.app_state.mnufileprev[1] = "/a.KVT";
    save_settings(again);
    EXPECT_FALSE(std::filesystem::exists(folder.path() / "preferences.ini")) << "nothing to keep";
}

TEST_F(start_up_test, takes_over_the_recent_paths_that_an_earlier_version_kept) {
    write_file(folder.file("KVT.ini"), "/?????.KVT\r\n\r\n\r\n\r\n1\r\n\r\n##\r\n");
    write_file(folder.file("Kavetta.ini"), "recent_1=/Насос.KVT\r\n");
    load_settings(kavetta);
    EXPECT_EQ(kavetta.app_state.mnufileprev[1], "/Насос.KVT");
    save_settings(kavetta);
    EXPECT_FALSE(std::filesystem::exists(folder.path() / "Kavetta.ini"));
    EXPECT_EQ(read_file(folder.file("preferences.ini")), "[projects]\r\nrecent_1=/Насос.KVT\r\n");
    write_file(folder.file("Kavetta.ini"), "recent_1=/Осман.KVT\r\n");
    load_settings(kavetta);
    EXPECT_EQ(kavetta.app_state.mnufileprev[1], "/Насос.KVT") << "preferences.ini is there";
}

TEST_F(start_up_test, keeps_preferences_of_a_later_version) {
    write_file(folder.file("preferences.ini"), "[view]\r\npreview=0\r\n");
    load_settings(kavetta);
    save_settings(kavetta);
    EXPECT_EQ(read_file(folder.file("preferences.ini")), "[view]\r\npreview=0\r\n");
}

}  // namespace
}  // namespace kvt
