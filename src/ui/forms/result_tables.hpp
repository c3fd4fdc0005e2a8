// result_tables: the Result Tables window, where the figures of the last run are read and copied.
#pragma once

#include "ui/shell/loaded_form.hpp"
#include "views/tables/result_tables.hpp"

#include <vector>

class QComboBox;
class QLabel;
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
    /// One tab: what rows and columns stand for above the numbers.
    struct tab {
        QLabel* axes;
        QTableView* view;
        result_table_model* model;
    };

    tab add_tab(const char* name, QWidget* above);
    QWidget* choice_of_angle_table();
    void show_angle_table();
    void show_in(std::size_t index, result_table table);
    void copy(const tab& shown) const;

    QTabWidget* tabs_;
    std::vector<tab> tables_;  ///< the grids, then the table over the angle
    QComboBox* speed_;
    QComboBox* pressure_;
    QLabel* speed_label_;
    QLabel* pressure_label_;
};

}  // namespace kvt
