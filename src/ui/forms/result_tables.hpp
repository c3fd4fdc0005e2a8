// result_tables: the Result Tables window, where the figures of the last run are read and copied,
// with those of the pinned design below them.
#pragma once

#include "ui/shell/loaded_form.hpp"
#include "views/tables/result_tables.hpp"

#include <vector>

class QComboBox;
class QLabel;
class QSplitter;
class QTableView;
class QTabWidget;

namespace kvt {

class result_table_model;

class result_tables : public loaded_form {
    Q_OBJECT

  public:
    explicit result_tables(form_context context);

    QSize start_size() const override;
    /// Shows the last run in the present language and units; no numbers while none is valid.
    void refresh() override;

  private:
    /// A table: what rows and columns stand for above the numbers.
    struct table_part {
        QWidget* whole;
        QLabel* axes;
        QTableView* view;
        result_table_model* model;
    };
    struct tab {
        table_part present, pinned;
    };

    tab add_tab(const char* name, QWidget* above);
    table_part add_part(const QString& name, QSplitter& parts);
    QWidget* choice_of_angle_table();
    void show_angle_table();
    void show_present(std::size_t index, result_table table);
    /// Shows the pinned tables, or none.
    void show_pinned_grids();
    void show_pinned_angle_table();
    void show_pinned_table(std::size_t index, result_table table, const QString& axes);
    void show_in(const table_part& part, std::size_t index, result_table table);
    std::size_t chosen_speed() const;
    std::size_t chosen_pressure() const;
    void copy(const table_part& shown) const;

    QTabWidget* tabs_;
    std::vector<tab> tables_;  ///< the grids, then the table over the angle
    QComboBox* speed_;
    QComboBox* pressure_;
    QLabel* speed_label_;
    QLabel* pressure_label_;
};

}  // namespace kvt
