// result_table_model: a result table as a table view of Qt shows it.
#pragma once

#include "views/tables/result_tables.hpp"

#include <QAbstractTableModel>

namespace kvt {

class result_table_model : public QAbstractTableModel {
    Q_OBJECT

  public:
    using QAbstractTableModel::QAbstractTableModel;

    /// Shows another table; a view keeps its selection when only the numbers differ.
    void show_table(result_table table, char decimal_mark);
    const result_table& table() const { return table_; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    /// Six digits of a cell; all of them as its tooltip.
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    result_table table_;
    char decimal_mark_ = '.';
};

}  // namespace kvt
