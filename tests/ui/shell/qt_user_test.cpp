// What is told on the desk: message boxes, and lines of the status bar.
#include "ui/shell/qt_user.hpp"

#include "ui/desktop_fixture.hpp"

#include <QTimer>

namespace kvt {
namespace {

class qt_user_test : public desktop_test {
  protected:
    void tell(const char* text) {
        desk().runner().act([text](program&, user& person) { person.show_message(text); });
    }
};

TEST_F(qt_user_test, a_line_of_the_status_bar_stands_until_the_next_command) {
    start();
    desk().runner().act([](program&, user& person) { person.show_status("Saved"); });
    EXPECT_EQ(status(), "Saved");
    desk().runner().act([](program&, user&) {});
    EXPECT_EQ(status(), "");
}

TEST_F(qt_user_test, a_line_of_the_status_bar_stands_for_15_seconds) {
    start();
    desk().runner().act([](program&, user& person) { person.show_status("Saved"); });
    const auto* timer = window().statusBar()->findChild<QTimer*>();
    ASSERT_NE(timer, nullptr) << "the bar's own timer";
    EXPECT_EQ(timer->interval(), 15000);
}

TEST_F(qt_user_test, a_message_that_stood_in_a_box_is_a_line_until_an_entry_changes) {
    start();
    tell("Minimum value for Outer Rotor Root Radius is 24.8");
    EXPECT_EQ(robot.messages.size(), 1U);
    EXPECT_EQ(status(), "");
    tell("Minimum value for Outer Rotor Root Radius is 24.8");
    EXPECT_EQ(robot.messages.size(), 1U) << "no second box";
    EXPECT_EQ(status(), "Minimum value for Outer Rotor Root Radius is 24.8");
    tell("another one");
    EXPECT_EQ(robot.messages.size(), 2U);
    type("thick", "3");
    tell("another one");
    EXPECT_EQ(robot.messages.size(), 3U);
}

}  // namespace
}  // namespace kvt
