// The pinned design on the screen: its entries in the menu, grey outlines, its column of figures,
// its tables, its dashed curves.
#include "app/trial/pinned_design.hpp"

#include "app/program.hpp"
#include "ui/desktop_fixture.hpp"
#include "ui/forms/graphview2.hpp"

#include <QMenu>
#include <QScrollArea>
#include <QScrollBar>
#include <QTableView>

namespace kvt {

namespace {

constexpr const char* DESIGN = "n07_engine_oil_groove";
constexpr const char* OTHER = "n09_crank_oil";
constexpr int PATIENCE_MS = 20000;

class pinned_design_test : public desktop_test {
  protected:
    void calculate_everything() {
        start(own_design_file(DESIGN));
        press("Calc");
        press("design_ports");
        press("calc_perf");
    }
    void calculate_with(const char* entry, const std::string& text) {
        type(entry, text);
        press("Calc");
        press("calc_perf");
    }
    void pin_other() {
        robot.files.emplace_back(design_file(OTHER));
        choose("mnuwindowpinfile");
    }
    bool can_choose(const char* entry) { return find<QAction>(entry)->isEnabled(); }
    std::string pinned_text_of(const char* result) {
        const QLabel* shown = find<QLabel>((QString(result) + "_pinned").toUtf8().constData());
        return shown->isHidden() ? std::string() : utf8_text(shown->text());
    }
    static std::string heading_below(const QWidget& parent) {
        const auto* heading = parent.findChild<QLabel*>("pinned_heading");
        return heading->isHidden() ? std::string() : utf8_text(heading->toolTip());
    }
    std::string heading() { return heading_below(*window().statusBar()); }
    /// Pixels of the sheet in the grey of the pinned outlines.
    int grey_pixels() {
        settle();
        const QImage sheet = find<QWidget>("Picture1")->grab().toImage();
        int count = 0;
        for (int y = 0; y < sheet.height(); ++y) {
            for (int x = 0; x < sheet.width(); ++x) {
                count += sheet.pixelColor(x, y) == QColor(0x8c, 0x8c, 0x8c) ? 1 : 0;
            }
        }
        return count;
    }
    graphview2& open_flow() {
        press("flow_checkbox");
        press("create_charts");
        graphview2* chart = open_chart("FLOW_graphview2");
        EXPECT_NE(chart, nullptr);
        return *chart;
    }
};

}  // namespace

TEST_F(pinned_design_test, can_be_pinned_once_there_are_rotors) {
    start(own_design_file(DESIGN));
    EXPECT_FALSE(can_choose("mnuwindowpin"));
    EXPECT_FALSE(can_choose("mnuwindowunpin"));
    EXPECT_TRUE(can_choose("mnuwindowpinfile"));
    press("Calc");
    EXPECT_TRUE(can_choose("mnuwindowpin"));
    EXPECT_FALSE(can_choose("mnuwindowunpin"));
    choose("mnuwindowpin");
    EXPECT_EQ(status(), "Pinned: " + kavetta().app_state.project_name);
    EXPECT_TRUE(can_choose("mnuwindowunpin"));
}

TEST_F(pinned_design_test, is_pinned_by_the_keys_of_the_menu) {
    start(own_design_file(DESIGN));
    press("Calc");
    auto* menu = window().findChild<QMenu*>("mnuwindow");
    menu->popup(window().mapToGlobal(QPoint(0, 0)));
    menu->setActiveAction(find<QAction>("mnuwindowpin"));
    QTest::keyClick(menu, Qt::Key_Return);
    settle();
    EXPECT_NE(kavetta().pinned, nullptr);
}

TEST_F(pinned_design_test, lies_in_grey_below_the_present_pair) {
    calculate_everything();
    const int without = grey_pixels();
    choose("mnuwindowpin");
    calculate_with("ecc", "2.7");
    const int pinned = grey_pixels();
    EXPECT_GT(pinned, without + 500);
    press("rotate_rotors_cw");
    EXPECT_GT(grey_pixels(), without + 500);
    choose("mnuwindowunpin");
    EXPECT_LT(grey_pixels(), without + 200);
}

TEST_F(pinned_design_test, stands_in_a_column_beside_the_results) {
    calculate_everything();
    EXPECT_EQ(heading(), "");
    const std::string capacity = label("capacity");
    const std::string speed = label("max_speed");
    choose("mnuwindowpin");
    EXPECT_EQ(pinned_text_of("capacity"), capacity);
    EXPECT_EQ(heading(), "Pinned: " + kavetta().app_state.project_name);
    calculate_with("ecc", "2.7");
    EXPECT_NE(label("capacity"), capacity);
    EXPECT_EQ(pinned_text_of("capacity"), capacity);
    EXPECT_EQ(speed, " " + pinned_text_of("max_speed") + " RPM");
    EXPECT_EQ(heading_below(*loaded("perf_res")), "Pinned: " + kavetta().app_state.project_name);
    choose("mnuwindowunpin");
    EXPECT_EQ(pinned_text_of("capacity"), "");
    EXPECT_EQ(heading_below(*loaded("perf_res")), "");
}

TEST_F(pinned_design_test, leaves_no_result_below_a_scroll_bar) {
    calculate_everything();
    choose("mnuwindowpin");
    type("ecc", "2.7");
    ASSERT_TRUE(
        QTest::qWaitFor([&] { return !find<QLabel>("max_speed_trial")->isHidden(); }, PATIENCE_MS));
    settle();
    for (const char* form : {"Form1", "perf_res"}) {
        const auto* area = window().findChild<QMdiSubWindow*>(form)->findChild<QScrollArea*>();
        EXPECT_FALSE(area->verticalScrollBar()->isVisible()) << form;
        EXPECT_FALSE(area->horizontalScrollBar()->isVisible()) << form;
    }
}

TEST_F(pinned_design_test, stays_through_another_project_in_its_units) {
    calculate_everything();
    choose("mnuwindowpin");
    const auto pinned = kavetta().pinned;
    robot.files.emplace_back(own_design_file(OTHER));
    choose("mnufileopen");
    EXPECT_EQ(kavetta().pinned, pinned);
    EXPECT_NE(pinned_text_of("capacity"), "");
    EXPECT_GT(grey_pixels(), 500) << "there are no rotors above it";
}

TEST_F(pinned_design_test, of_a_project_file_leaves_the_open_project) {
    calculate_everything();
    const std::string capacity = label("capacity");
    const std::string title = utf8_text(window().windowTitle());
    pin_other();
    ASSERT_NE(kavetta().pinned, nullptr);
    EXPECT_EQ(label("capacity"), capacity);
    EXPECT_EQ(utf8_text(window().windowTitle()), title);
    EXPECT_NE(pinned_text_of("capacity"), capacity);
    EXPECT_FALSE(kavetta().enabling.mnudataperf && !kavetta().performance_valid);
}

TEST_F(pinned_design_test, has_tables_of_its_own_below_the_others) {
    calculate_everything();
    choose("mnuwindow_result_tables");
    const auto pinned_view = [&](const char* name) {
        return loaded("result_tables")->findChild<QTableView*>(name);
    };
    EXPECT_TRUE(pinned_view("flow_table_pinned")->parentWidget()->isHidden());
    const auto cell = [&](const char* name) {
        return pinned_view(name)->model()->index(5, 2).data().toString();
    };
    const QString flow = cell("flow_table");
    choose("mnuwindowpin");
    calculate_with("ecc", "2.7");
    choose("mnuwindow_result_tables");
    EXPECT_FALSE(pinned_view("flow_table_pinned")->parentWidget()->isHidden());
    EXPECT_EQ(cell("flow_table_pinned"), flow);
    EXPECT_NE(cell("flow_table"), flow);
    EXPECT_EQ(pinned_view("angle_table_pinned")->model()->rowCount(), 361);
    EXPECT_TRUE(pinned_view("flow_table_pinned")->accessibleName().startsWith("Pinned: "));
    choose("mnuwindowunpin");
    EXPECT_TRUE(pinned_view("flow_table_pinned")->parentWidget()->isHidden());
}

TEST_F(pinned_design_test, has_dashed_curves_in_open_charts) {
    calculate_everything();
    graphview2& flow = open_flow();
    EXPECT_TRUE(flow.chart().pinned.empty());
    const std::vector<double> values = flow.chart().curves[4].values;
    const double maximum = flow.chart().maximum;
    choose("mnuwindowpin");
    ASSERT_EQ(flow.chart().pinned.size(), 5U);
    EXPECT_EQ(flow.chart().pinned[4].values, values);
    EXPECT_EQ(flow.chart().pinned_note, "Dashed: " + kavetta().app_state.project_name);
    pin_other();
    EXPECT_NE(flow.chart().pinned[4].values, values);
    EXPECT_EQ(flow.chart().curves[4].values, values);
    choose("mnuwindowunpin");
    EXPECT_TRUE(flow.chart().pinned.empty());
    EXPECT_EQ(flow.chart().maximum, maximum);
}

TEST_F(pinned_design_test, is_in_a_chart_that_opens_later) {
    calculate_everything();
    choose("mnuwindowpin");
    EXPECT_EQ(open_flow().chart().pinned.size(), 5U);
}

TEST_F(pinned_design_test, is_named_in_the_language_in_force) {
    calculate_everything();
    choose("mnuwindowpin");
    QTest::mouseClick(find<QWidget>("Image2"), Qt::LeftButton);
    settle();
    EXPECT_EQ(heading(), "Angeheftet: " + kavetta().app_state.project_name);
}

}  // namespace kvt
