// select_graphs: ticking the results to draw.
#include "app/program.hpp"
#include "base/path_text.hpp"
#include "ui/desktop_fixture.hpp"
#include "ui/recording_viewer.hpp"

#include <QCheckBox>

namespace kvt {

namespace {

class select_graphs_test : public desktop_test {};

constexpr const char* CHECKS[] = {"flow_checkbox",     "power_checkbox", "stress_checkbox",
                                  "ripple_checkbox",   "ve_checkbox",    "effic_checkbox",
                                  "ovr_effic_checkbox"};

}  // namespace

TEST_F(select_graphs_test, a_tick_is_an_entry_of_the_program) {
    start();
    for (const char* check : CHECKS) {
        EXPECT_EQ(kavetta().entries.*find_entry(check)->member, "0") << check;
        press(check);
        EXPECT_EQ(kavetta().entries.*find_entry(check)->member, "1") << check;
    }
}

TEST_F(select_graphs_test, a_new_project_unticks_all) {
    start(own_design_file("n04_fuel"));
    press("flow_checkbox");
    press("ovr_effic_checkbox");
    robot.names.emplace_back("next");
    robot.answers.emplace_back("No");
    choose("mnufilenew");
    for (const char* check : CHECKS) {
        EXPECT_FALSE(find<QCheckBox>(check)->isChecked()) << check;
    }
}

TEST_F(select_graphs_test, the_charts_can_be_created_once_there_is_a_performance) {
    start(own_design_file("n07_engine_oil_groove"));
    press("Calc");
    press("design_ports");
    press("calc_perf");
    EXPECT_TRUE(kavetta().enabling.create_charts);
    EXPECT_TRUE(find<QPushButton>("create_charts")->isEnabled());
}

TEST_F(select_graphs_test, export_writes_the_workbook_once_there_is_a_performance) {
    const recording_viewer viewer;
    start(own_design_file("n07_engine_oil_groove"));
    press("Calc");
    press("design_ports");
    EXPECT_FALSE(find<QPushButton>("export_excel")->isEnabled());
    press("calc_perf");
    const std::string path = utf8_of_path(folder.path() / "pump.xlsx");
    robot.files.emplace_back(path);
    press("export_excel");
    EXPECT_EQ(robot.titles.back(), "Kavetta V2021 - Export to Excel");
    EXPECT_TRUE(std::filesystem::exists(path));
    EXPECT_EQ(status(), "Written: " + path);
    EXPECT_EQ(viewer.opened, std::vector<std::string>{path});
    EXPECT_EQ(window().findChild<QWidget*>("progressfrm"), nullptr) << "the progress is gone";
}

TEST_F(select_graphs_test, export_that_fails_asks_for_the_data_files) {
    start(own_design_file("n07_engine_oil_groove"));
    press("Calc");
    press("design_ports");
    press("calc_perf");
    robot.files.emplace_back(utf8_of_path(folder.path() / "none" / "pump.xlsx"));
    robot.answers.emplace_back("No");
    press("export_excel");
    ASSERT_EQ(robot.questions.size(), 1U);
    EXPECT_TRUE(robot.questions[0].starts_with("An error has occurred"));
}

TEST_F(select_graphs_test, captions_follow_the_language) {
    start();
    press("Image2");
    EXPECT_EQ(find<QWidget>("select_graphs")->windowTitle(), "Diagramme");
    EXPECT_EQ(utf8_text(find<QCheckBox>("ripple_checkbox")->text()), "Druck Kleine Welle");
    EXPECT_EQ(utf8_text(find<QPushButton>("export_excel")->text()), "Exportieren Excel");
}

TEST_F(select_graphs_test, every_control_is_explained_in_both_languages) {
    start();
    const std::string english = utf8_text(find<QCheckBox>("flow_checkbox")->toolTip());
    press("Image2");
    for (const char* check : CHECKS) {
        EXPECT_TRUE(find<QCheckBox>(check)->toolTip().startsWith("Diagramm de")) << check;
    }
    EXPECT_NE(utf8_text(find<QPushButton>("create_charts")->toolTip()), "");
    EXPECT_NE(utf8_text(find<QPushButton>("export_excel")->toolTip()), "");
    EXPECT_EQ(english,
              "Chart of the delivered flow over the delivery pressure, in Lit/min, or in "
              "USGall/min with inches.");
}

TEST_F(select_graphs_test, tab_goes_down_the_results_and_then_the_efficiencies) {
    start();
    find<QCheckBox>(CHECKS[0])->setFocus();
    settle();
    for (const char* check : CHECKS) {
        EXPECT_TRUE(find<QCheckBox>(check)->hasFocus()) << check;
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        settle();
    }
}

}  // namespace kvt
