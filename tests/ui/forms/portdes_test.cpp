// portdes: designing and clearing ports, the check boxes, units, languages, keys.
#include "app/program.hpp"
#include "base/number_text.hpp"
#include "ui/desktop_fixture.hpp"
#include "views/port_lines.hpp"

#include <QCheckBox>
#include <QGroupBox>

#include <cmath>

namespace kvt {

namespace {

class portdes_test : public desktop_test {
  protected:
    /// A design with rotors, ready for its ports.
    void start_with_profiles(const std::string& name = "n07_engine_oil_groove") {
        start(own_design_file(name));
        press("Calc");
    }
    bool ticked(const char* check) { return find<QCheckBox>(check)->isChecked(); }
    bool usable(const char* control) { return find_on<QWidget>("portdes", control)->isEnabled(); }
};

}  // namespace

TEST_F(portdes_test, designs_and_draws_the_ports_of_an_opened_design) {
    start_with_profiles();
    press("design_ports");
    EXPECT_EQ(robot.messages, std::vector<std::string>());
    EXPECT_TRUE(shows_outline(kavetta().design_view.inlet_portline));
    EXPECT_TRUE(shows_outline(kavetta().design_view.outlet_portline));
    EXPECT_TRUE(shows_outline(kavetta().design_view.metering_groove_portline));
    EXPECT_TRUE(find<QPushButton>("calc_perf")->isEnabled());
}

TEST_F(portdes_test, fills_empty_entries_and_writes_points_for_commas) {
    start_with_profiles();
    type("inlet_start_inner", "");
    type("Outlet_inner_radius", "");
    type("outlet_start_outer", "14,25");
    press("design_ports");
    EXPECT_EQ(val(shown("inlet_start_inner")),
              std::floor(kavetta().rotor_profiles.min_chamber_inner_angle * 100.0) / 100.0);
    EXPECT_EQ(shown("Outlet_inner_radius"), "14.15");
    EXPECT_EQ(shown("outlet_start_outer"), "14.25");
}

TEST_F(portdes_test, can_not_design_before_the_rotors_are_calculated) {
    start(own_design_file("n07_engine_oil_groove"));
    EXPECT_FALSE(usable("design_ports"));
    QTest::keyClick(box("port_radii"), Qt::Key_Return);
    settle();
    EXPECT_FALSE(shows_outline(kavetta().design_view.inlet_portline));
    press("Calc");
    EXPECT_TRUE(usable("design_ports"));
}

TEST_F(portdes_test, enter_in_an_entry_designs) {
    start_with_profiles();
    QTest::keyClick(box("port_radii"), Qt::Key_Return);
    settle();
    EXPECT_TRUE(shows_outline(kavetta().design_view.inlet_portline));
}

TEST_F(portdes_test, two_double_sided_ports_leave_no_shadow_ports) {
    start_with_profiles();
    EXPECT_TRUE(ticked("shadow_ports"));
    press("inlet_double_sided");
    EXPECT_TRUE(ticked("shadow_ports"));
    EXPECT_TRUE(usable("shadow_ports"));
    press("outlet_double_sided");
    EXPECT_FALSE(ticked("shadow_ports"));
    EXPECT_FALSE(usable("shadow_ports"));
    EXPECT_EQ(kavetta().entries.shadow_ports, "0");
    press("inlet_double_sided");
    EXPECT_TRUE(usable("shadow_ports"));
    EXPECT_FALSE(ticked("shadow_ports"));
}

TEST_F(portdes_test, the_groove_check_decides_about_its_entries_and_their_captions) {
    start();
    for (const char* control :
         {"groove_length", "groove_width", "groove_depth", "Label10", "Label11", "Label12"}) {
        EXPECT_FALSE(usable(control)) << control;
    }
    press("metering_groove");
    for (const char* control :
         {"groove_length", "groove_width", "groove_depth", "Label10", "Label11", "Label12"}) {
        EXPECT_TRUE(usable(control)) << control;
    }
    press("metering_groove");
    EXPECT_FALSE(usable("groove_width"));
    EXPECT_FALSE(usable("Label11"));
}

TEST_F(portdes_test, every_porting_type_asks_for_a_new_design_before_the_performance) {
    for (const char* check :
         {"inlet_double_sided", "outlet_double_sided", "shadow_ports", "metering_groove"}) {
        start_with_profiles();
        press("design_ports");
        EXPECT_TRUE(find<QPushButton>("calc_perf")->isEnabled());
        press(check);
        EXPECT_FALSE(find<QPushButton>("calc_perf")->isEnabled()) << check;
    }
}

TEST_F(portdes_test, tells_a_missing_groove_entry_empties_and_focuses_it) {
    start_with_profiles();
    type("groove_width", "0");
    press("design_ports");
    EXPECT_EQ(robot.messages,
              std::vector<std::string>{"Enter a value for the width of the Metering Groove"});
    EXPECT_EQ(shown("groove_width"), "");
    EXPECT_TRUE(QTest::qWaitFor([this] { return box("groove_width")->hasFocus(); }, 2000));
    EXPECT_FALSE(shows_outline(kavetta().design_view.inlet_portline));
}

TEST_F(portdes_test, empties_the_angle_of_each_port_that_no_corner_fits_and_focuses_the_last_one) {
    start_with_profiles("n07_inch_hydraulic");
    type("port_radii", "0.9");
    press("design_ports");
    const std::string refused =
        "Error with the Start Angle Outer Radius, please enter a different value";
    EXPECT_EQ(robot.messages, (std::vector<std::string>{refused, refused}));
    EXPECT_EQ(shown("inlet_start_outer"), "");
    EXPECT_EQ(shown("outlet_start_outer"), "");
    EXPECT_EQ(shown("outlet_start_inner"), "14");
    EXPECT_TRUE(QTest::qWaitFor([this] { return box("outlet_start_outer")->hasFocus(); }, 2000));
}

TEST_F(portdes_test, tells_a_port_that_reaches_too_far_in_the_language_of_the_user) {
    write_settings('2');
    start_with_profiles();
    type("inlet_end_inner", "190");
    type("inlet_end_outer", "188");
    press("design_ports");
    EXPECT_EQ(robot.messages,
              std::vector<std::string>{"Hafen dehnt zu weit in „Auslauf“ Gebiet der Pumpe aus"});
    EXPECT_TRUE(shows_outline(kavetta().design_view.outlet_portline));
}

TEST_F(portdes_test, a_carriage_return_in_a_message_is_one_line_break) {
    start_with_profiles();
    type("port_radii", "9");
    press("design_ports");
    ASSERT_FALSE(robot.messages.empty());
    EXPECT_EQ(robot.messages[0].find('\r'), std::string::npos);
    EXPECT_NE(robot.messages[0].find("\nPlease enter a smaller port radius"), std::string::npos)
        << robot.messages[0];
}

TEST_F(portdes_test, clear_values_empties_the_form_and_takes_the_ports_out_of_the_view) {
    start_with_profiles();
    press("design_ports");
    press("clear_ports");
    for (const entry_field& field : entry_fields()) {
        if (field.form == "portdes" && field.kind == entry_kind::text) {
            EXPECT_EQ(shown(std::string(field.name).c_str()), "") << field.name;
        }
    }
    EXPECT_FALSE(ticked("metering_groove"));
    EXPECT_FALSE(usable("groove_length"));
    EXPECT_FALSE(shows_outline(kavetta().design_view.inlet_portline));
    EXPECT_FALSE(find<QPushButton>("calc_perf")->isEnabled());
    EXPECT_TRUE(usable("design_ports"));
}

TEST_F(portdes_test, units_and_captions_follow_the_length_unit) {
    start();
    EXPECT_EQ(label_on("portdes", "Label11"), "Width (mm)");
    EXPECT_EQ(label_on("portdes", "inlet_inner_radius_unit"), "mm");
    EXPECT_EQ(label_on("portdes", "inlet_start_inner_unit"), "°");
    press("dimens2");
    EXPECT_EQ(label_on("portdes", "Label11"), "Width (inches)");
    EXPECT_EQ(label_on("portdes", "Label12"), "Depth (inches)");
    EXPECT_EQ(label_on("portdes", "port_radii_unit"), "in");
    EXPECT_EQ(label_on("portdes", "outlet_end_outer_unit"), "°");
}

TEST_F(portdes_test, every_caption_follows_the_language) {
    start();
    press("Image2");
    EXPECT_EQ(find<QWidget>("portdes")->windowTitle(), "Portieren Sie Entwurf");
    EXPECT_EQ(find_on<QGroupBox>("portdes", "Frame2")->title(), "Einlasshafen");
    EXPECT_EQ(find_on<QGroupBox>("portdes", "Frame3")->title(), "Auslaufhafen");
    EXPECT_EQ(find_on<QGroupBox>("portdes", "Frame1")->title(), "Portierentyp");
    EXPECT_EQ(utf8_text(find<QCheckBox>("shadow_ports")->text()), "Schatten Portiert");
    EXPECT_EQ(utf8_text(find<QPushButton>("design_ports")->text()), "Zug Portiert");
    EXPECT_EQ(label_on("portdes", "Label10"), "Länge (°)");
    EXPECT_EQ(label_on("portdes", "Label16"), "Äußer Radius");
}

TEST_F(portdes_test, tab_reaches_every_entry_in_reading_order) {
    start_with_profiles();
    QTest::mouseClick(box("inlet_start_inner"), Qt::LeftButton);
    std::vector<std::string> reached;
    for (int step = 0;
         step < 40 && (reached.empty() || QApplication::focusWidget() != box("inlet_start_inner"));
         ++step) {
        reached.push_back(utf8_text(QApplication::focusWidget()->objectName()));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        settle();
    }
    const std::vector<std::string> expected = {
        "inlet_start_inner",  "inlet_start_outer",   "inlet_end_inner",     "inlet_end_outer",
        "inlet_inner_radius", "inlet_outer_radius",  "outlet_start_inner",  "outlet_start_outer",
        "outlet_end_inner",   "outlet_end_outer",    "Outlet_inner_radius", "Outlet_outer_radius",
        "inlet_double_sided", "outlet_double_sided", "shadow_ports",        "metering_groove",
        "groove_length",      "groove_width",        "groove_depth",        "port_radii",
        "design_ports",       "clear_ports"};
    EXPECT_EQ(reached, expected);
}

TEST_F(portdes_test, shows_the_entries_of_the_project_that_is_opened_next) {
    start_with_profiles();
    press("clear_ports");
    robot.files.emplace_back(own_design_file("n09_crank_oil"));
    robot.answers.emplace_back("No");
    choose("mnufileopen");
    EXPECT_EQ(shown("inlet_start_inner"), kavetta().entries.inlet_start_inner);
    EXPECT_NE(shown("inlet_start_inner"), "");
    EXPECT_FALSE(usable("design_ports"));
}

}  // namespace kvt
