// Leaving an entry: when its handler runs, and when it must not.
#include "app/program.hpp"
#include "base/path_text.hpp"
#include "ui/desktop_fixture.hpp"

namespace kvt {

namespace {

class entry_focus_test : public desktop_test {};

constexpr const char* LOBES = "The number of Outer Lobes must be an integer, of minimum value = 3";
constexpr const char* ABOVE_ZERO = "This value must be greater than zero!";

}  // namespace

TEST_F(entry_focus_test, tab_runs_the_handler) {
    start();
    type("coarseness", "7");
    EXPECT_EQ(kavetta().entries.coarseness, "7");
    QTest::keyClick(box("coarseness"), Qt::Key_Tab);
    settle();
    EXPECT_EQ(shown("coarseness"), "1");
}

TEST_F(entry_focus_test, a_click_into_another_entry_runs_the_handler_with_its_message_once) {
    start();
    type("maxdiameter", "0");
    EXPECT_TRUE(robot.messages.empty());
    QTest::mouseClick(box("ecc"), Qt::LeftButton);
    settle();
    EXPECT_EQ(robot.messages, std::vector<std::string>{ABOVE_ZERO});
    EXPECT_EQ(shown("maxdiameter"), "1");
    EXPECT_TRUE(box("ecc")->hasFocus());
}

TEST_F(entry_focus_test, a_button_runs_the_handler_before_its_command) {
    start();
    type("numlobes", "2");
    press("Calc");
    ASSERT_EQ(robot.messages.size(), 2U);
    EXPECT_EQ(robot.messages[0], LOBES);
    EXPECT_EQ(robot.messages[1], "Input a value for the diameter of the shaft");
    EXPECT_EQ(shown("numlobes"), "3");
}

TEST_F(entry_focus_test, enter_and_menu_entries_run_the_handler_before_their_command) {
    start();
    type("coarseness", "7");
    QTest::keyClick(box("coarseness"), Qt::Key_Return);
    settle();
    EXPECT_EQ(shown("coarseness"), "1");
    type("coarseness", "0");
    robot.files.emplace_back(utf8_text(qt_text(utf8_of_path(folder.path() / "saved.KVT"))));
    choose("mnufilesave");
    EXPECT_EQ(shown("coarseness"), "1");
    EXPECT_NE(read_file(folder.path() / "saved.KVT").find("\r\n1\r\n0\r\n"), std::string::npos);
}

TEST_F(entry_focus_test, a_shortcut_runs_the_handler_before_its_command) {
    start();
    type("coarseness", "7");
    robot.files.emplace_back(std::nullopt);
    QTest::keyClick(box("coarseness"), Qt::Key_S, Qt::ControlModifier);
    settle();
    EXPECT_EQ(robot.titles, std::vector<std::string>{"Kavetta V2021 - Save Project"});
    EXPECT_EQ(shown("coarseness"), "1");
}

TEST_F(entry_focus_test, another_active_window_does_not_run_the_handler) {
    start();
    type("coarseness", "7");
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    settle();
    EXPECT_EQ(shown("coarseness"), "7");
    other.hide();
    window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
    settle();
    EXPECT_EQ(shown("coarseness"), "7");
    QTest::keyClick(box("coarseness"), Qt::Key_Tab);
    settle();
    EXPECT_EQ(shown("coarseness"), "1");
}

TEST_F(entry_focus_test, typing_alone_runs_no_handler_and_disables_nothing) {
    start(design_file("n04_fuel"));
    press("Calc");
    const enabling before = kavetta().enabling;
    type("maxdiameter", "0");
    settle();
    EXPECT_EQ(kavetta().entries.maxdiameter, "0");
    EXPECT_EQ(shown("maxdiameter"), "0");
    EXPECT_TRUE(robot.messages.empty());
    EXPECT_EQ(kavetta().enabling, before);
}

TEST_F(entry_focus_test, commands_never_nest) {
    start();
    int runs = 0;
    desk().runner().act([&](program&, user&) {
        ++runs;
        desk().runner().act([&](program&, user&) { ++runs; });
    });
    EXPECT_EQ(runs, 1);
}

}  // namespace kvt
