// The History window: it lists the steps and goes to any of them.
#include "app/program.hpp"
#include "ui/desktop_fixture.hpp"

#include <QListWidget>

namespace kvt {

namespace {

class history_test : public desktop_test {
  protected:
    void show_history() {
        choose("mnuedithistory");
        ASSERT_NE(loaded("history"), nullptr);
    }
    QListWidget& list() { return *loaded("history")->findChild<QListWidget*>("history_list"); }
    std::vector<std::string> steps() {
        std::vector<std::string> texts;
        for (int row = 0; row < list().count(); ++row) {
            texts.push_back(utf8_text(list().item(row)->text()));
        }
        return texts;
    }
    void go_to(int row) {
        list().setCurrentRow(row);
        QTest::keyClick(&list(), Qt::Key_Return);
        settle();
    }
};

}  // namespace

TEST_F(history_test, lists_the_steps_as_they_are_made) {
    start();
    show_history();
    EXPECT_EQ(steps(), std::vector<std::string>{"Start"});
    type("ecc", "2");
    type("thick", "20");
    const std::vector<std::string> expected = {"Start", "Eccentricity 0 → 2",
                                               "Rotor Thickness 1 → 20"};
    EXPECT_EQ(steps(), expected);
    EXPECT_EQ(list().currentRow(), 2);
}

TEST_F(history_test, enter_goes_to_any_step_and_the_others_stay) {
    start();
    type("ecc", "2");
    type("thick", "20");
    type("fillet", "1");
    show_history();
    go_to(1);
    EXPECT_EQ(shown("ecc"), "2");
    EXPECT_EQ(shown("thick"), "1");
    EXPECT_EQ(shown("fillet"), "0");
    EXPECT_EQ(list().count(), 4);
    EXPECT_EQ(list().currentRow(), 1);
    EXPECT_NE(list().item(3)->foreground(), list().item(0)->foreground()) << "paler";
    go_to(3);
    EXPECT_EQ(shown("fillet"), "1");
    EXPECT_EQ(shown("thick"), "20");
}

TEST_F(history_test, opening_it_is_no_step) {
    start();
    type("ecc", "2");
    show_history();
    EXPECT_EQ(steps().size(), 2U);
    EXPECT_EQ(utf8_text(loaded("history")->windowTitle()), "History");
}

}  // namespace kvt
