// study_form: the Study window, where many designs of the project are calculated at once, read as a
// table, compared and taken over.
#pragma once

#include "app/study/study_chart.hpp"
#include "app/study/study_document.hpp"
#include "app/trial/kept_design.hpp"
#include "ui/parts/latest_task.hpp"
#include "ui/shell/loaded_form.hpp"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

class QComboBox;
class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;
class QTableView;
class QTabWidget;
class QTimer;
class QVBoxLayout;

namespace kvt {

class chart_view;
class study_plan_side;
class study_table_model;
class study_worker;

class study_form : public loaded_form {
    Q_OBJECT

  public:
    explicit study_form(form_context context);
    ~study_form() override;

    QSize start_size() const override;
    /// At the bottom, so that the Design view can be seen above it.
    QRect start_place(const QRect& area) const override;
    void refresh() override;

  signals:
    /// A row was pointed at: its design is to be drawn over the present one; null: none is.
    void design_pointed(const std::shared_ptr<const kvt::kept_design>& design);

  protected:
    /// It keeps what was typed and calculated for the next time.
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    QWidget* asking_side();
    void add_commands(QVBoxLayout& side);
    QWidget* result_side();
    QWidget* filter_line();
    QWidget* chart_page();

    void show_running();
    void show_counts();
    void show_usable();
    void show_progress(quint64 done, quint64 count, double seconds_left);
    QString text_named(const char* name) const;

    void run();
    void sort_by_number();
    void sort_again();
    void take_rows(const std::vector<study_row>& rows);
    void end_run(const QString& problem);
    void mark_front();

    void fill_axes();
    void show_chart();
    void choose_design(std::uint64_t number);

    std::vector<study_row> chosen_rows() const;
    void point_at_row();
    void take_over();
    void open();
    void save();
    void save_table();
    void save_projects();

    study_plan_side* plan_;
    QPushButton* run_;
    QPushButton* stop_;
    QProgressBar* progress_;
    QLabel* progress_text_;
    QLineEdit* filter_;
    QLabel* shown_text_;
    QTabWidget* tabs_;
    QTableView* table_;
    QPushButton *take_over_, *save_table_, *save_projects_;
    QComboBox *chart_x_, *chart_y_, *chart_colour_, *chart_along_;
    QVBoxLayout* chart_place_;
    QLabel* no_chart_;
    chart_view* chart_ = nullptr;
    std::optional<study_chart> drawn_;  ///< what the chart shows
    QTimer* redraw_;
    study_table_model* model_;
    study_worker* worker_;
    std::shared_ptr<const study> designs_;  ///< whose rows the table holds
    study_document calculated_;             ///< the same as it was asked for, without its rows
    std::int16_t language_ = 0;
    latest_task pointing_;  ///< waits, when it goes, for a design that is at work
};

}  // namespace kvt
