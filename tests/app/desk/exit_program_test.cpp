// Exit: its question, Save As, the settings.
#include "app/desk/exit_program.hpp"

#include "app/files/project_fixture.hpp"
#include "base/run_time_error.hpp"

namespace kvt {
namespace {

using exit_test = project_test;

TEST_F(exit_test, writes_the_settings_and_ends_on_no) {
    kavetta.app_state.mnufileprev[1] = "/a/b.KVT";
    kavetta.app_state.language = GERMAN;
    kavetta.app_state.auto_update_mode = "manual";
    person.answers = {answer::no};
    EXPECT_TRUE(exit_program(kavetta, person));
    EXPECT_EQ(line_of(folder.file("KVT.ini"), 1), "/a/b.KVT");
    EXPECT_EQ(line_of(folder.file("KVT.ini"), 5), "2");
    EXPECT_EQ(person.questions.at(0),
              "W\xC3\xBCnschen Sie, irgendeine \xC3\x84nderungen zu sparen, bevor ausgehend?");
}

TEST_F(exit_test, keeps_running_on_cancel_and_never_forgets_it) {
    const std::string settings = read_file(folder.path() / "KVT.ini");
    person.answers = {answer::cancel};
    EXPECT_FALSE(exit_program(kavetta, person));
    EXPECT_TRUE(kavetta.app_state.exit_cancelled);
    EXPECT_EQ(read_file(folder.path() / "KVT.ini"), settings);
}

TEST_F(exit_test, shows_save_as_on_yes_also_for_a_project_with_a_file) {
    kavetta.app_state.project_has_file = true;
    kavetta.app_state.project_name = "pump";
    person.answers = {answer::yes};
    person.files = {folder.file("projects/pump.KVT")};
    EXPECT_TRUE(exit_program(kavetta, person));
    EXPECT_EQ(person.dialogs.at(0).file_name, "pump");
    EXPECT_TRUE(std::filesystem::exists(folder.path() / "projects" / "pump.KVT"));
    EXPECT_FALSE(std::filesystem::exists(folder.path() / "recovery.KVT"));
}

TEST_F(exit_test, ends_when_save_as_is_cancelled_and_leaves_the_entries_in_the_recovery_project) {
    kavetta.entries.ecc = "2.85";
    person.answers = {answer::yes};
    person.files = {std::nullopt};
    EXPECT_TRUE(exit_program(kavetta, person));
    EXPECT_EQ(line_of(folder.file("recovery.KVT"), 11), "2.85");
}

TEST_F(exit_test, fails_for_good_when_the_settings_cannot_be_written) {
    kavetta.folder = folder.path() / "gone";
    person.answers = {answer::no};
    EXPECT_THROW(exit_program(kavetta, person), run_time_error);
}

}  // namespace
}  // namespace kvt
