// The limits of the entry with the focus in the status bar and in its tooltip.
#include "ui/shell/limits_line.hpp"

#include "app/program.hpp"
#include "ui/desktop_fixture.hpp"

#include <QToolButton>

namespace kvt {

namespace {

class limits_line_test : public desktop_test {
  protected:
    std::string line() { return utf8_text(find<QLabel>("limits_line")->text()); }
    QToolButton* nearest() { return find<QToolButton>("nearest_value"); }
    void wait_for_line(const std::string& beginning) {
        EXPECT_TRUE(QTest::qWaitFor([&] { return line().starts_with(beginning); }, 60000))
            << line();
    }
    void wait_for_nearest() {
        EXPECT_TRUE(QTest::qWaitFor([&] { return nearest()->isVisible(); }, 60000));
    }
};

constexpr const char* ECC_LIMITS = "Eccentricity: up to 2.94 mm (limited by: inner rotor errors)";

}  // namespace

TEST_F(limits_line_test, stand_in_the_status_bar_and_in_the_tooltip) {
    start(design_file("n07_engine_oil_groove"));
    QTest::mouseClick(box("ecc"), Qt::LeftButton);
    wait_for_line(ECC_LIMITS);
    EXPECT_TRUE(find<QLabel>("limits_line")->isVisible());
    EXPECT_FALSE(nearest()->isVisible());
    const QString tooltip = box("ecc")->toolTip();
    EXPECT_TRUE(tooltip.endsWith(QString("\n") + ECC_LIMITS)) << utf8_text(tooltip);
    QTest::mouseClick(box("shaftdiameter"), Qt::LeftButton);
    EXPECT_FALSE(box("ecc")->toolTip().contains("limited by"));
    wait_for_line("Shaft Diameter: up to 25.8 mm");
}

TEST_F(limits_line_test, have_a_comma_in_german) {
    write_settings('2');
    start(design_file("n07_engine_oil_groove"));
    QTest::mouseClick(box("ecc"), Qt::LeftButton);
    wait_for_line("Exzentrizität: bis 2,94 mm (begrenzt durch: Fehler im inneren Rotor)");
}

TEST_F(limits_line_test, follow_the_other_entries) {
    start(design_file("n07_engine_oil_groove"));
    QTest::mouseClick(box("shaftdiameter"), Qt::LeftButton);
    wait_for_line("Shaft Diameter: up to 25.8 mm");
    type("minmaterial", "2.6");
    QTest::mouseClick(box("shaftdiameter"), Qt::LeftButton);
    wait_for_line("Shaft Diameter: up to 25.7 mm");
}

TEST_F(limits_line_test, the_nearest_value_of_a_refused_one_is_entered_by_a_click) {
    start(design_file("n07_engine_oil_groove"));
    type("ecc", "3.2");
    press("Calc");
    wait_for_nearest();
    EXPECT_EQ(robot.messages.size(), 1U);
    EXPECT_EQ(utf8_text(nearest()->text()), "Nearest valid value: 2.94 mm");
    QTest::mouseClick(nearest(), Qt::LeftButton);
    EXPECT_EQ(kavetta().entries.ecc, "2.94");
    EXPECT_EQ(shown("ecc"), "2.94");
    EXPECT_FALSE(nearest()->isVisible());
    press("Calc");
    EXPECT_TRUE(kavetta().stage_entries.rotors);
}

TEST_F(limits_line_test, a_comma_that_was_typed_stays_in_the_nearest_value) {
    start(design_file("n07_engine_oil_groove"));
    type("ecc", "3,2");
    wait_for_nearest();
    QTest::mouseClick(nearest(), Qt::LeftButton);
    EXPECT_EQ(kavetta().entries.ecc, "2,94");
}

TEST_F(limits_line_test, say_nothing_where_nothing_is_accepted) {
    start();
    QTest::mouseClick(box("ecc"), Qt::LeftButton);
    QTest::qWait(limits_line::DELAY_MS + 300);
    EXPECT_EQ(line(), "");
    EXPECT_FALSE(nearest()->isVisible());
}

}  // namespace kvt
