// Tests of autosave: when it writes, what it leaves alone, and what the next start offers.
#include "app/desk/autosave.hpp"

#include "app/desk/exit_program.hpp"
#include "app/desk/run_command.hpp"
#include "app/desk/start_up.hpp"
#include "app/files/project_fixture.hpp"
#include "core/text_table.hpp"

#include <chrono>

namespace kvt {
namespace {

namespace fs = std::filesystem;

class autosave_test : public project_test {
  protected:
    fs::path autosaved() const { return folder.path() / "autosave.KVT"; }
    fs::path recovered() const { return folder.path() / "recovery.KVT"; }
    void leave(const fs::path& file, const std::string& ecc) {
        std::vector<std::string> lines = project_lines();
        lines[10] = ecc;
        write_file(file, joined(lines));
    }
};

TEST_F(autosave_test, writes_nothing_while_the_entries_stay) {
    start_autosave(kavetta);
    EXPECT_FALSE(autosave(kavetta));
    EXPECT_FALSE(fs::exists(autosaved()));
}

TEST_F(autosave_test, writes_changed_entries_once) {
    start_autosave(kavetta);
    kavetta.entries.ecc = "2,85";
    EXPECT_TRUE(autosave(kavetta));
    EXPECT_EQ(line_of(autosaved().string(), 11), "2,85");
    fs::remove(autosaved());
    EXPECT_FALSE(autosave(kavetta));
    EXPECT_FALSE(fs::exists(autosaved()));
    kavetta.app_state.capacity_unit = 4;
    EXPECT_TRUE(autosave(kavetta));
    EXPECT_EQ(line_of(autosaved().string(), 17), " 4 ");
}

TEST_F(autosave_test, leaves_project_and_recent_list_alone) {
    const std::string path = project_file("pump.KVT", project_lines());
    const std::string before = read_file(path);
    start_project(kavetta, person, path);
    const app_state state = kavetta.app_state;
    kavetta.entries.ecc = "3";
    EXPECT_TRUE(autosave(kavetta));
    EXPECT_EQ(read_file(path), before);
    EXPECT_EQ(kavetta.app_state.project_path, state.project_path);
    EXPECT_TRUE(kavetta.app_state.project_has_file);
    EXPECT_EQ(kavetta.app_state.mnufileprev[0], state.mnufileprev[0]);
}

TEST_F(autosave_test, tries_again_after_a_write_that_failed) {
    start_autosave(kavetta);
    kavetta.entries.ecc = "3";
    kavetta.folder = folder.path() / "later";
    EXPECT_FALSE(autosave(kavetta));
    fs::create_directories(kavetta.folder);
    EXPECT_TRUE(autosave(kavetta));
    kavetta.entries.ecc = "3\n4";  // a line end, which no project file holds
    EXPECT_FALSE(autosave(kavetta));
}

TEST_F(autosave_test, is_deleted_by_an_exit_answered_no_and_by_one_that_saved) {
    for (const answer reply : {answer::no, answer::yes}) {
        leave(autosaved(), "1");
        leave(recovered(), "1");
        person.answers = {reply};
        person.files = {folder.file("projects/saved.KVT")};
        EXPECT_TRUE(exit_program(kavetta, person));
        EXPECT_FALSE(fs::exists(autosaved()));
        EXPECT_FALSE(fs::exists(recovered()));
    }
}

TEST_F(autosave_test, stays_when_the_exit_was_cancelled_or_did_not_save) {
    leave(autosaved(), "1");
    person.answers = {answer::cancel};
    exit_program(kavetta, person);
    EXPECT_TRUE(fs::exists(autosaved()));
    person.answers = {answer::yes};
    person.files = {std::nullopt};
    exit_program(kavetta, person);
    EXPECT_TRUE(fs::exists(autosaved()));
    EXPECT_TRUE(fs::exists(recovered()));
}

TEST_F(autosave_test, is_not_offered_when_there_is_none) {
    EXPECT_FALSE(offer_unsaved_entries(kavetta, person));
    EXPECT_TRUE(person.questions.empty());
}

TEST_F(autosave_test, is_offered_in_both_languages_and_opened_without_a_file) {
    for (const std::int16_t language : {ENGLISH, GERMAN}) {
        kavetta = program();
        kavetta.folder = folder.path();
        kavetta.app_state.language = language;
        leave(autosaved(), "3.25");
        person.questions.clear();
        person.answers = {answer::yes};
        start_project(kavetta, person);
        EXPECT_EQ(person.questions, std::vector<std::string>{std::string(
                                        message_text(message::open_unsaved_entries, language))});
        EXPECT_EQ(kavetta.entries.ecc, "3.25");
        EXPECT_FALSE(kavetta.app_state.project_has_file);
        EXPECT_EQ(kavetta.app_state.project_path, "");
        EXPECT_EQ(kavetta.app_state.mnufileprev[0], "&1");
        EXPECT_EQ(kavetta.labels.title, "Kavetta V2021 - 'pump'");
        EXPECT_TRUE(fs::exists(autosaved()));
        EXPECT_FALSE(autosave(kavetta));  // nothing has changed since
    }
}

TEST_F(autosave_test, goes_on_with_the_prompt_or_the_path_when_it_is_not_wanted) {
    leave(recovered(), "3.25");
    person.answers = {answer::no, answer::no};
    person.start_choices = {start_choice::neither};
    start_project(kavetta, person);
    EXPECT_EQ(kavetta.entries.ecc, "0");
    start_project(kavetta, person, project_file("pump.KVT", project_lines()));
    EXPECT_EQ(kavetta.entries.ecc, "2.85");
    EXPECT_TRUE(kavetta.app_state.project_has_file);
}

TEST_F(autosave_test, the_younger_of_both_files_is_offered) {
    leave(autosaved(), "1");
    leave(recovered(), "2");
    const auto now = fs::file_time_type::clock::now();
    fs::last_write_time(autosaved(), now - std::chrono::hours(1));
    fs::last_write_time(recovered(), now);
    EXPECT_EQ(unsaved_entries(kavetta), recovered());
    fs::last_write_time(recovered(), now - std::chrono::hours(2));
    EXPECT_EQ(unsaved_entries(kavetta), autosaved());
}

TEST_F(autosave_test, a_broken_file_is_told_in_the_status_bar_and_the_prompt_follows) {
    write_file(autosaved(), "nothing\r\n");
    person.answers = {answer::yes};
    person.start_choices = {start_choice::neither};
    start_project(kavetta, person);
    ASSERT_EQ(person.statuses.size(), 1U);
    EXPECT_TRUE(person.statuses[0].starts_with("The file could not be opened"));
    EXPECT_FALSE(kavetta.app_state.project_has_file);
}

}  // namespace
}  // namespace kvt
