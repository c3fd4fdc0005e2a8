// The Edit menu with real keys: what is undone, what is done again, and what stays.
#include "app/program.hpp"
#include "ui/desktop_fixture.hpp"

#include <QMenu>
#include <QMenuBar>

namespace kvt {

namespace {

class edit_menu_test : public desktop_test {
  protected:
    /// Without the access key.
    static std::string plain(QString text) { return utf8_text(text.remove('&')); }
    std::string entry(const char* name) { return plain(find<QAction>(name)->text()); }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::ControlModifier) {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
        settle();
    }
    void tab() {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        settle();
    }
};

}  // namespace

TEST_F(edit_menu_test, stands_between_file_and_the_next_menu) {
    start();
    const QList<QAction*> menus = window().menuBar()->actions();
    EXPECT_EQ(plain(menus[0]->text()), "File");
    EXPECT_EQ(plain(menus[1]->text()), "Edit");
    EXPECT_EQ(plain(menus[2]->text()), "Solid Model");
    EXPECT_EQ(entry("mnueditundo"), "Undo");
    EXPECT_FALSE(find<QAction>("mnueditundo")->isEnabled());
    EXPECT_FALSE(find<QAction>("mnueditredo")->isEnabled());
}

TEST_F(edit_menu_test, undoes_a_box_at_once_also_from_the_next_box) {
    start(own_design_file("n07_engine_oil_groove"));
    const std::string before = shown("ecc");
    type("ecc", "2.81");
    EXPECT_EQ(entry("mnueditundo"), "Undo Eccentricity " + before + " → 2.81");
    tab();
    key(Qt::Key_Z);
    EXPECT_EQ(shown("ecc"), before);
    EXPECT_EQ(kavetta().entries.ecc, before);
    EXPECT_EQ(entry("mnueditredo"), "Redo Eccentricity " + before + " → 2.81");
    key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(shown("ecc"), "2.81");
    key(Qt::Key_Z);
    key(Qt::Key_Y);
    EXPECT_EQ(shown("ecc"), "2.81");
    EXPECT_FALSE(find<QAction>("mnueditredo")->isEnabled());
}

TEST_F(edit_menu_test, a_key_in_a_box_undoes_the_step_and_not_the_box_alone) {
    start(own_design_file("n07_engine_oil_groove"));
    const std::string ecc = shown("ecc");
    const std::string thick = shown("thick");
    type("ecc", "2.81");
    type("thick", "33");
    key(Qt::Key_Z);
    EXPECT_EQ(shown("thick"), thick);
    EXPECT_EQ(shown("ecc"), "2.81");
    key(Qt::Key_Z);
    EXPECT_EQ(shown("ecc"), ecc) << "though the box of the thickness has the focus";
    key(Qt::Key_Z);
    EXPECT_EQ(shown("ecc"), ecc);
}

TEST_F(edit_menu_test, keeps_its_words_when_another_menu_opens) {
    start();
    type("ecc", "2");
    emit find<QMenu>("mnudxf")->aboutToShow();
    EXPECT_EQ(entry("mnueditundo"), "Undo Eccentricity 0 → 2");
    EXPECT_FALSE(find<QAction>("mnueditredo")->isEnabled());
}

TEST_F(edit_menu_test, brings_back_what_clear_design_wiped) {
    start(own_design_file("n07_engine_oil_groove"));
    press("Calc");
    const entries before = kavetta().entries;
    const std::string capacity = label("capacity");
    robot.answers.emplace_back("Yes");
    press("cleardesign");
    EXPECT_EQ(shown("ecc"), "0");
    EXPECT_EQ(entry("mnueditundo"), "Undo Clear Design");
    choose("mnueditundo");
    EXPECT_EQ(kavetta().entries, before);
    EXPECT_EQ(shown("ecc"), before.ecc);
    EXPECT_NE(label("capacity"), capacity) << "results do not come back";
    press("Calc");
    EXPECT_EQ(label("capacity"), capacity);
}

TEST_F(edit_menu_test, no_leave_handler_fires) {
    start();
    type("coarseness", "3");
    tab();
    type("coarseness", "7");
    key(Qt::Key_Z);
    EXPECT_EQ(shown("coarseness"), "3");
    EXPECT_TRUE(robot.messages.empty());
}

TEST_F(edit_menu_test, undoes_opening_another_project) {
    start(own_design_file("n07_engine_oil_groove"));
    const std::string path = kavetta().app_state.project_path;
    const QString title = window().windowTitle();
    type("thick", "33");
    robot.files.emplace_back(own_design_file("n04_fuel"));
    choose("mnufileopen");
    EXPECT_EQ(entry("mnueditundo"), "Undo Project '" + kavetta().app_state.project_name + "'");
    choose("mnueditundo");
    EXPECT_EQ(kavetta().app_state.project_path, path);
    EXPECT_EQ(window().windowTitle(), title);
    EXPECT_EQ(shown("thick"), "33");
}

TEST_F(edit_menu_test, undoes_units_and_language) {
    start(own_design_file("n07_engine_oil_groove"));
    press("dimens2");
    EXPECT_EQ(entry("mnueditundo"), "Undo Units mm → inches");
    choose("mnueditundo");
    EXPECT_TRUE(find<QRadioButton>("dimens1")->isChecked());
    EXPECT_EQ(kavetta().app_state.drawing_units, MILLIMETRES);
}

TEST_F(edit_menu_test, speaks_german) {
    write_settings('2');
    start(own_design_file("n07_engine_oil_groove"));
    type("ecc", "2.81");
    EXPECT_TRUE(entry("mnueditundo").starts_with("Rückgängig Exzentrizität "));
    EXPECT_EQ(plain(find<QMenu>("mnuedit")->title()), "Bearbeiten");
    EXPECT_EQ(entry("mnueditredo"), "Wiederholen");
}

}  // namespace kvt
