// result_tables: the figures of the last run, read and copied.
#include "ui/forms/result_tables.hpp"

#include "base/number_text.hpp"
#include "ui/desktop_fixture.hpp"

#include <QAction>
#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QHeaderView>
#include <QTabWidget>
#include <QTableView>

namespace kvt {

namespace {

class result_tables_test : public desktop_test {
  protected:
    void calculate_all() {
        press("Calc");
        press("design_ports");
        press("calc_perf");
    }
    void open_tables() {
        start(own_design_file("n07_engine_oil_groove"));
        calculate_all();
        choose("mnuwindow_result_tables");
    }
    QTableView& view(const char* name) {
        return *loaded("result_tables")->findChild<QTableView*>(name);
    }
    QString cell(const char* name, int row, int column) {
        const QAbstractItemModel& model = *view(name).model();
        return model.index(row, column).data().toString();
    }
    QTabWidget& tabs() { return *loaded("result_tables")->findChild<QTabWidget*>("tables"); }
};

}  // namespace

TEST_F(result_tables_test, shows_a_quantity_a_tab) {
    open_tables();
    EXPECT_EQ(tabs().count(), 7);
    EXPECT_EQ(tabs().tabText(0), "Flow (lit/min)");
    const double flow = kavetta().perf_results.flow_m3s[5][2] * 60000.0;
    EXPECT_NEAR(cell("flow_table", 5, 2).toDouble(), flow, flow * 1e-5);
    EXPECT_EQ(view("angle_table").model()->rowCount(), 361);
}

TEST_F(result_tables_test, copies_the_selected_cells_with_their_heads) {
    open_tables();
    QTableView& flow = view("flow_table");
    flow.setFocus();
    flow.selectRow(2);
    QTest::keySequence(&flow, QKeySequence::Copy);
    const QStringList lines = QGuiApplication::clipboard()->text().split('\n');
    ASSERT_EQ(lines.size(), 3);
    const QStringList cells = lines[1].split('\t');
    ASSERT_EQ(cells.size(), 7);
    EXPECT_EQ(utf8_text(cells[0]), number_text(kavetta().perf_results.speed_rpm[2]));
    EXPECT_EQ(utf8_text(cells[6]), number_text(kavetta().perf_results.flow_m3s[2][5] * 60000.0));
}

TEST_F(result_tables_test, lists_force_and_stress_of_the_chosen_speed_and_pressure) {
    open_tables();
    const perf_results& results = kavetta().perf_results;
    loaded("result_tables")->findChild<QComboBox*>("table_speed")->setCurrentIndex(3);
    loaded("result_tables")->findChild<QComboBox*>("table_pressure")->setCurrentIndex(4);
    const double force = results.contact_force[3][4][90];
    EXPECT_NEAR(cell("angle_table", 90, 3).toDouble(), force, force * 1e-5);
    press("Image2");
    EXPECT_EQ(loaded("result_tables")->findChild<QComboBox*>("table_speed")->currentIndex(), 3);
    EXPECT_EQ(tabs().tabText(6), "Über dem Winkel");
}

TEST_F(result_tables_test, follows_the_units_and_the_next_run) {
    open_tables();
    press("dimens2");
    EXPECT_EQ(tabs().tabText(0), "Flow (USGall/min)");
    press("dimens1");
    type("speed_hi", "4321");
    press("calc_perf");
    ASSERT_NE(loaded("result_tables"), nullptr);
    EXPECT_EQ(view("flow_table").model()->headerData(5, Qt::Vertical).toString(), "4321");
}

TEST_F(result_tables_test, closes_with_a_new_design) {
    open_tables();
    press("Calc");
    settle();
    EXPECT_EQ(loaded("result_tables"), nullptr);
    EXPECT_FALSE(window().findChild<QAction*>("mnuwindow_result_tables")->isEnabled());
}

}  // namespace kvt
