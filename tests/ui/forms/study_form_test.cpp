// The Study window: what is asked, the rows that come, and what is done with a design.
#include "app/program.hpp"
#include "base/number_text.hpp"
#include "base/whole_file.hpp"
#include "ui/desktop_fixture.hpp"
#include "ui/parts/chart_view.hpp"

#include <QComboBox>
#include <QHeaderView>
#include <QListWidget>
#include <QSpinBox>
#include <QTabWidget>
#include <QTableView>
#include <QTableWidget>

namespace kvt {

namespace {

constexpr int LONG = 60000;

class study_form_test : public desktop_test {
  protected:
    void show_study() {
        start(own_design_file("n07_engine_oil_groove"));
        press("Calc");
        choose("mnuwindow_study_form");
        ASSERT_NE(loaded("study_form"), nullptr);
    }
    template <typename control>
    control* on_study(const char* name) {
        return find_on<control>("study_form", name);
    }
    void press_on_study(const char* name) {
        QTest::mouseClick(on_study<QPushButton>(name), Qt::LeftButton);
        settle();
    }
    void add(const char* entry, const char* values) {
        auto* list = on_study<QComboBox>("study_entry");
        list->setCurrentIndex(list->findData(entry));
        press_on_study("add_variable");
        auto* variables = on_study<QTableWidget>("variables");
        variables->item(variables->rowCount() - 1, 1)->setText(values);
    }
    void fill(const char* name, const QString& text) { on_study<QLineEdit>(name)->setText(text); }
    void calculate() {
        press_on_study("run_study");
        auto* run = on_study<QPushButton>("run_study");
        ASSERT_TRUE(QTest::qWaitFor([run] { return run->isEnabled(); }, LONG));
        settle();
    }
    QTableView* table() { return on_study<QTableView>("study_table"); }
    int row_count() { return table()->model()->rowCount(); }
    QString cell(int row, int column) {
        return table()->model()->index(row, column).data().toString();
    }
    /// Two levels of ecc, all combinations.
    void calculate_two() {
        add("ecc", "2,2.25");
        on_study<QComboBox>("study_kind")->setCurrentIndex(0);
        calculate();
        ASSERT_EQ(row_count(), 2);
    }
    void calculate_two_by_two() {
        add("ecc", "2,2.25");
        on_study<QComboBox>("study_kind")->setCurrentIndex(0);
        calculate();
        ASSERT_EQ(row_count(), 4);
    }
};

}  // namespace

TEST_F(study_form_test, adds_a_number_with_the_range_in_which_it_is_accepted) {
    show_study();
    auto* list = on_study<QComboBox>("study_entry");
    list->setCurrentIndex(list->findData("ecc"));
    press_on_study("add_variable");
    auto* variables = on_study<QTableWidget>("variables");
    ASSERT_EQ(variables->rowCount(), 1);
    EXPECT_EQ(variables->item(0, 0)->text(), "ecc");
    const QStringList ends = variables->item(0, 1)->text().split(':');
    ASSERT_EQ(ends.size(), 3);
    EXPECT_LT(ends[0].toDouble(), val(kavetta().entries.ecc));
    EXPECT_GT(ends[1].toDouble(), val(kavetta().entries.ecc));
    EXPECT_GT(ends[2].toDouble(), 0.0);
    press_on_study("remove_variable");
    EXPECT_EQ(variables->rowCount(), 0);
}

TEST_F(study_form_test, counts_lobes_in_whole_numbers) {
    show_study();
    auto* list = on_study<QComboBox>("study_entry");
    list->setCurrentIndex(list->findData("numlobes"));
    press_on_study("add_variable");
    EXPECT_TRUE(on_study<QTableWidget>("variables")->item(0, 1)->text().endsWith(":1"));
}

TEST_F(study_form_test, adds_both_states_of_a_check_box) {
    show_study();
    auto* list = on_study<QComboBox>("study_entry");
    list->setCurrentIndex(list->findData("metering_groove"));
    press_on_study("add_variable");
    EXPECT_EQ(on_study<QTableWidget>("variables")->item(0, 1)->text(), "0,1");
}

TEST_F(study_form_test, calculates_the_designs_of_its_plan) {
    show_study();
    calculate_two();
    EXPECT_EQ(cell(0, 1), "2");
    EXPECT_EQ(cell(1, 1), "2.25");
    EXPECT_EQ(utf8_text(on_study<QLabel>("study_shown")->text()), "2 of 2 rows");
    EXPECT_EQ(utf8_text(on_study<QLabel>("study_progress_text")->text()), "2 of 2 designs");
    // The capacity of the design on its own.
    type("ecc", "2.25");
    press("Calc");
    EXPECT_EQ(cell(1, 3), qt_text(kavetta().labels.capacity));
}

TEST_F(study_form_test, works_on_the_entries_as_they_stand) {
    show_study();
    type("thick", "24");
    calculate_two();
    const double thick = cell(0, 3).toDouble();
    type("thick", "12");
    calculate();
    EXPECT_NEAR(cell(0, 3).toDouble(), thick / 2.0, 0.001);
}

TEST_F(study_form_test, says_what_is_wrong_and_keeps_what_was_typed) {
    show_study();
    add("ecc", "3:2");
    press_on_study("run_study");
    EXPECT_EQ(robot.messages, std::vector<std::string>{"'3:2' is no range: it goes up"});
    EXPECT_EQ(on_study<QTableWidget>("variables")->item(0, 1)->text(), "3:2");
    EXPECT_TRUE(on_study<QPushButton>("run_study")->isEnabled());
}

TEST_F(study_form_test, says_that_nothing_varies) {
    show_study();
    // Other numbers: what was told a moment ago is told in the status bar alone.
    const auto told = [this](int kind, int count) {
        on_study<QComboBox>("study_kind")->setCurrentIndex(kind);
        on_study<QSpinBox>("study_count")->setValue(count);
        robot.messages.clear();
        press_on_study("run_study");
        EXPECT_TRUE(on_study<QPushButton>("run_study")->isEnabled()) << "nothing runs";
        return robot.messages;
    };
    using texts = std::vector<std::string>;
    fill("study_aims", "ripple:min");
    EXPECT_EQ(told(1, 30),
              texts{"a sample needs something to vary: all 30 designs would be the same"});
    EXPECT_EQ(told(2, 40),
              texts{"a sample needs something to vary: all 40 designs would be the same"});
    EXPECT_EQ(told(3, 50), texts{"a search needs something to vary"});
    EXPECT_EQ(on_study<QSpinBox>("study_count")->value(), 50);
    EXPECT_EQ(on_study<QLineEdit>("study_aims")->text(), "ripple:min");
    EXPECT_EQ(row_count(), 0);
}

TEST_F(study_form_test, calculates_the_design_itself_where_nothing_varies) {
    show_study();
    on_study<QComboBox>("study_kind")->setCurrentIndex(0);
    calculate();
    ASSERT_EQ(row_count(), 1);
    EXPECT_EQ(cell(0, 2), qt_text(kavetta().labels.capacity));
}

TEST_F(study_form_test, takes_a_design_over_as_one_step) {
    show_study();
    const std::string before = kavetta().entries.ecc;
    calculate_two();
    table()->selectRow(1);
    press_on_study("take_over");
    EXPECT_EQ(shown("ecc"), "2.25");
    choose("mnueditundo");
    EXPECT_EQ(shown("ecc"), before);
}

TEST_F(study_form_test, draws_the_design_of_its_row) {
    show_study();
    calculate_two();
    const auto is_drawn = [this] {
        return find_on<QWidget>("viewwinfrm", "Picture1")
            ->accessibleDescription()
            .contains("Drawn in green: a design of the study.");
    };
    EXPECT_FALSE(is_drawn());
    table()->selectRow(1);
    ASSERT_TRUE(QTest::qWaitFor(is_drawn, LONG));
    table()->clearSelection();
    ASSERT_TRUE(QTest::qWaitFor([&] { return !is_drawn(); }, LONG));
    table()->selectRow(0);
    ASSERT_TRUE(QTest::qWaitFor(is_drawn, LONG));
    fill("study_filter", "ecc>9");
    EXPECT_FALSE(is_drawn());
}

TEST_F(study_form_test, finds_quantities_by_a_part_of_their_name) {
    show_study();
    fill("quantity_filter", "RIPPLE");
    auto* quantities = on_study<QListWidget>("quantities");
    for (int row = 0; row < quantities->count(); ++row) {
        const QListWidgetItem* item = quantities->item(row);
        EXPECT_EQ(item->isHidden(), !item->text().contains("ripple")) << utf8_text(item->text());
    }
}

TEST_F(study_form_test, sorts_and_filters_its_rows) {
    show_study();
    calculate_two();
    table()->sortByColumn(1, Qt::DescendingOrder);
    EXPECT_EQ(cell(0, 1), "2.25");
    fill("study_filter", "ecc<2.1");
    EXPECT_EQ(row_count(), 1);
    EXPECT_EQ(utf8_text(on_study<QLabel>("study_shown")->text()), "1 of 2 rows");
}

TEST_F(study_form_test, sorts_a_new_study_by_its_numbers) {
    show_study();
    const auto* head = table()->horizontalHeader();
    EXPECT_EQ(head->sortIndicatorOrder(), Qt::AscendingOrder);
    calculate_two();
    table()->sortByColumn(1, Qt::DescendingOrder);
    EXPECT_EQ(cell(0, 0), "1");
    calculate();
    EXPECT_EQ(head->sortIndicatorSection(), 0);
    EXPECT_EQ(head->sortIndicatorOrder(), Qt::AscendingOrder);
    EXPECT_EQ(cell(0, 0), "0");
}

TEST_F(study_form_test, keeps_the_chosen_design_when_it_sorts) {
    show_study();
    calculate_two();
    table()->selectRow(1);
    table()->sortByColumn(1, Qt::DescendingOrder);
    ASSERT_EQ(table()->selectionModel()->selectedRows().size(), 1);
    EXPECT_EQ(table()->selectionModel()->selectedRows()[0].row(), 0);
    EXPECT_EQ(cell(0, 1), "2.25");
}

TEST_F(study_form_test, offers_what_can_be_done_with_a_design_when_one_is_chosen) {
    show_study();
    const auto usable = [this] {
        return std::vector<bool>{on_study<QPushButton>("take_over")->isEnabled(),
                                 on_study<QPushButton>("save_projects")->isEnabled(),
                                 on_study<QPushButton>("save_table")->isEnabled()};
    };
    EXPECT_EQ(usable(), (std::vector<bool>{false, false, false}));
    calculate_two();
    EXPECT_EQ(usable(), (std::vector<bool>{false, false, true}));
    table()->selectRow(0);
    EXPECT_EQ(usable(), (std::vector<bool>{true, true, true}));
    fill("study_filter", "ecc>9");
    EXPECT_EQ(usable(), (std::vector<bool>{false, false, true}));
}

TEST_F(study_form_test, keeps_the_focus_on_the_buttons_of_a_run) {
    show_study();
    add("ecc", "2:3");
    on_study<QSpinBox>("study_count")->setValue(1000000);
    on_study<QPushButton>("run_study")->setFocus();
    press_on_study("run_study");
    EXPECT_TRUE(on_study<QPushButton>("stop_study")->hasFocus());
    press_on_study("stop_study");
    EXPECT_TRUE(on_study<QPushButton>("run_study")->hasFocus());
}

TEST_F(study_form_test, marks_the_front) {
    show_study();
    fill("study_aims", "capacity:max");
    calculate_two();
    const auto is_bold = [this](int row) {
        return table()->model()->index(row, 0).data(Qt::FontRole).value<QFont>().bold();
    };
    EXPECT_FALSE(is_bold(0));
    EXPECT_TRUE(is_bold(1));
}

TEST_F(study_form_test, draws_its_designs_as_dots) {
    show_study();
    calculate_two();
    auto* tabs = on_study<QTabWidget>("study_tabs");
    tabs->setCurrentIndex(1);
    settle();
    auto* chart = on_study<chart_view>("study_chart");
    ASSERT_TRUE(chart->isVisible());
    EXPECT_EQ(chart->chart().x_title, "ecc [mm]");
    ASSERT_EQ(chart->chart().curves.size(), 1U);
    EXPECT_EQ(chart->chart().curves[0].x, (std::vector<double>{2.0, 2.25}));
    // A click on a dot chooses its row.
    emit chart->point_clicked({0, 1});
    EXPECT_EQ(table()->selectionModel()->selectedRows().size(), 1);
    EXPECT_EQ(table()->selectionModel()->selectedRows()[0].row(), 1);
    // What the filter leaves out is not drawn.
    fill("study_filter", "ecc<2.1");
    ASSERT_TRUE(QTest::qWaitFor([&] { return chart->chart().curves[0].x.size() == 1; }, LONG));
    fill("study_filter", "ecc<1");
    ASSERT_TRUE(QTest::qWaitFor([&] { return !chart->isVisible(); }, LONG));
    EXPECT_TRUE(on_study<QLabel>("study_no_chart")->isVisible());
}

TEST_F(study_form_test, colours_dots_and_joins_them) {
    show_study();
    add("thick", "10,12");
    calculate_two_by_two();
    on_study<QTabWidget>("study_tabs")->setCurrentIndex(1);
    auto* colour = on_study<QComboBox>("chart_colour");
    colour->setCurrentIndex(colour->findText("thick [mm]"));
    emit colour->activated(colour->currentIndex());
    auto* along = on_study<QComboBox>("chart_along");
    EXPECT_EQ(along->count(), 3) << "nothing and the variables";
    along->setCurrentIndex(along->findText("ecc [mm]"));
    emit along->activated(along->currentIndex());
    const result_chart& chart = on_study<chart_view>("study_chart")->chart();
    EXPECT_EQ(chart.curves.size(), 5U);
    EXPECT_EQ(chart.legend_caption, "thick");
    EXPECT_EQ(chart.links.size(), 2U);
}

TEST_F(study_form_test, keeps_everything_while_it_is_closed) {
    show_study();
    calculate_two();
    loaded("study_form")->close();
    settle();
    choose("mnuwindow_study_form");
    EXPECT_TRUE(loaded("study_form")->isVisible());
    EXPECT_EQ(row_count(), 2);
}

TEST_F(study_form_test, is_saved_and_opened_with_its_rows) {
    show_study();
    fill("study_conditions", "capacity>1 ; ecc<9");
    on_study<QSpinBox>("study_seed")->setValue(5);
    calculate_two();
    const std::string path = utf8_of_path(folder.path() / "projects" / "a.KVTstudy");
    robot.files = {path, path};
    press_on_study("save_study");
    EXPECT_EQ(status(), "Written: " + path);

    press_on_study("remove_variable");
    on_study<QSpinBox>("study_seed")->setValue(0);
    fill("study_conditions", "");
    on_study<QComboBox>("study_kind")->setCurrentIndex(3);
    press_on_study("open_study");
    EXPECT_EQ(on_study<QTableWidget>("variables")->item(0, 1)->text(), "2,2.25");
    EXPECT_EQ(on_study<QSpinBox>("study_seed")->value(), 5);
    EXPECT_EQ(on_study<QLineEdit>("study_conditions")->text(), "capacity>1; ecc<9");
    EXPECT_EQ(on_study<QComboBox>("study_kind")->currentIndex(), 0);
    EXPECT_EQ(row_count(), 2);
}

TEST_F(study_form_test, saves_its_table_and_chosen_projects) {
    show_study();
    calculate_two();
    const auto path = [this](const char* name) {
        return utf8_of_path(folder.path() / "projects" / name);
    };
    robot.files = {path("a.csv"), path("b.KVT")};
    press_on_study("save_table");
    EXPECT_EQ(std::ranges::count(read_file(folder.path() / "projects" / "a.csv"), '\n'), 3);
    press_on_study("save_projects");
    EXPECT_FALSE(std::filesystem::exists(folder.path() / "projects" / "b.KVT")) << "none chosen";
    table()->selectRow(0);
    press_on_study("save_projects");
    EXPECT_TRUE(std::filesystem::exists(folder.path() / "projects" / "b.KVT"));
}

TEST_F(study_form_test, offers_what_belongs_to_the_kind) {
    show_study();
    const auto is_enabled = [this](const char* name) {
        return on_study<QWidget>(name)->isEnabled();
    };
    on_study<QComboBox>("study_kind")->setCurrentIndex(0);
    EXPECT_FALSE(is_enabled("study_count"));
    EXPECT_FALSE(is_enabled("study_targets"));
    on_study<QComboBox>("study_kind")->setCurrentIndex(3);
    EXPECT_TRUE(is_enabled("study_count"));
    EXPECT_TRUE(is_enabled("study_step"));
    EXPECT_TRUE(is_enabled("study_targets"));
}

TEST_F(study_form_test, stands_in_german) {
    write_settings('2');
    show_study();
    EXPECT_EQ(loaded("study_form")->windowTitle(), "Studie");
    EXPECT_EQ(on_study<QPushButton>("take_over")->text(), "Übernehmen");
    EXPECT_EQ(on_study<QComboBox>("study_kind")->itemText(0), "Alle Kombinationen");
    press_on_study("run_study");
    EXPECT_EQ(robot.messages,
              std::vector<std::string>{"eine Stichprobe braucht etwas, das variiert wird: alle 200 "
                                       "Entwürfe wären gleich"});
}

}  // namespace kvt
