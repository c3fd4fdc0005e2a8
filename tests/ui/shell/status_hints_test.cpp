// status_hints: the hint of stale results follows the typing.
#include "ui/desktop_fixture.hpp"
#include "ui/parts/hint_button.hpp"

namespace kvt {

namespace {

class status_hints_test : public desktop_test {
  protected:
    bool is_shown() { return find<QLabel>("stale_hint")->isVisible(); }
};

}  // namespace

TEST_F(status_hints_test, nothing_is_stale_before_profiles_are_calculated) {
    start();
    type("ecc", "2.5");
    EXPECT_FALSE(is_shown());
}

TEST_F(status_hints_test, comes_with_a_key_and_goes_with_the_next_run) {
    start(design_file("n07_engine_oil_groove"));
    press("Calc");
    EXPECT_FALSE(is_shown());
    QTest::keyClick(box("ecc"), '1');
    EXPECT_TRUE(is_shown());
    EXPECT_EQ(label("stale_hint"), "Entries have changed: Calculate Profiles again");
    QTest::keyClick(box("ecc"), Qt::Key_Backspace);
    EXPECT_EQ(is_shown(), shown("ecc") != "2.85");
    type("ecc", "2.8");
    EXPECT_TRUE(is_shown());
    EXPECT_TRUE(find<QPushButton>("Calc")->isEnabled()) << "typing disables nothing";
    press("Calc");
    EXPECT_FALSE(is_shown());
}

TEST_F(status_hints_test, stays_beside_other_lines_of_the_status_bar_and_speaks_german) {
    write_settings('2');
    start(design_file("n07_engine_oil_groove"));
    press("Calc");
    type("ecc", "2.8");
    desk().window().statusBar()->showMessage("another line");
    EXPECT_TRUE(is_shown());
    EXPECT_EQ(label("stale_hint"), "Eingaben wurden geändert: Profile neu berechnen");
}

TEST_F(status_hints_test, a_change_of_the_length_unit_makes_results_stale) {
    start(design_file("n07_engine_oil_groove"));
    press("Calc");
    press("dimens2");
    EXPECT_TRUE(is_shown());
}

TEST_F(status_hints_test, a_quiet_mark_tells_what_nobody_has_saved) {
    const std::string project = own_design_file("n07_engine_oil_groove");
    start(project);
    const auto* mark = find<QLabel>("unsaved_mark");
    EXPECT_FALSE(mark->isVisible()) << "as it was opened";
    type("ecc", "2.8");
    EXPECT_TRUE(mark->isVisible());
    EXPECT_EQ(utf8_text(mark->text()), "• Unsaved");
    choose("mnufilesave");
    EXPECT_FALSE(mark->isVisible());
    press("dimens2");
    EXPECT_TRUE(mark->isVisible());
}

TEST_F(status_hints_test, the_mark_speaks_german_and_stays_away_from_a_program_without_a_project) {
    write_settings('2');
    start();
    EXPECT_FALSE(find<QLabel>("unsaved_mark")->isVisible());
    type("ecc", "2.8");
    EXPECT_EQ(label("unsaved_mark"), "• Nicht gespeichert");
    EXPECT_TRUE(find<QLabel>("unsaved_mark")->isVisible());
}

TEST_F(status_hints_test, name_the_entry_that_leaves_no_delivery_before_the_press) {
    start(own_design_file("n09_crank_oil"));
    press("Calc");
    press("design_ports");
    EXPECT_FALSE(find<hint_button>("hints")->isVisible());
    type("outlet_end_inner", "180");
    type("outlet_end_outer", "180");
    press("design_ports");
    EXPECT_TRUE(find<hint_button>("hints")->isVisible());
    EXPECT_EQ(utf8_text(find<hint_button>("hints")->text()),
              "Hint: Outlet end angles of 180 leave no delivery");
    type("outlet_end_inner", "150");
    type("outlet_end_outer", "150");
    press("design_ports");
    EXPECT_FALSE(find<hint_button>("hints")->isVisible());
}

}  // namespace kvt
