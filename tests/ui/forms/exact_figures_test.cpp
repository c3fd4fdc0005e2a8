// exact_figures: the table and the charts on the screen, with mouse and keys.
#include "ui/forms/exact_figures.hpp"

#include "app/program.hpp"
#include "base/path_text.hpp"
#include "ui/desktop_fixture.hpp"
#include "ui/parts/chart_painting.hpp"
#include "ui/parts/chart_view.hpp"

#include <QClipboard>
#include <QElapsedTimer>
#include <QMenu>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTableWidget>
#include <QToolButton>
#include <QtTest/qtestcase.h>

namespace kvt {

namespace {

class exact_figures_test : public desktop_test {
  protected:
    void open(const std::string& design = "n07_engine_oil_groove") {
        start(own_design_file(design));
        press("Calc");
        press("design_ports");
        press("calc_perf");
        choose("mnuwindow_exact_figures");
    }
    void wait_for_all() {
        EXPECT_TRUE(QTest::qWaitFor(
            [this] { return kavetta().exact_record.results.has(exact_part::timing); }, 20000));
        settle();
    }
    QMdiSubWindow& form() { return *loaded("exact_figures"); }
    QTableWidget& table() { return *form().findChild<QTableWidget*>("exact_table"); }
    QTabWidget& tabs() { return *form().findChild<QTabWidget*>("exact_tabs"); }
    chart_view& chart(const char* name) { return *form().findChild<chart_view*>(name); }
    int row_of(const char* name) {
        for (int row = 0; row < table().rowCount(); ++row) {
            if (table().item(row, 0)->data(Qt::UserRole).toString() == name) {
                return row;
            }
        }
        ADD_FAILURE() << name;
        return 0;
    }
    QString cell(const char* name, int column) {
        return table().item(row_of(name), column)->text();
    }
    /// The pointer goes to a point of the first curve.
    void point_at(chart_view& view, std::size_t point) {
        const chart_size size{view.width() * 15.0 + CHART_FRAME.width,
                              view.height() * 15.0 + CHART_FRAME.height};
        const chart_drawing drawing = draw_chart(view.chart(), size, std::nullopt, chart_metrics());
        QTest::mouseMove(&view, in_pixels(place_of(view.chart(), drawing, {0, point})).toPoint());
        settle();
    }
    double marked_deg() {
        return kavetta().view_state.marked_chamber.value_or(chamber_place{-1.0, 0.0}).place *
               180.0 / 3.14159265358979;
    }
};

}  // namespace

TEST_F(exact_figures_test, can_be_opened_once_there_are_rotors) {
    start(own_design_file("n07_engine_oil_groove"));
    EXPECT_FALSE(find<QAction>("mnuwindow_exact_figures")->isEnabled());
    press("Calc");
    EXPECT_TRUE(find<QAction>("mnuwindow_exact_figures")->isEnabled());
    choose("mnuwindow_exact_figures");
    ASSERT_NE(loaded("exact_figures"), nullptr);
    EXPECT_EQ(cell("flow", 2),
              "Calculate Performance first: there is no performance of this project yet.");
}

TEST_F(exact_figures_test, shows_the_quick_figures_at_once_and_the_others_as_they_come) {
    open();
    EXPECT_EQ(cell("displacement", 1), "6.0137 Lit/Min/1000rpm");
    EXPECT_EQ(cell("displacement", 2).left(5), "5.988");
    EXPECT_EQ(cell("displacement", 3), "+0.42");
    wait_for_all();
    EXPECT_TRUE(cell("inlet_open", 2).contains("°")) << cell("inlet_open", 2).toStdString();
    EXPECT_TRUE(cell("inlet_speed", 2).contains("m/s"));
    EXPECT_FALSE(cell("least_gap", 2).isEmpty());
}

TEST_F(exact_figures_test, stays_fluid_while_it_works) {
    open();
    QElapsedTimer clock;
    clock.start();
    press("rotate_rotors_cw");
    EXPECT_LT(clock.elapsed(), 2000) << "the turn does not wait for the port timing";
    EXPECT_GE(kavetta().exact_record.revision, 1);
    wait_for_all();
}

TEST_F(exact_figures_test, reads_a_chart_and_shows_the_chamber_in_the_design_view) {
    open();
    tabs().setCurrentIndex(1);
    settle();
    chart_view& volume = chart("volume_chart");
    point_at(volume, 130);
    EXPECT_NEAR(marked_deg(), volume.chart().x_values[130], 2.0);
    const std::size_t points = kavetta().design_view.chamber.outline.size();
    EXPECT_GT(points, 20U);
    point_at(volume, 200);
    EXPECT_NEAR(marked_deg(), volume.chart().x_values[200], 2.0) << "it turns with the pointer";
    EXPECT_EQ(shown("rotated_angle"), kavetta().entries.rotated_angle);
    EXPECT_TRUE(volume.accessibleDescription().contains("mm³"));
}

TEST_F(exact_figures_test, reads_a_chart_by_the_keys) {
    open();
    wait_for_all();
    tabs().setCurrentIndex(3);
    settle();
    chart_view& areas = chart("area_chart");
    areas.setFocus();
    QTest::keyClick(&areas, Qt::Key_Right);
    QTest::keyClick(&areas, Qt::Key_Right);
    EXPECT_NEAR(marked_deg(), areas.chart().x_values[1], 1e-6);
    QTest::keyClick(&areas, Qt::Key_1);
    QTest::keyClick(&areas, Qt::Key_Right);
    EXPECT_NEAR(marked_deg(), areas.chart().x_values[0], 1e-6) << "inlet hidden: outlet's first";
}

TEST_F(exact_figures_test, the_chamber_turns_with_the_pair_and_goes_with_the_window) {
    open();
    tabs().setCurrentIndex(1);
    settle();
    point_at(chart("volume_chart"), 130);
    const double before = marked_deg();
    auto* button = find<QAbstractButton>("rotate_rotors_cw");
    QTest::mousePress(button, Qt::LeftButton);
    QTest::qWait(100);
    QTest::mouseRelease(button, Qt::LeftButton);
    settle();
    EXPECT_GT(marked_deg(), before);
    form().close();
    settle();
    EXPECT_TRUE(kavetta().design_view.chamber.outline.empty());
    EXPECT_FALSE(kavetta().view_state.marked_chamber.has_value());
}

TEST_F(exact_figures_test, a_chart_without_its_stage_tells_the_reason) {
    start(own_design_file("n07_engine_oil_groove"));
    press("Calc");
    choose("mnuwindow_exact_figures");
    EXPECT_TRUE(QTest::qWaitFor(
        [this] { return kavetta().exact_record.results.has(exact_part::gap); }, 20000));
    settle();
    tabs().setCurrentIndex(3);
    auto* pages = qobject_cast<QStackedWidget*>(tabs().currentWidget());
    ASSERT_NE(pages, nullptr);
    const auto* reason = qobject_cast<QLabel*>(pages->currentWidget());
    ASSERT_NE(reason, nullptr);
    EXPECT_EQ(reason->text(), "Design Ports first: there are no ports of this project yet.");
}

TEST_F(exact_figures_test, follows_language_and_units) {
    open();
    wait_for_all();
    press("Image2");
    EXPECT_EQ(form().windowTitle(), "Genaue Werte");
    EXPECT_EQ(tabs().tabText(5), "Spalte");
    EXPECT_EQ(table().horizontalHeaderItem(4)->text(), "Warum");
    EXPECT_EQ(chart("flow_chart").findChild<QAction*>("popupexport")->text(),
              "Diagramm Exportieren...");
    press("dimens2");
    EXPECT_TRUE(cell("inlet_speed", 2).contains("ft/s"));
    EXPECT_EQ(chart("gap_chart").chart().y_unit, "in");
}

TEST_F(exact_figures_test, follows_the_next_calculation) {
    open();
    wait_for_all();
    const QString before = cell("displacement", 2);
    type("thick", "20");
    EXPECT_TRUE(form().findChild<QLabel*>("exact_stale")->isVisible())
        << "the entries are not those of the figures";
    press("Calc");
    ASSERT_NE(loaded("exact_figures"), nullptr);
    EXPECT_FALSE(form().findChild<QLabel*>("exact_stale")->isVisible());
    EXPECT_NE(cell("displacement", 2), before);
    wait_for_all();
}

TEST_F(exact_figures_test, a_sign_stands_beside_a_figure_that_differs_and_opens_its_row) {
    start(own_design_file("n04_fuel"));
    auto* sign = find_on<QToolButton>("Form1", "capacity_exact");
    EXPECT_FALSE(sign->isVisible());
    press("Calc");
    EXPECT_TRUE(sign->isVisible());
    EXPECT_TRUE(sign->toolTip().contains("1.5783 CC/Rev")) << sign->toolTip().toStdString();
    EXPECT_TRUE(sign->toolTip().contains("+6.07"));
    EXPECT_EQ(label("capacity"), kavetta().labels.capacity) << "the label keeps its text";
    QTest::mouseClick(find_on<QToolButton>("Form1", "max_chamb_vol_exact"), Qt::LeftButton);
    settle();
    ASSERT_NE(loaded("exact_figures"), nullptr);
    EXPECT_EQ(table().currentRow(), row_of("max_chamber"));
    press("design_ports");
    press("calc_perf");
    EXPECT_TRUE(find_on<QToolButton>("perf_res", "max_speed_exact")->isVisible());
    EXPECT_FALSE(find_on<QToolButton>("perf_res", "max_cutter_inner_exact")->isVisible())
        << "0.4 % are no difference";
}

TEST_F(exact_figures_test, copies_the_marked_cells) {
    open();
    table().setFocus();
    table().selectRow(0);
    QTest::keySequence(&table(), QKeySequence::Copy);
    const QString copied = QGuiApplication::clipboard()->text();
    EXPECT_TRUE(copied.startsWith("Displacement\t6.0137 Lit/Min/1000rpm\t5.988"))
        << copied.toStdString();
}

TEST_F(exact_figures_test, exports_a_chart_as_numbers) {
    open();
    tabs().setCurrentIndex(1);
    settle();
    const std::filesystem::path file = folder.path() / "volume.csv";
    robot.files.emplace_back(utf8_of_path(file));
    chart("volume_chart").findChild<QAction*>("popupexport")->trigger();
    settle();
    EXPECT_TRUE(read_file(file).starts_with("Inner Rotor since the Least Volume ("))
        << read_file(file).substr(0, 80);
}

TEST_F(exact_figures_test, ctrl_p_prints_the_chart_that_has_the_focus_and_not_the_project) {
    open();
    tabs().setCurrentIndex(1);
    settle();
    const std::filesystem::path page = folder.path() / "chart.pdf";
    robot.prints = {utf8_of_path(page)};
    chart("volume_chart").setFocus();
    QTest::keySequence(&chart("volume_chart"), QKeySequence::Print);
    settle();
    ASSERT_EQ(robot.proposed_prints.size(), 1U);
    EXPECT_TRUE(read_file(page).starts_with("%PDF"));
}

TEST_F(exact_figures_test, a_click_in_the_last_column_opens_the_guide) {
    open();
    table().scrollToItem(table().item(0, 5));
    settle();
    QTest::mouseClick(table().viewport(), Qt::LeftButton, {},
                      table().visualItemRect(table().item(0, 5)).center());
    settle();
    EXPECT_NE(status().find("KVT_V2021_Help_EN.pdf"), std::string::npos)
        << "there is no guide in the folder of this test: " << status();
}

TEST_F(exact_figures_test, escape_closes_and_the_worker_ends_with_it) {
    open();
    QTest::keyClick(&form(), Qt::Key_Escape);
    settle();
    EXPECT_EQ(loaded("exact_figures"), nullptr);
    choose("mnuwindow_exact_figures");
    wait_for_all();
    EXPECT_TRUE(cell("inlet_open", 2).contains("°"));
}

}  // namespace kvt
