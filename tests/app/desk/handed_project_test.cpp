// Which projects of a later start a running program shows or takes.
#include "app/desk/handed_project.hpp"

#include "app/desk/autosave.hpp"
#include "app/files/project_commands.hpp"
#include "app/files/project_fixture.hpp"

namespace kvt {
namespace {

class handed_project : public project_test {
  protected:
    handed_project() { note_new_entries(kavetta); }

    /// A project file with the entries that the program has.
    std::string saved_project(const std::string& name) {
        person.files = {folder.file(name)};
        EXPECT_TRUE(save_project_as(kavetta, person));
        return folder.file(name);
    }
};

TEST_F(handed_project, is_taken_while_nobody_has_typed_anything) {
    EXPECT_EQ(answer_handover(kavetta, "/a/pump.KVT", false), handover_answer::takes);
}

TEST_F(handed_project, is_taken_when_the_entries_are_saved) {
    saved_project("own.KVT");
    EXPECT_EQ(answer_handover(kavetta, "/a/pump.KVT", false), handover_answer::takes);
}

TEST_F(handed_project, is_declined_when_entries_would_be_lost) {
    kavetta.entries.ecc = "2.85";
    EXPECT_EQ(answer_handover(kavetta, "/a/pump.KVT", false), handover_answer::declines);
}

TEST_F(handed_project, is_declined_by_a_busy_program) {
    EXPECT_EQ(answer_handover(kavetta, "/a/pump.KVT", true), handover_answer::declines);
}

TEST_F(handed_project, is_shown_when_it_is_open_changed_or_not_busy_or_not) {
    const std::string own = saved_project("own.KVT");
    kavetta.entries.ecc = "2.85";
    EXPECT_EQ(answer_handover(kavetta, own, true), handover_answer::shows);
}

TEST_F(handed_project, is_the_same_by_any_path_that_leads_to_it) {
    const std::string own = saved_project("own.KVT");
    EXPECT_EQ(answer_handover(kavetta, folder.file("./own.KVT"), true), handover_answer::shows);
}

TEST_F(handed_project, of_a_project_without_a_file_is_not_shown) {
    const std::string own = saved_project("own.KVT");
    kavetta.app_state.project_has_file = false;
    EXPECT_EQ(answer_handover(kavetta, own, true), handover_answer::declines);
}

TEST_F(handed_project, is_shown_by_a_program_that_is_starting_with_it) {
    const std::string own = saved_project("own.KVT");
    EXPECT_EQ(answer_early_handover(own, own), handover_answer::shows);
    EXPECT_EQ(answer_early_handover(own, "/a/pump.KVT"), handover_answer::declines);
    EXPECT_EQ(answer_early_handover("", own), handover_answer::declines);
}

}  // namespace
}  // namespace kvt
