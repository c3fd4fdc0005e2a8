// study_plan_side: what the Study window asks: which entries vary, which of their designs are
// calculated, what is wanted of them and what is recorded.
#pragma once

#include "app/study/study_document.hpp"

#include <QWidget>

#include <cstdint>
#include <utility>

class QCheckBox;
class QComboBox;
class QGridLayout;
class QLineEdit;
class QListWidget;
class QSpinBox;
class QTableWidget;
class QVBoxLayout;

namespace kvt {

/// Each control has its product name; captions and tooltips come from the form that it stands on.
class study_plan_side : public QWidget {
    Q_OBJECT

  public:
    /// A variable that is added gets its range from the open project.
    explicit study_plan_side(const program& kavetta, QWidget* parent = nullptr);

    /// Shows lists, heads and units as language and units are in force.
    void refresh();

    /// As it stands in the boxes, without rows.
    study_document document() const;
    void show_document(const study_document& shown);

  private:
    void add_variables(QVBoxLayout& side);
    void add_kind(QGridLayout& grid);
    void add_texts(QGridLayout& grid);
    void add_quantities(QVBoxLayout& side);

    void fill_entries();
    void fill_kinds();
    void fill_quantities();
    void show_units();
    void show_kind();
    /// With its label.
    void set_usable(QWidget& box, bool is_usable);

    void add_variable();
    void add_variable_row(const QString& control, const QString& values);
    void remove_variable();
    void filter_quantities(const QString& text);

    void write_sample(study_document& asked) const;
    void show_sample(const study_document& shown);

    const program& kavetta_;
    QTableWidget* variables_;
    QComboBox* entry_;
    QComboBox* kind_;
    QSpinBox* count_;
    QSpinBox* seed_;
    QLineEdit* step_;
    QCheckBox* with_assist_;
    QLineEdit* quantity_filter_;
    QListWidget* quantities_;
    QLineEdit* conditions_;
    QLineEdit* targets_;
    QLineEdit* aims_;
    std::int16_t language_ = 0;
    std::pair<std::int16_t, std::int16_t> shown_units_;
};

/// A list of the Study window, which has little room for its box, opens as wide as its items.
void open_as_wide_as_its_items(QComboBox& list);

}  // namespace kvt
