#include "ui/parts/study_table_model.hpp"

#include "core/text_table.hpp"
#include "ui/shell/qt_text.hpp"

#include <QFont>

#include <unordered_map>
#include <utility>

namespace kvt {

namespace {

QString text_named(const char* name, std::int16_t language) {
    return qt_text(form_text("study_form", name, language));
}

std::size_t place_of(int section) {
    return static_cast<std::size_t>(section);
}

}  // namespace

void study_table_model::show_table(study_table table) {
    beginResetModel();
    table_ = std::move(table);
    endResetModel();
}

void study_table_model::add(std::vector<study_row> rows) {
    const int count = static_cast<int>(table_.passing_count(rows));
    if (count > 0) {
        beginInsertRows({}, rowCount(), rowCount() + count - 1);
    }
    table_.add(std::move(rows));
    if (count > 0) {
        endInsertRows();
    }
}

void study_table_model::mark(std::set<std::uint64_t> front) {
    table_.mark(std::move(front));
    if (rowCount() > 0) {
        emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
    }
}

void study_table_model::filter(std::string_view text) {
    if (table_.designs() == nullptr) {
        return;
    }
    beginResetModel();
    table_.filter(text);
    endResetModel();
}

void study_table_model::set_language(std::int16_t language) {
    language_ = language;
    if (columnCount() > 0) {
        emit headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
    }
}

int study_table_model::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(table_.shown_count());
}

int study_table_model::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(table_.column_count());
}

QVariant study_table_model::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) {
        return {};
    }
    const std::size_t row = place_of(index.row());
    const std::size_t column = place_of(index.column());
    switch (role) {
        case Qt::DisplayRole:
            return qt_text(table_.text(row, column));
        case Qt::ToolTipRole:
            return table_.is_in_front(row)             ? text_named("in_front", language_)
                   : column == table_.message_column() ? qt_text(table_.text(row, column))
                                                       : QString();
        case Qt::TextAlignmentRole:
            return QVariant((table_.number(row, column) ? Qt::AlignRight : Qt::AlignLeft) |
                            Qt::AlignVCenter);
        case Qt::FontRole: {
            QFont font;
            font.setBold(table_.is_in_front(row));
            return font;
        }
        default:
            return {};
    }
}

QVariant study_table_model::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return QAbstractTableModel::headerData(section, orientation, role);
    }
    const std::size_t column = place_of(section);
    if (column >= table_.column_count()) {
        return {};
    }
    if (column == 0) {
        return text_named("number_head", language_);
    }
    if (column == table_.result_column()) {
        return text_named("result_head", language_);
    }
    return column == table_.message_column() ? text_named("message_head", language_)
                                             : qt_text(table_.heading(column));
}

/// Where designs stand, each in the column of its former index.
QModelIndexList study_table_model::indexes_of(const std::vector<std::uint64_t>& numbers,
                                              const QModelIndexList& former) const {
    std::unordered_map<std::uint64_t, int> rows;
    for (int row = 0; row < rowCount() && !numbers.empty(); ++row) {
        rows[table_.shown(place_of(row)).number] = row;
    }
    QModelIndexList indexes;
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        const QModelIndex& before = former[static_cast<qsizetype>(i)];
        indexes.append(index(rows.at(numbers[i]), before.column()));
    }
    return indexes;
}

void study_table_model::sort(int column, Qt::SortOrder order) {
    if (column < 0 || column >= columnCount()) {
        return;
    }
    emit layoutAboutToBeChanged({}, VerticalSortHint);
    const QModelIndexList kept = persistentIndexList();
    std::vector<std::uint64_t> numbers;
    for (const QModelIndex& each : kept) {
        numbers.push_back(table_.shown(place_of(each.row())).number);
    }
    table_.sort(place_of(column), order == Qt::AscendingOrder);
    changePersistentIndexList(kept, indexes_of(numbers, kept));
    emit layoutChanged({}, VerticalSortHint);
}

}  // namespace kvt
