#include "ui/parts/result_table_model.hpp"

#include "ui/shell/qt_text.hpp"

namespace kvt {

void result_table_model::show_table(result_table table, char decimal_mark) {
    if (table == table_ && decimal_mark == decimal_mark_) {
        return;
    }
    const bool same_size = table.row_heads.size() == table_.row_heads.size() &&
                           table.column_heads.size() == table_.column_heads.size();
    if (!same_size) {
        beginResetModel();
    }
    table_ = std::move(table);
    decimal_mark_ = decimal_mark;
    if (!same_size) {
        endResetModel();
        return;
    }
    emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
    emit headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
    emit headerDataChanged(Qt::Vertical, 0, rowCount() - 1);
}

int result_table_model::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(table_.row_heads.size());
}

int result_table_model::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(table_.column_heads.size());
}

QVariant result_table_model::data(const QModelIndex& index, int role) const {
    if (role == Qt::TextAlignmentRole) {
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    }
    const std::optional<double>& cell =
        table_
            .cells[static_cast<std::size_t>(index.row())][static_cast<std::size_t>(index.column())];
    if (role == Qt::DisplayRole) {
        return qt_text(cell_text(cell, decimal_mark_));
    }
    if (role == Qt::ToolTipRole && cell) {
        return qt_text(whole_cell_text(*cell, decimal_mark_));
    }
    return {};
}

QVariant result_table_model::headerData(int section, Qt::Orientation orientation, int role) const {
    if (role != Qt::DisplayRole) {
        return {};
    }
    const std::vector<std::string>& heads =
        orientation == Qt::Horizontal ? table_.column_heads : table_.row_heads;
    return qt_text(heads[static_cast<std::size_t>(section)]);
}

}  // namespace kvt
