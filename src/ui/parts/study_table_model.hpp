// study_table_model: the rows of a study as a table view of Qt shows them.
#pragma once

#include "app/study/study_table.hpp"

#include <QAbstractTableModel>

#include <cstdint>
#include <set>
#include <vector>

namespace kvt {

class study_table_model : public QAbstractTableModel {
    Q_OBJECT

  public:
    using QAbstractTableModel::QAbstractTableModel;

    const study_table& table() const { return table_; }
    /// Shows the rows of another study, or none.
    void show_table(study_table table);
    /// Behind the others; what is selected stays so.
    void add(std::vector<study_row> rows);
    /// The front, by the numbers of its designs; it is set off.
    void mark(std::set<std::uint64_t> front);
    void filter(std::string_view text);
    /// Another language for the heads.
    void set_language(std::int16_t language);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    /// What is selected stays so.
    void sort(int column, Qt::SortOrder order) override;

  private:
    QModelIndexList indexes_of(const std::vector<std::uint64_t>& numbers,
                               const QModelIndexList& former) const;

    study_table table_;
    std::int16_t language_ = 1;
};

}  // namespace kvt
