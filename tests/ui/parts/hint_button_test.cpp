// hint_button: the hints of the last command as one line in the status bar, and the list behind it.
#include "ui/parts/hint_button.hpp"

#include "app/program.hpp"
#include "ui/desktop_fixture.hpp"

#include <QListWidget>

namespace kvt {

namespace {

class hint_button_test : public desktop_test {
  protected:
    hint_button* button() { return find<hint_button>("hints"); }
    QListWidget* list() { return find<QListWidget>("hint_list"); }

    void run_with(const std::vector<std::string>& hints) {
        desk().runner().act([&](program& kavetta, user&) {
            for (const std::string& text : hints) {
                add_hint(kavetta.hints, text);
            }
        });
        settle();
    }
};

}  // namespace

TEST_F(hint_button_test, is_not_there_without_hints_and_goes_with_the_next_command) {
    start();
    EXPECT_FALSE(button()->isVisible());
    run_with({"Look here."});
    EXPECT_TRUE(button()->isVisible());
    EXPECT_EQ(utf8_text(button()->text()), "Hint: Look here.");
    run_with({});
    EXPECT_FALSE(button()->isVisible());
}

TEST_F(hint_button_test, opens_a_list_of_all_hints) {
    start();
    run_with({"Look here.", "And there.", "And at this one, too."});
    EXPECT_EQ(utf8_text(button()->text()), "Hint: Look here. (+2)");
    EXPECT_FALSE(list()->isVisible());
    QTest::mouseClick(button(), Qt::LeftButton);
    ASSERT_TRUE(list()->isVisible());
    ASSERT_EQ(list()->count(), 3);
    EXPECT_EQ(utf8_text(list()->item(2)->text()), "And at this one, too.");
    list()->close();
}

TEST_F(hint_button_test, a_long_hint_does_not_widen_the_window) {
    start();
    const int width = window().minimumSizeHint().width();
    run_with({std::string(400, 'x')});
    EXPECT_LE(button()->width(), window().width() / 2);
    EXPECT_LE(window().minimumSizeHint().width(), std::max(width, window().width()));
    EXPECT_EQ(utf8_text(button()->toolTip()), std::string(400, 'x'));
}

TEST_F(hint_button_test, opens_its_list_at_f6) {
    start();
    run_with({"Look here.", "And there."});
    QTest::keyClick(&window(), Qt::Key_F6);
    EXPECT_TRUE(list()->isVisible());
    EXPECT_EQ(list()->currentRow(), 0);
    QTest::keyClick(list(), Qt::Key_Escape);
    EXPECT_FALSE(list()->isVisible());
}

}  // namespace kvt
