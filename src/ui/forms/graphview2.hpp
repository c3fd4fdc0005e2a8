// graphview2: a chart window, one class for the seven forms of the performance results. It shows
// the results of the moment it was loaded.
#pragma once

#include "app/windows/result_charts.hpp"
#include "ui/parts/chart_export.hpp"
#include "ui/parts/creeping_drag.hpp"
#include "ui/parts/form_binding.hpp"

#include <QWidget>

#include <optional>

namespace kvt {

class chart_popup;
class legend_frame;

class graphview2 : public QWidget {
    Q_OBJECT

  public:
    /// Loads a chart, named as its form; not shown yet. It belongs to nobody: closing deletes it.
    graphview2(const chart_row& row, form_context context);

    /// Where it stands, or goes back to when it is maximised or minimised; as the layout file has
    /// it, so with the frame of the drawing's rules in its size, whatever frame the screen has.
    window_rectangle place() const;

  protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void put_in_place();
    void add_legend();
    void add_popup();
    void open_popup(const QPoint& global_place);

    chart_size size_twips() const;
    shown_chart shown() const;
    /// Draws the chart anew in the size that the window has.
    void draw();
    void drag_window(const QPointF& step);
    void drag_legend(double x, double y);
    void toggle_curve(int series);

    void show_reading(const chart_reading& reading, const QPoint& global_place);
    void end_reading();
    std::optional<chart_reading> reading_at(const QPointF& place) const;
    void read_at(const QPointF& place);
    void read_by_key(const chart_reading& reading);
    void describe(const QString& reading);
    QString hint_at(const QPointF& place) const;

    void copy() const;
    void print();
    void save();
    void export_chart();

    form_context context_;
    result_chart chart_;
    text_metrics metrics_;
    chart_drawing drawing_;
    hidden_curves hidden_;
    std::optional<point2> moved_legend_;  ///< its corner, after the user moved it
    std::optional<chart_reading> reading_;
    bool is_pointed_at_ = false;  ///< the reading is the pointer's and goes with it
    creeping_drag window_drag_;
    QPointF dragged_corner_;  ///< of the window while it is dragged, twips
    legend_frame* legend_ = nullptr;
    chart_popup* popup_ = nullptr;
};

/// The chart window of a form while it is open, else nullptr.
graphview2* open_chart(std::string_view form);

}  // namespace kvt
