// Tests of the rows of a study as a table view sees them.
#include "ui/parts/study_table_model.hpp"

#include "support/open_design.hpp"

#include <QFont>
#include <QItemSelectionModel>

#include <gtest/gtest.h>

namespace kvt {

namespace {

class study_table_model_test : public testing::Test {
  protected:
    study_table_model_test() {
        study_plan plan;
        plan.variables = {study_variable_of("ecc=2,3")};
        plan.recorded = {"capacity"};
        model.show_table(
            study_table(std::make_shared<const study>(opened_design("n04_fuel"), plan)));
        model.add({row_of(0, 7.0), row_of(1, 9.0), row_of(2, 8.0)});
    }
    static study_row row_of(std::uint64_t number, double capacity) {
        study_row row;
        row.number = number;
        row.texts = {"2"};
        row.values = {capacity};
        row.messages = {"told"};
        return row;
    }
    QString text(int row, int column) const {
        return model.data(model.index(row, column), Qt::DisplayRole).toString();
    }
    QString head(int column) const {
        return model.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
    }
    bool is_bold(int row) const {
        return model.data(model.index(row, 0), Qt::FontRole).value<QFont>().bold();
    }

    study_table_model model;
};

}  // namespace

TEST_F(study_table_model_test, has_heads_in_the_language) {
    EXPECT_EQ(model.columnCount(), 5);
    EXPECT_EQ(head(0), "No.");
    EXPECT_EQ(head(1), "ecc [mm]");
    EXPECT_EQ(head(2), "Result");
    EXPECT_EQ(head(3), "capacity [CC/Rev]");
    EXPECT_EQ(head(4), "Messages");
    model.set_language(2);
    EXPECT_EQ(head(0), "Nr.");
    EXPECT_EQ(head(4), "Meldungen");
}

TEST_F(study_table_model_test, shows_and_sorts_the_rows) {
    EXPECT_EQ(model.rowCount(), 3);
    EXPECT_EQ(text(1, 3), "9");
    model.sort(3, Qt::DescendingOrder);
    EXPECT_EQ(text(0, 3), "9");
    EXPECT_EQ(text(2, 3), "7");
    model.sort(-1, Qt::AscendingOrder);
    EXPECT_EQ(text(0, 3), "9");
}

TEST_F(study_table_model_test, filters) {
    model.filter("capacity>7");
    EXPECT_EQ(model.rowCount(), 2);
    model.filter("");
    EXPECT_EQ(model.rowCount(), 3);
}

TEST_F(study_table_model_test, keeps_places_while_rows_come) {
    const QPersistentModelIndex chosen = model.index(1, 3);
    model.add({row_of(3, 5.0)});
    ASSERT_TRUE(chosen.isValid());
    EXPECT_EQ(chosen.data(), "9");
    EXPECT_EQ(model.rowCount(), 4);
    model.filter("capacity>6");
    model.add({row_of(4, 1.0)});
    EXPECT_EQ(model.rowCount(), 3);
}

TEST_F(study_table_model_test, sets_the_front_off) {
    model.mark({1});
    EXPECT_FALSE(is_bold(0));
    EXPECT_TRUE(is_bold(1));
    EXPECT_EQ(model.data(model.index(1, 0), Qt::ToolTipRole), "no other design beats it");
    EXPECT_EQ(model.data(model.index(0, 4), Qt::ToolTipRole), "told");
}

TEST_F(study_table_model_test, is_empty_without_a_study) {
    study_table_model empty;
    EXPECT_EQ(empty.rowCount(), 0);
    EXPECT_EQ(empty.columnCount(), 0);
    empty.filter("x");
    empty.sort(0, Qt::AscendingOrder);
    EXPECT_EQ(empty.headerData(0, Qt::Horizontal, Qt::DisplayRole), QVariant());
}

TEST_F(study_table_model_test, keeps_what_is_selected_when_it_is_sorted) {
    QItemSelectionModel selection(&model);
    const auto select = [&](int row) {
        selection.select(model.index(row, 0),
                         QItemSelectionModel::Select | QItemSelectionModel::Rows);
    };
    select(0);
    select(1);
    model.sort(3, Qt::DescendingOrder);  // the designs 1, 2, 0
    std::set<QString> numbers;
    for (const QModelIndex& index : selection.selectedRows()) {
        numbers.insert(index.data().toString());
    }
    EXPECT_EQ(numbers, (std::set<QString>{"0", "1"}));
    EXPECT_FALSE(selection.isRowSelected(1));
}

}  // namespace kvt
