// The CNC output dialog on the screen: its boxes, its hidden entry, its messages, its files.
#include "ui/forms/Form3.hpp"

#include "base/fixed_number.hpp"
#include "support/scripted_user.hpp"
#include "ui/desktop_fixture.hpp"

#include <QCheckBox>
#include <QComboBox>
#include <QTimer>

namespace kvt {

namespace {

class Form3_test : public desktop_test {
  protected:
    void SetUp() override {
        robot.left_open = "Form3";
        start(own_design_file("n07_engine_oil_groove"));
        press("Calc");
        press("design_ports");
    }

    /// The dialog, open above the main window without a loop of its own.
    Form3& dialog() {
        if (dialog_ == nullptr) {
            dialog_ = std::make_unique<Form3>(form_context{kavetta(), desk().runner(), person_},
                                              &window());
            dialog_->show();
        }
        return *dialog_;
    }
    void TearDown() override {
        dialog_.reset();
        desktop_test::TearDown();
    }
    void close_dialog() { dialog_.reset(); }
    template <typename control>
    control& part(const char* name) {
        auto* found = dialog().findChild<control*>(name);
        EXPECT_NE(found, nullptr) << name;
        return *found;
    }
    void click(const char* name) { part<QAbstractButton>(name).click(); }
    void choose_resolution(const char* text) {
        part<QComboBox>("machine_res_combo").setCurrentText(text);
    }

  private:
    scripted_user
        person_;  // the status bar of the dialog's boxes; messages go the way of every command
    std::unique_ptr<Form3> dialog_;
};

}  // namespace

TEST_F(Form3_test, shows_the_files_of_rotors_and_ports) {
    EXPECT_EQ(utf8_text(dialog().windowTitle()), "CNC Output File Type");
    EXPECT_EQ(utf8_text(part<QCheckBox>("inner_rot_xy_checkbox").text()),
              "Inner Rotor, X/Y Co-ords");
    EXPECT_EQ(utf8_text(part<QCheckBox>("inner_rot_xy_checked_checkbox").text()),
              "Inner Rotor, X/Y Co-ords - for specified tool size, side checked");
    EXPECT_EQ(utf8_text(part<QPushButton>("okbutton").text()), "OK");
    EXPECT_EQ(utf8_text(part<QLabel>("toolunits").text()), "mm");
    for (const written_file& file : files_of(file_group::cnc)) {
        EXPECT_FALSE(part<QCheckBox>(std::string(file.control).c_str()).isChecked())
            << file.control;
    }
    EXPECT_EQ(part<QComboBox>("machine_res_combo").count(), 5);
    EXPECT_EQ(part<QComboBox>("machine_res_combo").currentText(), "");
}

TEST_F(Form3_test, shows_the_groove_tool_only_for_the_outlet_pocket) {
    auto& entry = part<QLineEdit>("groovetooltext");
    EXPECT_FALSE(entry.isVisible());
    click("outlet_port_xy_tool_checkbox");
    EXPECT_TRUE(entry.isVisible());
    EXPECT_TRUE(part<QLabel>("Label5").isVisible());
    type_keys(&entry, "1");
    click("outlet_port_xy_tool_checkbox");
    EXPECT_FALSE(entry.isVisible());
    EXPECT_EQ(entry.text(), "");
}

TEST_F(Form3_test, stays_open_behind_a_message_and_shows_what_the_check_changed) {
    click("inlet_port_xy_tool_checkbox");
    choose_resolution("0.001");
    part<QLineEdit>("toolsize").setText("3,5");
    click("okbutton");
    EXPECT_EQ(robot.messages,
              std::vector<std::string>{
                  "Max tool size to cut the designed port radius is 3mm.\nSelect a suitable tool "
                  "size"});
    EXPECT_TRUE(dialog().isVisible());
    EXPECT_EQ(part<QLineEdit>("toolsize").text(), "");
}

TEST_F(Form3_test, shows_the_point_for_the_comma_before_the_message_of_the_rotor_stands) {
    click("inner_rot_xy_tool_checkbox");
    choose_resolution("0.001");
    part<QLineEdit>("toolsize").setText("15,1");
    std::string beside_message;
    robot.at_message = [&] {
        beside_message = utf8_text(part<QLineEdit>("toolsize").text());
        EXPECT_TRUE(part<QCheckBox>("inner_rot_xy_tool_checkbox").isChecked());
        EXPECT_EQ(part<QComboBox>("machine_res_combo").currentText(), "0.001");
    };
    click("okbutton");
    EXPECT_EQ(beside_message, "15.1");
    EXPECT_EQ(part<QLineEdit>("toolsize").text(), "15.1") << "neither entry is cleared";
}

TEST_F(Form3_test, refuses_with_a_box_each_time_and_points_at_the_entry) {
    click("inner_rot_xy_checkbox");
    click("okbutton");
    click("okbutton");
    EXPECT_EQ(robot.messages.size(), 2U) << "the status bar lies behind the dialog";
    EXPECT_EQ(dialog().focusWidget(), &part<QComboBox>("machine_res_combo"));
    choose_resolution("0.01");
    click("outer_rot_xy_tool_checkbox");
    click("okbutton");
    EXPECT_EQ(dialog().focusWidget(), &part<QLineEdit>("toolsize"));
    EXPECT_EQ(robot.messages.back(), "You must enter a tool size for this option");
}

TEST_F(Form3_test, brings_back_what_was_used_last) {
    EXPECT_FALSE(part<QPushButton>("last_values").isEnabled()) << "nothing was used yet";
    click("inner_rot_xy_tool_checkbox");
    click("outlet_port_xy_tool_checkbox");
    click("Opp_Plot");
    part<QLineEdit>("toolsize").setText("2,5");
    part<QLineEdit>("groovetooltext").setText("0.5");
    choose_resolution("0.0001");
    robot.files = {std::nullopt, std::nullopt};
    click("okbutton");
    EXPECT_FALSE(dialog().isVisible());

    close_dialog();
    EXPECT_EQ(part<QLineEdit>("toolsize").text(), "") << "an opening starts with empty boxes";
    click("outer_rot_xy_checkbox");
    click("last_values");
    EXPECT_TRUE(part<QCheckBox>("inner_rot_xy_tool_checkbox").isChecked());
    EXPECT_TRUE(part<QCheckBox>("outlet_port_xy_tool_checkbox").isChecked());
    EXPECT_FALSE(part<QCheckBox>("outer_rot_xy_checkbox").isChecked());
    EXPECT_TRUE(part<QCheckBox>("Opp_Plot").isChecked());
    EXPECT_EQ(part<QLineEdit>("toolsize").text(), "2.5");
    EXPECT_TRUE(part<QLineEdit>("groovetooltext").isVisible());
    EXPECT_EQ(part<QLineEdit>("groovetooltext").text(), "0.5");
    EXPECT_EQ(part<QComboBox>("machine_res_combo").currentText(), "0.0001");

    close_dialog();
    kavetta().entries.metering_groove = "0";
    click("last_values");
    EXPECT_FALSE(part<QLineEdit>("groovetooltext").isVisible()) << "no groove to mill";
}

TEST_F(Form3_test, writes_the_ticked_file_and_closes) {
    click("outer_rot_gcodes_checkbox");
    choose_resolution("0.001");
    robot.files = {folder.file("outer.cnc")};
    click("okbutton");
    EXPECT_FALSE(dialog().isVisible());
    EXPECT_EQ(robot.titles,
              std::vector<std::string>{"Kavetta V2021 - Save Outer Rotor Profile - G Codes"});
    EXPECT_TRUE(read_file(folder.file("outer.cnc")).ends_with("G01X0.0000Y0.0000\r\n"));
}

TEST_F(Form3_test, writes_the_inner_rotor_clockwise_when_that_is_ticked) {
    click("inner_rot_xy_checkbox");
    click("Opp_Plot");
    choose_resolution("0.001");
    robot.files = {folder.file("inner.cnc")};
    click("okbutton");
    EXPECT_TRUE(kavetta().cnc_choices.Opp_Plot);
    const rotor_profiles& rotors = kavetta().rotor_profiles;
    ASSERT_GT(rotors.inner_y[1], 0.0);
    const std::string second_line = "\r\nX" + fixed_number(rotors.inner_x[1], 3) + "Y" +
                                    fixed_number(-rotors.inner_y[1], 3) + "\r\n";
    EXPECT_NE(read_file(folder.file("inner.cnc")).find(second_line), std::string::npos);
}

TEST_F(Form3_test, is_opened_by_its_menu_entry_once_there_are_profiles) {
    EXPECT_TRUE(find<QAction>("mnudatacnc")->isEnabled());
    bool seen = false;
    QTimer::singleShot(0, [&] {
        auto* open = qobject_cast<Form3*>(QApplication::activeModalWidget());
        seen = open != nullptr;
        if (seen) {
            open->findChild<QPushButton*>("cancelbutton")->click();
        }
    });
    choose("mnudatacnc");
    EXPECT_TRUE(seen);
}

}  // namespace kvt
