// The choice of the CAD package on the screen, and the menu entries that ask for it.
#include "ui/forms/Form4.hpp"

#include "app/program.hpp"
#include "automation/recorder_host.hpp"
#include "support/scripted_user.hpp"
#include "ui/desktop_fixture.hpp"
#include "ui/recording_viewer.hpp"

#include <QMenu>

namespace kvt {

namespace {

constexpr std::array OPTIONS = {"Option1", "Option2", "Option3", "Option4", "Option5", "Option6"};

class Form4_test : public desktop_test {
  protected:
    /// Chooses an option in the dialog of a command and presses OK; "" presses OK alone.
    void answer_with(const std::string& option) {
        robot.at_package = [option](QDialog& dialog) {
            if (!option.empty()) {
                dialog.findChild<QRadioButton*>(option.c_str())->click();
            }
            dialog.findChild<QPushButton*>("Command1")->click();
        };
    }
    void cancel() {
        robot.at_package = [](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); };
    }
    /// Starts with calculated rotors, and with the recorder in the place of the packages.
    void start_calculated() {
        start(own_design_file("n07_engine_oil_groove"));
        press("Calc");
        kavetta().packages = packages;
    }

    std::shared_ptr<automation::recorder_host> packages =
        std::make_shared<automation::recorder_host>();
};

int options_set(const QDialog& form) {
    return static_cast<int>(
        std::ranges::count_if(form.findChildren<QRadioButton*>(),
                              [](const QRadioButton* option) { return option->isChecked(); }));
}

}  // namespace

TEST_F(Form4_test, shows_the_six_packages) {
    start();
    scripted_user person;
    const Form4 form(kavetta(), person, "", nullptr);
    EXPECT_EQ(utf8_text(form.windowTitle()), "Modelling Package Select");
    EXPECT_EQ(utf8_text(form.findChild<QLabel*>("Label1")->text()),
              "Select the Modelling Package you are using");
    std::vector<std::string> captions;
    for (const char* option : OPTIONS) {
        captions.push_back(utf8_text(form.findChild<QRadioButton*>(option)->text()));
    }
    EXPECT_EQ(captions, (std::vector<std::string>{"AutoCAD", "Inventor", "Solid Edge", "SolidWorks",
                                                  "Catia V5", "Creo Direct"}));
    EXPECT_EQ(utf8_text(form.findChild<QPushButton*>("Command1")->text()), "OK");
    EXPECT_EQ(utf8_text(form.findChild<QRadioButton*>("Option6")->toolTip()),
              "Take the model across with the STEP files.");
}

TEST_F(Form4_test, sets_the_option_of_the_code_and_none_of_another_text) {
    start();
    scripted_user person;
    const Form4 solidworks(kavetta(), person, "SW", nullptr);
    EXPECT_TRUE(solidworks.findChild<QRadioButton*>("Option4")->isChecked());
    EXPECT_EQ(options_set(solidworks), 1);
    EXPECT_EQ(solidworks.code(), "SW");
    for (const char* code : {"", "r14", "2000", "another"}) {
        const Form4 none(kavetta(), person, code, nullptr);
        EXPECT_EQ(options_set(none), 0) << code;
        EXPECT_EQ(none.code(), std::nullopt) << code;
    }
}

TEST_F(Form4_test, opens_the_help_file_with_f1) {
    start();
    write_file(folder.path() / "KVT_V2021_Help_EN.pdf", "");
    recording_viewer viewer;
    scripted_user person;
    Form4 form(kavetta(), person, "", nullptr);
    form.show();
    QTest::keyClick(&form, Qt::Key_F1);
    EXPECT_EQ(viewer.opened.size(), 1U);
}

TEST_F(Form4_test, keeps_the_choice_of_the_menu_entry_in_the_settings) {
    start();
    answer_with("Option2");
    choose("mnumodelpackage");
    EXPECT_EQ(kavetta().app_state.modelling_package, "invent");
    answer_with("");
    choose("mnumodelpackage");
    EXPECT_EQ(kavetta().app_state.modelling_package, "invent") << "its option was set";
    cancel();
    choose("mnumodelpackage");
    EXPECT_EQ(kavetta().app_state.modelling_package, "invent");
    robot.answers.emplace_back("No");
    choose("mnufileexit");
    EXPECT_EQ(split_lines(read_file(folder.path() / "KVT.ini")).at(3), "invent");
}

TEST_F(Form4_test, stores_nothing_without_an_option) {
    start();
    answer_with("");
    choose("mnumodelpackage");
    EXPECT_EQ(kavetta().app_state.modelling_package, "");
}

TEST_F(Form4_test, comes_before_the_first_model_which_is_built_then) {
    start_calculated();
    answer_with("Option1");
    choose("mnumodeltroc");
    EXPECT_EQ(kavetta().app_state.modelling_package, "acad");
    EXPECT_FALSE(packages->calls().empty());
    EXPECT_EQ(robot.messages, std::vector<std::string>());
    EXPECT_EQ(window().findChild<QDialog*>("progressfrm"), nullptr);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    robot.at_package = {};
    choose("mnumodelinner");  // a second dialog would be a surprise
    EXPECT_GT(packages->calls().size(), 10U);
}

TEST_F(Form4_test, cancelled_builds_nothing) {
    start_calculated();
    cancel();
    choose("mnumodelassy");
    EXPECT_TRUE(packages->calls().empty());
    EXPECT_EQ(kavetta().app_state.modelling_package, "");
}

TEST_F(Form4_test, builds_each_model_from_its_menu_entry) {
    start_calculated();
    press("design_ports");
    kavetta().app_state.modelling_package = "acad";
    std::size_t calls = 0;
    for (const char* entry :
         {"mnumodeltroc", "mnumodelinner", "mnumodelouter", "mnumodelassy", "mnumodelporting"}) {
        choose(entry);
        EXPECT_GT(packages->calls().size(), calls) << entry;
        calls = packages->calls().size();
    }
}

TEST_F(Form4_test, the_menu_is_enabled_by_the_stages) {
    start(own_design_file("n07_engine_oil_groove"));
    EXPECT_FALSE(find<QMenu>("mnumodel")->menuAction()->isEnabled());
    press("Calc");
    EXPECT_TRUE(find<QMenu>("mnumodel")->menuAction()->isEnabled());
    EXPECT_TRUE(find<QAction>("mnumodelassy")->isEnabled());
    EXPECT_FALSE(find<QAction>("mnumodelporting")->isEnabled());
    press("design_ports");
    EXPECT_TRUE(find<QAction>("mnumodelporting")->isEnabled());
}

TEST_F(Form4_test, a_failed_model_leaves_one_message_and_no_window) {
    start_calculated();
    kavetta().app_state.modelling_package = "SE";
    packages->fail_call(2, 429);
    choose("mnumodelouter");
    EXPECT_EQ(
        robot.messages,
        std::vector<std::string>{
            "You must have a licensed copy of Solid Edge in order to view the solid models."});
    EXPECT_EQ(window().findChild<QDialog*>("progressfrm"), nullptr);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

}  // namespace kvt
