// The menu entries that write files: results of another project, older ones, a file that is not
// whole.
#include "app/program.hpp"
#include "ui/desktop_fixture.hpp"

#include <QFileDialog>

namespace kvt {

namespace {

class exports_ui : public desktop_test {
  protected:
    using texts = std::vector<std::string>;
};

}  // namespace

TEST_F(exports_ui, clear_values_behind_open_brings_no_rotor_of_the_project_before) {
    start(design_file("n07_engine_oil_groove"));
    press("Calc");
    robot.files.emplace_back(design_file("n04_fuel"));
    choose("mnufileopen");
    press("clear_ports");
    robot.titles.clear();
    ASSERT_TRUE(find<QAction>("mnudxfinner")->isEnabled());
    choose("mnudxfinner");
    EXPECT_EQ(robot.messages,
              texts{"Calculate Profiles first: there are no profiles of this project yet."});
    choose("mnustepassy");  // the same text again is a line in the status bar
    EXPECT_EQ(status(), "Calculate Profiles first: there are no profiles of this project yet.");
    EXPECT_TRUE(robot.titles.empty());
}

TEST_F(exports_ui, a_changed_entry_asks_before_the_save_dialog_and_before_form3) {
    start(design_file("n07_engine_oil_groove"));
    press("Calc");
    type("thick", "7");
    robot.answers = {"No", "No", "Yes"};
    choose("mnustepinner");
    choose("mnudatacnc");
    EXPECT_TRUE(robot.titles.empty());
    robot.files.emplace_back(folder.file("pump.dxf"));
    choose("mnudxfinner");
    EXPECT_EQ(robot.questions,
              texts(3,
                    "The entries have changed since the last calculation. Write the calculated "
                    "design?"));
    EXPECT_TRUE(std::filesystem::exists(folder.file("pump.dxf")));
}

TEST_F(exports_ui, the_data_files_are_asked_for_one_after_the_other) {
    start(own_design_file("n07_engine_oil_groove"));
    press("Calc");
    press("design_ports");
    EXPECT_FALSE(find<QAction>("mnudataperf")->isEnabled());
    press("calc_perf");
    ASSERT_TRUE(find<QAction>("mnudataperf")->isEnabled());
    robot.titles.clear();
    std::vector<std::string> proposed;
    robot.at_file_dialog = [&](QFileDialog& dialog) {
        proposed.push_back(utf8_text(dialog.findChild<QLineEdit*>("fileNameEdit")->text()));
    };
    robot.files = {std::nullopt, folder.file("torque.txt"), std::nullopt, std::nullopt,
                   std::nullopt};
    choose("mnudataperf");
    EXPECT_EQ(robot.titles.size(), 5U);
    EXPECT_EQ(robot.titles.front(), "Kavetta V2021 - Save Flow vs Pressure Data");
    EXPECT_EQ(proposed.front(), "n07_engine_oil_groove - Flow");
    EXPECT_EQ(status(), "Written: " + folder.file("torque.txt"));
    EXPECT_TRUE(read_file(folder.file("torque.txt")).ends_with("\r\nEnd of File\r\n"));
}

TEST_F(exports_ui, a_file_whose_writer_failed_is_called_incomplete) {
    start(design_file("n07_inch_hydraulic"));
    press("Calc");
    type("outer_root", kavetta().entries.fillet);  // no room for the fillets' centres
    robot.files.emplace_back(folder.file("outer.dxf"));
    choose("mnudxfouter");  // of an imperial project: the entries as typed
    EXPECT_EQ(status(), "Incomplete: " + folder.file("outer.dxf") + ": Division by zero");
    EXPECT_TRUE(std::filesystem::exists(folder.file("outer.dxf")));
}

}  // namespace kvt
