// Start and end of the desktop program.
#include "app/files/project_entries.hpp"
#include "app/program.hpp"
#include "base/path_text.hpp"
#include "ui/desktop_fixture.hpp"

#include <QDropEvent>
#include <QMimeData>
#include <QTimer>
#include <QUrl>

namespace kvt {

namespace {

class start_and_end : public desktop_test {
  protected:
    std::filesystem::path autosaved() const { return folder.path() / "autosave.KVT"; }

    /// Drags files over a control and drops them there; false when they are not taken.
    bool drop(QWidget* target, const QStringList& files) {
        QMimeData data;
        QList<QUrl> urls;
        for (const QString& file : files) {
            urls.append(QUrl::fromLocalFile(file));
        }
        data.setUrls(urls);
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        enter.ignore();
        QApplication::sendEvent(target, &enter);
        if (!enter.isAccepted()) {
            return false;
        }
        QDropEvent event(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(target, &event);
        settle();
        return true;
    }
};

}  // namespace

TEST_F(start_and_end, a_closed_prompt_starts_with_the_empty_form) {
    start();
    EXPECT_EQ(window().windowTitle(), "Kavetta V2021");
    EXPECT_EQ(shown("numlobes"), "3");
    EXPECT_FALSE(kavetta().app_state.project_has_file);
    EXPECT_TRUE(window().isMaximized());
}

TEST_F(start_and_end, new_at_the_prompt_asks_the_name_and_nothing_else) {
    robot.prompts.emplace_back("new");
    robot.names.emplace_back("first pump");
    program_on_screen = std::make_unique<desktop>(folder.path());
    EXPECT_TRUE(desk().start());
    EXPECT_EQ(window().windowTitle(), "Kavetta V2021 - 'first pump'");
    EXPECT_TRUE(robot.questions.empty());
}

TEST_F(start_and_end, open_at_the_prompt_shows_the_project) {
    robot.prompts.emplace_back("open");
    robot.files.emplace_back(design_file("n04_fuel"));
    program_on_screen = std::make_unique<desktop>(folder.path());
    EXPECT_TRUE(desk().start());
    EXPECT_EQ(window().windowTitle(), "Kavetta V2021 - 'n04_fuel'");
    EXPECT_EQ(shown("numlobes"), "4");
}

TEST_F(start_and_end, a_path_takes_the_place_of_the_prompt) {
    start(design_file("n04_fuel"));
    EXPECT_EQ(window().windowTitle(), "Kavetta V2021 - 'n04_fuel'");
}

TEST_F(start_and_end,
       a_path_that_does_not_exist_leaves_the_empty_form_and_a_line_in_the_status_bar) {
    start(utf8_of_path(folder.path() / "none.KVT"));
    EXPECT_EQ(status(), "The file could not be opened: File not found (No such file or directory)");
    EXPECT_EQ(shown("numlobes"), "3");
}

TEST_F(start_and_end, missing_settings_are_fatal_and_told) {
    std::filesystem::remove(folder.path() / "KVT.ini");
    program_on_screen = std::make_unique<desktop>(folder.path());
    EXPECT_FALSE(desk().start());
    ASSERT_EQ(robot.messages.size(), 1U);
    EXPECT_NE(robot.messages[0].find("Run-time error 53"), std::string::npos) << robot.messages[0];
}

TEST_F(start_and_end, closing_the_main_window_asks_and_cancel_keeps_it) {
    start();
    robot.answers.emplace_back("Cancel");
    window().close();
    EXPECT_TRUE(window().isVisible());
    EXPECT_FALSE(desk().runner().has_ended());
    EXPECT_EQ(robot.questions,
              std::vector<std::string>{"Do you wish to save any changes before exiting?"});
}

TEST_F(start_and_end, closing_the_design_form_asks_the_same_and_no_ends_the_program) {
    start();
    robot.answers.emplace_back("No");
    find<QWidget>("Form1")->close();
    EXPECT_TRUE(desk().runner().has_ended());
    EXPECT_TRUE(window().close());
    EXPECT_EQ(robot.questions.size(), 1U);
}

TEST_F(start_and_end, escape_at_the_exit_question_means_cancel) {
    start();
    QTimer::singleShot(0,
                       [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape); });
    choose("mnufileexit");
    EXPECT_FALSE(desk().runner().has_ended());
}

TEST_F(start_and_end, yes_at_the_exit_question_saves_under_a_chosen_name_and_ends) {
    start(design_file("n04_fuel"));
    robot.answers.emplace_back("Yes");
    robot.files.emplace_back(utf8_of_path(folder.path() / "last.KVT"));
    choose("mnufileexit");
    EXPECT_TRUE(desk().runner().has_ended());
    EXPECT_TRUE(std::filesystem::exists(folder.path() / "last.KVT"));
}

TEST_F(start_and_end, a_cancelled_save_at_exit_keeps_the_entries_in_the_recovery_project) {
    start();
    type("ecc", "2.75");
    robot.answers.emplace_back("Yes");
    robot.files.emplace_back(std::nullopt);
    choose("mnufileexit");
    EXPECT_TRUE(desk().runner().has_ended());
    EXPECT_NE(read_file(folder.path() / "recovery.KVT").find("2.75\r\n"), std::string::npos);
}

TEST_F(start_and_end, questions_have_german_buttons_in_german) {
    write_settings('2');
    start();
    robot.answers.emplace_back("Abbrechen");
    choose("mnufileexit");
    EXPECT_EQ(robot.questions,
              std::vector<std::string>{
                  "Wünschen Sie, irgendeine Änderungen zu sparen, bevor ausgehend?"});
}

TEST_F(start_and_end, the_last_window_that_closes_does_not_end_the_program) {
    EXPECT_FALSE(QApplication::quitOnLastWindowClosed());
}

TEST_F(start_and_end, a_project_dropped_on_the_window_is_opened) {
    start();
    EXPECT_TRUE(drop(&window(), {qt_text(design_file("n04_fuel"))}));
    EXPECT_EQ(window().windowTitle(), "Kavetta V2021 - 'n04_fuel'");
    EXPECT_EQ(shown("numlobes"), "4");
    EXPECT_EQ(kavetta().app_state.mnufileprev[0], design_file("n04_fuel"));
}

TEST_F(start_and_end, other_files_and_several_at_once_are_not_taken) {
    start();
    EXPECT_FALSE(drop(&window(), {"/a/picture.png"}));
    EXPECT_FALSE(drop(&window(), {"/a/one.KVT", "/a/two.KVT"}));
    EXPECT_TRUE(drop(&window(), {qt_text(utf8_of_path(folder.path() / "none.kvt"))}));
    EXPECT_EQ(status(), "The file could not be opened: File not found (No such file or directory)");
}

TEST_F(start_and_end, an_entry_does_not_take_a_dropped_project_for_itself) {
    start();
    EXPECT_FALSE(box("ecc")->acceptDrops());
}

TEST_F(start_and_end, changed_entries_are_saved_every_thirty_seconds_once_the_prompt_has_closed) {
    bool waits = false;
    robot.at_prompt = [&] { waits = !desk().autosave_timer().isActive(); };
    start();
    EXPECT_TRUE(waits);
    QTimer& timer = desk().autosave_timer();
    EXPECT_TRUE(timer.isActive());
    EXPECT_EQ(timer.interval(), 30000);
    EXPECT_FALSE(timer.isSingleShot());
    timer.setInterval(0);
    settle();
    EXPECT_FALSE(std::filesystem::exists(autosaved())) << "nothing has changed";
    type("ecc", "2.75");
    settle();
    ASSERT_TRUE(std::filesystem::exists(autosaved()));
    EXPECT_NE(read_file(autosaved()).find("2.75\r\n"), std::string::npos);
    EXPECT_FALSE(kavetta().app_state.project_has_file);
}

TEST_F(start_and_end, an_orderly_end_deletes_what_was_saved_and_saves_no_more) {
    start();
    desk().autosave_timer().setInterval(0);
    type("ecc", "2.75");
    settle();
    ASSERT_TRUE(std::filesystem::exists(autosaved()));
    robot.answers.emplace_back("No");
    choose("mnufileexit");
    settle();
    EXPECT_FALSE(std::filesystem::exists(autosaved()));
}

TEST_F(start_and_end, unsaved_entries_of_an_earlier_run_are_offered_in_place_of_the_prompt) {
    start();
    type("ecc", "2.75");
    write_entries(kavetta(), utf8_of_path(autosaved()));
    robot.answers.emplace_back("Yes");
    program_on_screen = std::make_unique<desktop>(folder.path());
    EXPECT_TRUE(desk().start());
    EXPECT_EQ(shown("ecc"), "2.75");
    EXPECT_FALSE(kavetta().app_state.project_has_file);
    EXPECT_EQ(robot.questions.size(), 1U);
}

TEST_F(start_and_end, after_a_crash_the_question_names_the_project_and_yes_stands_in_it) {
    start(own_design_file("n04_fuel"));
    type("ecc", "2.75");
    desk().autosave_timer().setInterval(0);
    settle();
    ASSERT_TRUE(std::filesystem::exists(autosaved()));
    program_on_screen.reset();  // without an exit
    robot.answers.emplace_back("Yes");
    program_on_screen = std::make_unique<desktop>(folder.path());
    EXPECT_TRUE(desk().start());
    ASSERT_EQ(robot.questions.size(), 1U);
    EXPECT_TRUE(
        robot.questions[0].starts_with("Kavetta found entries that were not saved: 'n04_fuel', "))
        << robot.questions[0];
    EXPECT_EQ(window().windowTitle(), "Kavetta V2021 - 'n04_fuel'");
    EXPECT_EQ(shown("ecc"), "2.75");
    EXPECT_EQ(shown("numlobes"), "4");
    robot.files.emplace_back(utf8_of_path(folder.path() / "projects" / "recovered.KVT"));
    choose("mnufilesave");
    EXPECT_FALSE(std::filesystem::exists(autosaved()));
    robot.answers.clear();
}

TEST_F(start_and_end, a_second_program_leaves_the_unsaved_entries_of_the_first_alone) {
    start();
    type("ecc", "2.75");
    desk().autosave_timer().setInterval(0);
    settle();
    ASSERT_TRUE(std::filesystem::exists(autosaved()));
    const std::unique_ptr<desktop> first = std::move(program_on_screen);
    start();
    EXPECT_TRUE(robot.questions.empty());
    EXPECT_EQ(shown("ecc"), "0");
    robot.answers.emplace_back("No");
    choose("mnufileexit");
    EXPECT_TRUE(std::filesystem::exists(autosaved()));
}

TEST_F(start_and_end, a_save_that_could_not_be_opened_again_asks_and_no_leads_to_the_entry) {
    start(own_design_file("n04_fuel"));
    kavetta().entries.ecc.clear();
    robot.answers.emplace_back("No");
    choose("mnufilesave");
    ASSERT_EQ(robot.questions.size(), 1U);
    EXPECT_NE(robot.questions[0].find("'Eccentricity'"), std::string::npos) << robot.questions[0];
    EXPECT_TRUE(box("ecc")->hasFocus());
}

}  // namespace kvt
