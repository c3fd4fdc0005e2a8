// assist_area: the switch of the Design assist, its colours and frame lines, and the run behind its
// button.
#include "app/program.hpp"
#include "ui/desktop_fixture.hpp"

#include <QFrame>

#include <array>
#include <set>

namespace kvt {

namespace {

constexpr std::array FRAME_LINES = {"Line1", "Line3", "Line4", "Line5"};
const QColor GREEN(0, 255, 0);

class assist_area_test : public desktop_test {
  protected:
    QFrame* form_line(const char* name) {
        auto* found = find<QWidget>("Form1")->findChild<QFrame*>(name);
        EXPECT_NE(found, nullptr) << name;
        return found;
    }
    QPushButton* button(const char* name) { return find<QPushButton>(name); }
    std::string caption() { return utf8_text(button("Des_assist_check")->text()); }

    /// The colours that a control has on the screen.
    static std::set<QRgb> colours(QWidget* control) {
        const QImage image = control->grab().toImage().convertToFormat(QImage::Format_RGB32);
        std::set<QRgb> found;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                found.insert(image.pixel(x, y));
            }
        }
        return found;
    }
    std::set<QRgb> frame_colours() {
        std::set<QRgb> found;
        for (const char* line : FRAME_LINES) {
            found.merge(colours(form_line(line)));
        }
        return found;
    }
    QColor ground() { return find<QWidget>("Des_assist_bkgnd")->grab().toImage().pixelColor(1, 1); }
};

}  // namespace

TEST_F(assist_area_test, is_off_at_the_start_with_its_button_and_frame_lines_hidden) {
    start();
    EXPECT_EQ(caption(), "Assist OFF");
    EXPECT_FALSE(button("designer")->isVisible());
    EXPECT_TRUE(button("Calc")->isEnabled());
    for (const char* line : FRAME_LINES) {
        EXPECT_FALSE(form_line(line)->isVisible()) << line;
    }
    EXPECT_EQ(ground(), QApplication::palette().color(QPalette::Window));
}

TEST_F(assist_area_test, turns_green_when_switched_on_and_takes_the_place_of_calculate_profiles) {
    start();
    press("Des_assist_check");
    EXPECT_EQ(caption(), "Assist ON");
    EXPECT_TRUE(button("designer")->isVisible());
    EXPECT_TRUE(button("designer")->isEnabled());
    EXPECT_FALSE(button("Calc")->isEnabled());
    for (const char* line : FRAME_LINES) {
        EXPECT_TRUE(form_line(line)->isVisible()) << line;
    }
    EXPECT_EQ(frame_colours(), std::set<QRgb>{GREEN.rgb()});
    EXPECT_EQ(ground(), GREEN);
    EXPECT_EQ(button("Des_assist_check")->palette().color(QPalette::Button), GREEN);
    EXPECT_NE(button("designer")->palette().color(QPalette::Button), GREEN);
    EXPECT_TRUE(box("ecc")->isEnabled());
}

TEST_F(assist_area_test, switched_off_again_leaves_a_disabled_button_and_black_frame_lines) {
    start();
    press("Des_assist_check");
    press("Des_assist_check");
    EXPECT_EQ(caption(), "Assist OFF");
    EXPECT_TRUE(button("designer")->isVisible());
    EXPECT_FALSE(button("designer")->isEnabled());
    EXPECT_TRUE(button("Calc")->isEnabled());
    EXPECT_EQ(frame_colours(), std::set<QRgb>{QColor(Qt::black).rgb()});
    EXPECT_EQ(ground(), QApplication::palette().color(QPalette::Window));
}

TEST_F(assist_area_test, open_switches_it_off_and_hides_it) {
    start();
    press("Des_assist_check");
    robot.files.emplace_back(design_file("n04_fuel"));
    choose("mnufileopen");
    EXPECT_EQ(caption(), "Assist OFF");
    EXPECT_FALSE(button("designer")->isVisible());
    EXPECT_FALSE(form_line("Line1")->isVisible());
    EXPECT_TRUE(button("Calc")->isEnabled());
}

TEST_F(assist_area_test, new_switches_it_off_and_hides_it) {
    start();
    press("Des_assist_check");
    robot.names.emplace_back("other");
    robot.answers.emplace_back("No");
    choose("mnufilenew");
    EXPECT_EQ(caption(), "Assist OFF");
    EXPECT_FALSE(button("designer")->isVisible());
    EXPECT_FALSE(form_line("Line5")->isVisible());
}

TEST_F(assist_area_test, finds_a_pair_of_the_required_capacity_that_calculate_profiles_takes) {
    start(design_file("n07_engine_oil_groove"));
    press("Calc");
    type("volumereqd", "4,5");
    type("maxdiameter", "80");
    press("Des_assist_check");
    press("designer");
    EXPECT_EQ(robot.messages, std::vector<std::string>());
    EXPECT_EQ(shown("volumereqd"), "4.5");
    EXPECT_GT(std::stod(label("capacity")), 4.5);
    EXPECT_EQ(shown("ecc"), kavetta().entries.ecc);
    EXPECT_NE(shown("radouter"), "7.5");
    EXPECT_EQ(kavetta().app_state.profiles_calculated, 0);
    const std::string found = label("capacity");
    press("Des_assist_check");
    press("Calc");
    EXPECT_EQ(label("capacity"), found);
    EXPECT_EQ(kavetta().app_state.profiles_calculated, -1);
}

TEST_F(assist_area_test, enter_in_an_entry_runs_the_assist_while_it_is_on) {
    start();
    press("Des_assist_check");
    QTest::keyClick(box("ecc"), Qt::Key_Return);
    settle();
    EXPECT_EQ(robot.messages,
              std::vector<std::string>{
                  "Enter a value for the required Volumetric Capacity of the Gerotors"});
}

TEST_F(assist_area_test, tells_that_the_rotors_do_not_fit) {
    start(design_file("n07_engine_oil_groove"));
    type("volumereqd", "900");
    press("Des_assist_check");
    press("designer");
    ASSERT_EQ(robot.messages.size(), 1U);
    EXPECT_TRUE(robot.messages[0].starts_with(
        "The rotor design to achieve this Volumetric Capacity will not fit"));
}

TEST_F(assist_area_test, nothing_moves_when_it_is_switched) {
    start(design_file("n07_engine_oil_groove"));
    const QPoint before = box("numlobes")->mapTo(&window(), QPoint(0, 0));
    press("Des_assist_check");
    EXPECT_EQ(box("numlobes")->mapTo(&window(), QPoint(0, 0)), before);
}

}  // namespace kvt
