// exact_figures: the Exact Figures window, where the figures of geometry and textbooks stand beside
// the product's own, as a table and as charts.
#pragma once

#include "ui/shell/loaded_form.hpp"
#include "views/charts/chart_drawing.hpp"
#include "views/exact/exact_charts.hpp"

#include <optional>
#include <vector>

class QLabel;
class QStackedWidget;
class QTabWidget;
class QTableWidget;

namespace kvt {

class chart_view;
class exact_worker;

class exact_figures : public loaded_form {
    Q_OBJECT

  public:
    explicit exact_figures(form_context context);

    QSize start_size() const override;
    /// At the bottom, so that the Design view can be seen above it.
    QRect start_place(const QRect& area) const override;
    /// Shows the figures of the design that stands in the records, in the present language and
    /// units, and has worked out what is missing.
    void refresh() override;

  signals:
    /// The pair was turned and a chamber marked in the Design view, or the mark has gone.
    void chamber_shown();

  protected:
    void unload() override;

  private:
    /// A chart, or why there is none.
    struct chart_tab {
        const exact_chart_row& row;
        QStackedWidget* pages;
        QLabel* reason;
        chart_view* view = nullptr;
    };

    void add_table();
    void add_chart_tab(const exact_chart_row& row);
    void work_out_missing();
    void take(exact_part part, const exact_results& results);

    void show_stale_hint();
    void show_figures();
    void show_table();
    void show_row(int index, const exact_row& row);
    void show_chart(chart_tab& tab);
    void show_asked_row();
    void follow_reading(const chart_view& view, const std::optional<chart_reading>& reading);
    void copy_cells() const;

    QLabel* stale_;
    QTabWidget* tabs_;
    QTableWidget* table_;
    std::vector<chart_tab> charts_;
    exact_worker* worker_;
    int begun_revision_ = 0;  ///< of the design that the worker has
    std::int16_t language_ = 0;
};

}  // namespace kvt
