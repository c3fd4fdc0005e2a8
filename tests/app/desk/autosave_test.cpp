// Tests of autosave and recovery: when they are written, what they leave alone, what the next start
// offers and what a second program leaves to the first.
#include "app/desk/autosave.hpp"

#include "app/desk/exit_program.hpp"
#include "app/desk/start_up.hpp"
#include "app/files/project_commands.hpp"
#include "app/files/project_fixture.hpp"
#include "base/path_text.hpp"
#include "base/short_date.hpp"
#include "core/text_table.hpp"

#include <algorithm>
#include <chrono>

namespace kvt {
namespace {

namespace fs = std::filesystem;
using names = std::vector<std::string>;

class autosave_test : public project_test {
  protected:
    fs::path autosaved() const { return folder.path() / "autosave.KVT"; }
    fs::path recovered() const { return folder.path() / "recovery.KVT"; }

    /// A file of an earlier run, so many minutes old.
    void leave(const fs::path& file, const std::string& ecc, int minutes_old = 0) {
        std::vector<std::string> lines = project_lines();
        lines[10] = ecc;
        write_file(file, joined(lines));
        fs::last_write_time(file,
                            fs::file_time_type::clock::now() - std::chrono::minutes(minutes_old));
    }

    /// The files with unsaved entries in the folder, and the locks beside them.
    names left() const {
        names found;
        for (const fs::directory_entry& file : fs::directory_iterator(folder.path())) {
            const std::string name = utf8_of_path(file.path().filename());
            if (name.starts_with("autosave") || name.starts_with("recovery")) {
                found.push_back(name);
            }
        }
        std::ranges::sort(found);
        return found;
    }

    /// A new start of the program; the one before has ended without order.
    void start_again(const std::vector<answer>& answers) {
        kavetta = program();
        kavetta.folder = folder.path();
        person.questions.clear();
        person.statuses.clear();
        person.answers = {answers.begin(), answers.end()};
        person.start_answers = {start_answer{start_choice::neither, {}}};
        start_project(kavetta, person);
    }
    void save_project_as_pump() {
        person.files = {folder.file("projects/pump.KVT")};
        EXPECT_TRUE(save_project_as(kavetta, person));
    }
    bool was_prompted() const { return person.start_answers.empty(); }

    void exit_with(answer reply) {
        person.answers = {reply};
        EXPECT_TRUE(exit_program(kavetta, person));
    }
};

TEST_F(autosave_test, writes_nothing_while_the_entries_stay) {
    note_new_entries(kavetta);
    EXPECT_FALSE(autosave(kavetta));
    EXPECT_FALSE(has_unsaved_changes(kavetta));
    EXPECT_EQ(left(), names{});
}

TEST_F(autosave_test, writes_changed_entries_once) {
    note_new_entries(kavetta);
    kavetta.entries.ecc = "2,85";
    EXPECT_TRUE(has_unsaved_changes(kavetta));
    EXPECT_TRUE(autosave(kavetta));
    EXPECT_EQ(line_of(utf8_of_path(autosaved()), 11), "2,85");
    fs::remove(autosaved());
    EXPECT_FALSE(autosave(kavetta));
    EXPECT_FALSE(fs::exists(autosaved()));
    kavetta.app_state.capacity_unit = 4;
    EXPECT_TRUE(autosave(kavetta));
    EXPECT_EQ(line_of(utf8_of_path(autosaved()), 17), " 4 ");
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
    EXPECT_EQ(line_of(utf8_of_path(autosaved()), 1), path) << "the project that the entries are of";
}

TEST_F(autosave_test, tries_again_after_a_write_that_failed) {
    note_new_entries(kavetta);
    kavetta.entries.ecc = "3";
    kavetta.folder = folder.path() / "later";
    EXPECT_FALSE(autosave(kavetta));
    fs::create_directories(kavetta.folder);
    EXPECT_TRUE(autosave(kavetta));
    kavetta.entries.ecc = "3\n4";  // a line end, which no project file holds
    EXPECT_FALSE(autosave(kavetta));
    EXPECT_TRUE(has_unsaved_changes(kavetta));
}

TEST_F(autosave_test, is_deleted_by_save_and_by_save_as_and_comes_back_with_the_next_change) {
    start_project(kavetta, person, project_file("pump.KVT", project_lines()));
    for (const char* ecc : {"3", "3.5"}) {
        kavetta.entries.ecc = ecc;
        EXPECT_TRUE(autosave(kavetta));
        save_project(kavetta, person);
        EXPECT_EQ(left(), names{});
        EXPECT_FALSE(autosave(kavetta)) << "nothing has changed since";
        EXPECT_FALSE(has_unsaved_changes(kavetta));
    }
    kavetta.entries.ecc = "4";
    EXPECT_TRUE(autosave(kavetta));
    person.files = {folder.file("projects/other.KVT")};
    EXPECT_TRUE(save_project_as(kavetta, person));
    EXPECT_EQ(left(), names{});
}

TEST_F(autosave_test, is_deleted_when_the_entries_are_again_those_of_the_file) {
    start_project(kavetta, person, project_file("pump.KVT", project_lines()));
    kavetta.entries.ecc = "3";
    EXPECT_TRUE(autosave(kavetta));
    kavetta.entries.ecc = "2.85";
    EXPECT_FALSE(autosave(kavetta));
    EXPECT_EQ(left(), names{});
}

TEST_F(autosave_test, stays_after_a_save_that_failed) {
    start_project(kavetta, person, project_file("pump.KVT", project_lines()));
    kavetta.entries.ecc = "3";
    EXPECT_TRUE(autosave(kavetta));
    person.files = {folder.file("no/folder.KVT")};
    EXPECT_FALSE(save_project_as(kavetta, person));
    EXPECT_TRUE(fs::exists(autosaved()));
    EXPECT_TRUE(has_unsaved_changes(kavetta));
}

TEST_F(autosave_test, is_deleted_by_an_exit_answered_no_and_by_one_that_saved) {
    for (const answer reply : {answer::no, answer::yes}) {
        note_new_entries(kavetta);
        kavetta.entries.thick += "1";
        EXPECT_TRUE(autosave(kavetta));
        person.files = {folder.file("projects/saved.KVT")};
        exit_with(reply);
        EXPECT_EQ(left(), names{});
    }
}

TEST_F(autosave_test, stays_when_the_exit_was_cancelled_and_is_replaced_by_the_recovery_project) {
    note_new_entries(kavetta);
    kavetta.entries.ecc = "3";
    EXPECT_TRUE(autosave(kavetta));
    person.answers = {answer::cancel};
    exit_program(kavetta, person);
    EXPECT_TRUE(fs::exists(autosaved()));
    person.files = {std::nullopt};
    exit_with(answer::yes);
    EXPECT_FALSE(fs::exists(autosaved()));
    EXPECT_EQ(line_of(utf8_of_path(recovered()), 11), "3");
}

TEST_F(autosave_test, is_not_offered_when_there_is_none) {
    EXPECT_FALSE(offer_unsaved_entries(kavetta, person));
    EXPECT_TRUE(person.questions.empty());
}

TEST_F(autosave_test, the_question_names_project_and_time_in_both_languages) {
    leave(autosaved(), "3.25", 90);
    const std::string time =
        short_date_and_time(std::chrono::system_clock::now() - std::chrono::minutes(90));
    person.answers = {answer::no, answer::no};
    offer_unsaved_entries(kavetta, person);
    kavetta = program();
    kavetta.folder = folder.path();
    kavetta.app_state.language = GERMAN;
    std::vector<std::string> nameless = project_lines();
    nameless[1].clear();
    write_file(autosaved(), joined(nameless));
    const std::string now = short_date_and_time(std::chrono::system_clock::now());
    offer_unsaved_entries(kavetta, person);
    EXPECT_EQ(person.questions,
              (names{"Kavetta found entries that were not saved: 'pump', " + time +
                         ". Do you wish to open them?",
                     "Kavetta hat nicht gespeicherte Eingaben gefunden: ein Projekt ohne Namen, " +
                         now + ". Möchten Sie sie öffnen?"}));
}

TEST_F(autosave_test, opened_stands_with_its_project_but_without_a_file_and_without_the_prompt) {
    leave(autosaved(), "3.25");
    start_again({answer::yes});
    EXPECT_FALSE(was_prompted());
    EXPECT_EQ(kavetta.entries.ecc, "3.25");
    EXPECT_FALSE(kavetta.app_state.project_has_file);
    EXPECT_EQ(kavetta.app_state.project_name, "pump");
    EXPECT_EQ(kavetta.app_state.project_path, "");
    EXPECT_EQ(kavetta.app_state.mnufileprev[0], "&1");
    EXPECT_EQ(kavetta.labels.title, "Kavetta V2021 - 'pump'");
    EXPECT_TRUE(fs::exists(autosaved()));
    EXPECT_FALSE(autosave(kavetta)) << "nothing has changed since";
    EXPECT_TRUE(has_unsaved_changes(kavetta));
    kavetta.entries.ecc = "3.5";
    EXPECT_TRUE(autosave(kavetta)) << "into the file that was opened";
    EXPECT_EQ(left(), (names{"autosave.KVT", "autosave.lock"}));
}

TEST_F(autosave_test, opened_saves_where_its_project_was_and_is_deleted_then) {
    const std::string path = project_file("pump.KVT", project_lines());
    start_project(kavetta, person, path);
    kavetta.entries.ecc = "3";
    autosave(kavetta);
    start_again({answer::yes});
    person.files = {path};
    save_project(kavetta, person);
    ASSERT_EQ(person.dialogs.size(), 1U) << "a question before the file of the user is replaced";
    EXPECT_EQ(person.dialogs[0].folder, folder.file("projects"));
    EXPECT_EQ(person.dialogs[0].file_name, "pump");
    EXPECT_EQ(line_of(path, 11), "3");
    EXPECT_EQ(left(), names{});
}

TEST_F(autosave_test, brings_every_box_back_as_it_was_typed) {
    start_project(kavetta, person, project_file("pump.KVT", project_lines()));
    int number = 0;
    for (const entry_field& field : entry_fields()) {
        if (field.kind == entry_kind::text && field.form != "viewwinfrm") {
            kavetta.entries.*field.member = std::to_string(++number) + ", Größe abc";
        }
    }
    kavetta.entries.ecc = "abc";
    kavetta.entries.radinnroot.clear();
    kavetta.entries.volumereqd = "6,5";
    kavetta.entries.coarseness = "4";
    kavetta.entries.outlet_double_sided = "1";
    kavetta.app_state.capacity_unit = 4;
    kavetta.labels.capacity = "7.12";
    const entries typed = kavetta.entries;
    for (const bool recovery : {false, true}) {
        ASSERT_TRUE(recovery ? !save_recovery(kavetta).empty() : autosave(kavetta));
        start_again({answer::yes});
        EXPECT_EQ(kavetta.entries, typed);
        EXPECT_EQ(kavetta.app_state.capacity_unit, 4);
        EXPECT_EQ(kavetta.labels.unittype, "CC/Rev");
        EXPECT_EQ(kavetta.labels.capacity, "7.12");
    }
}

TEST_F(autosave_test, of_an_older_file_comes_back_with_a_text_that_is_no_number) {
    leave(recovered(), "abc");
    start_again({answer::yes});
    EXPECT_EQ(kavetta.entries.ecc, "abc");
    EXPECT_EQ(kavetta.entries.radial_clear, "0.15") << "the last line of the file";
    EXPECT_EQ(kavetta.entries.coarseness, "4");
    EXPECT_TRUE(kavetta.enabling.groove_length) << "its check box acts like a click";
    EXPECT_EQ(kavetta.entries.Face_area_value, "100");
}

TEST_F(autosave_test, goes_on_with_the_prompt_or_the_path_when_it_is_not_wanted) {
    leave(recovered(), "3.25");
    start_again({answer::no});
    EXPECT_TRUE(was_prompted());
    EXPECT_EQ(kavetta.entries.ecc, "0");
    EXPECT_TRUE(fs::exists(recovered())) << "until the program ends in order";
    kavetta.unsaved = std::make_shared<unsaved_work>();  // the program was killed
    person.answers = {answer::no};
    start_project(kavetta, person, project_file("pump.KVT", project_lines()));
    EXPECT_EQ(kavetta.entries.ecc, "2.85");
    EXPECT_TRUE(kavetta.app_state.project_has_file);
    exit_with(answer::no);
    EXPECT_EQ(left(), names{});
}

TEST_F(autosave_test, every_file_is_offered_the_youngest_first_until_one_is_opened) {
    leave(autosaved(), "1", 60);
    leave(recovered(), "2", 30);
    leave(folder.path() / "autosave-2.KVT", "3", 90);
    start_again({answer::no, answer::yes});
    EXPECT_EQ(person.questions.size(), 2U);
    EXPECT_EQ(kavetta.entries.ecc, "1");
    exit_with(answer::no);
    EXPECT_EQ(left(), names{"autosave-2.KVT"}) << "nobody was asked about it";
}

TEST_F(autosave_test, of_one_stretch_of_work_the_youngest_alone_is_offered) {
    note_new_entries(kavetta);
    for (const char* ecc : {"1", "2", "3"}) {
        kavetta.entries.ecc = ecc;
        EXPECT_FALSE(save_recovery(kavetta).empty());
    }
    kavetta.entries.ecc = "4";
    EXPECT_TRUE(autosave(kavetta));
    start_again({answer::yes});
    EXPECT_EQ(person.questions.size(), 1U);
    EXPECT_EQ(kavetta.entries.ecc, "4");
    exit_with(answer::no);
    EXPECT_EQ(left(), names{});
}

TEST_F(autosave_test, an_unreadable_file_is_told_in_the_status_bar_and_the_next_one_offered) {
    leave(autosaved(), "1", 60);
    write_file(recovered(), "nothing\r\n");
    start_again({answer::yes});
    EXPECT_EQ(person.statuses, names{"The file could not be opened: " + utf8_of_path(recovered()) +
                                     ": Input past end of file"});
    EXPECT_EQ(kavetta.entries.ecc, "1");
    start_again({answer::no});
    EXPECT_TRUE(was_prompted());
    EXPECT_TRUE(fs::exists(recovered()));
}

TEST_F(autosave_test, a_folder_or_a_pipe_of_the_name_stays_what_it_is) {
    fs::create_directory(autosaved());
    start_again({});
    EXPECT_EQ(person.statuses.size(), 1U);
    kavetta.entries.ecc = "3";
    EXPECT_TRUE(autosave(kavetta));
    EXPECT_TRUE(fs::is_directory(autosaved()));
    EXPECT_TRUE(fs::exists(folder.path() / "autosave-2.KVT"));
}

TEST_F(autosave_test, a_second_program_neither_offers_nor_replaces_nor_deletes_those_of_the_first) {
    note_new_entries(kavetta);
    kavetta.entries.ecc = "1";
    EXPECT_TRUE(autosave(kavetta));
    const std::string bytes = read_file(autosaved());

    program second;
    second.folder = folder.path();
    EXPECT_FALSE(offer_unsaved_entries(second, person));
    EXPECT_TRUE(person.questions.empty());
    note_new_entries(second);
    second.entries.ecc = "2";
    EXPECT_TRUE(autosave(second));
    EXPECT_EQ(line_of(folder.file("autosave-2.KVT"), 11), "2");
    EXPECT_FALSE(save_recovery(kavetta).empty());
    person.answers = {answer::no};
    EXPECT_TRUE(exit_program(second, person));
    EXPECT_EQ(left(), (names{"recovery.KVT", "recovery.lock"}));

    kavetta.entries.ecc = "1.5";
    EXPECT_TRUE(autosave(kavetta));
    EXPECT_NE(read_file(autosaved()), bytes);
}

TEST_F(autosave_test, opening_another_project_leaves_a_recovered_one_for_the_next_start) {
    leave(recovered(), "3.25");
    start_again({answer::yes});
    open_project_file(kavetta, person, project_file("pump.KVT", project_lines()));
    kavetta.entries.ecc = "5";
    autosave(kavetta);
    save_project(kavetta, person);
    exit_with(answer::no);
    EXPECT_EQ(left(), names{"recovery.KVT"});
    EXPECT_EQ(line_of(utf8_of_path(recovered()), 11), "3.25");
}

using recovery_test = autosave_test;

TEST_F(recovery_test, never_replaces_a_file_that_has_not_been_opened) {
    leave(recovered(), "1");
    leave(folder.path() / "recovery-2.KVT", "2");
    kavetta.entries.ecc = "3";
    EXPECT_EQ(save_recovery(kavetta), folder.path() / "recovery-3.KVT");
    EXPECT_EQ(line_of(utf8_of_path(recovered()), 11), "1");
    EXPECT_EQ(line_of(folder.file("recovery-2.KVT"), 11), "2");
}

TEST_F(recovery_test, is_numbered_also_within_a_run_unless_the_entries_are_the_same) {
    note_new_entries(kavetta);
    EXPECT_EQ(save_recovery(kavetta), recovered());
    EXPECT_EQ(save_recovery(kavetta), recovered());
    kavetta.entries.ecc = "3";
    EXPECT_EQ(save_recovery(kavetta), folder.path() / "recovery-2.KVT");
    save_project_as_pump();
    EXPECT_EQ(left(), names{}) << "their entries are saved";
}

TEST_F(recovery_test, replaces_the_file_that_was_opened) {
    leave(recovered(), "1");
    start_again({answer::yes});
    kavetta.entries.ecc = "3";
    EXPECT_EQ(save_recovery(kavetta), recovered());
    EXPECT_EQ(line_of(utf8_of_path(recovered()), 11), "3");
}

TEST_F(recovery_test, takes_the_place_of_the_autosave_of_its_run) {
    note_new_entries(kavetta);
    kavetta.entries.ecc = "3";
    EXPECT_TRUE(autosave(kavetta));
    EXPECT_FALSE(save_recovery(kavetta).empty());
    EXPECT_EQ(left(), (names{"recovery.KVT", "recovery.lock"}));
}

TEST_F(recovery_test, leaves_no_lock_when_it_can_not_be_written) {
    kavetta.entries.ecc = "3\n4";
    EXPECT_TRUE(save_recovery(kavetta).empty());
    EXPECT_EQ(left(), names{});
}

}  // namespace
}  // namespace kvt
