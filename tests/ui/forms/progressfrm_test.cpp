// progressfrm: the progress of long work.
#include "ui/forms/progressfrm.hpp"

#include "app/program.hpp"
#include "ui/desktop_fixture.hpp"

#include <QProgressBar>

namespace kvt {

namespace {

class progressfrm_test : public desktop_test {
  protected:
    progressfrm* shown_window() { return window().findChild<progressfrm*>(); }
};

}  // namespace

TEST_F(progressfrm_test, appears_with_the_first_progress_and_goes_when_it_is_unloaded) {
    start();
    QString at_work, title, share;
    int percent = 0;
    desk().runner().act([&](kvt::program&, user& person) {
        person.show_progress("Inner rotor", 40);
        ASSERT_NE(shown_window(), nullptr);
        EXPECT_TRUE(shown_window()->isVisible());
        at_work = shown_window()->findChild<QLabel*>("Label2")->text();
        title = shown_window()->windowTitle();
        share = shown_window()->findChild<QLabel*>("Label1")->text();
        percent = shown_window()->findChild<QProgressBar*>("ProgressBar1")->value();
        person.show_progress("", 80);
        EXPECT_EQ(shown_window()->findChild<QLabel*>("Label1")->text(), "80%");
        EXPECT_EQ(shown_window()->findChild<QLabel*>("Label2")->text(), "Inner rotor");
        person.unload_form("progressfrm");
    });
    EXPECT_EQ(at_work, "Inner rotor");
    EXPECT_EQ(title, "Inner rotor");
    EXPECT_EQ(share, "40%");
    EXPECT_EQ(percent, 40);
    EXPECT_EQ(shown_window(), nullptr);
}

TEST_F(progressfrm_test, has_the_texts_of_its_language) {
    start();
    progressfrm english(kavetta(), nullptr);
    EXPECT_EQ(english.windowTitle(), "Progress");
    EXPECT_EQ(english.findChild<QLabel*>("Label2")->text(), "Creating Model...");
    kavetta().app_state.language = GERMAN;
    progressfrm german(kavetta(), nullptr);
    EXPECT_EQ(german.windowTitle(), "Fortschritt");
    EXPECT_EQ(german.findChild<QLabel*>("Label2")->text(), "Schaffenmodell...");
}

TEST_F(progressfrm_test, escape_does_not_close_it) {
    start();
    progressfrm form(kavetta(), nullptr);
    form.show_progress("Inner rotor", 1);
    QTest::keyClick(&form, Qt::Key_Escape);
    EXPECT_TRUE(form.isVisible());
}

}  // namespace kvt
