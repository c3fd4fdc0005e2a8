// chart_view: a chart that is looked at: painted, read by pointer and keys, with its legend and its
// menu. It shows the chart that it was given until it is given another one.
#pragma once

#include "ui/parts/chart_export.hpp"
#include "ui/parts/form_binding.hpp"

#include <QWidget>

#include <optional>

namespace kvt {

class chart_popup;
class legend_frame;

class chart_view : public QWidget {
    Q_OBJECT

  public:
    /// keys says where the keys of its menu work: in its whole window, or while it has the focus.
    chart_view(result_chart chart, form_context context, Qt::ShortcutContext keys,
               QWidget* parent = nullptr);

    const result_chart& chart() const { return chart_; }
    /// Shows another chart. Hidden curves stay hidden where it has as many.
    void show_chart(result_chart chart);
    /// Another language for the menu and the tooltip of the legend.
    void translate();

  signals:
    /// The point that is read now; nothing when the reading ends.
    void reading_changed(const std::optional<kvt::chart_reading>& reading);
    /// The point under the pointer was clicked.
    void point_clicked(const kvt::chart_reading& reading);
    void close_asked();

  protected:
    bool event(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

    /// Draws the chart anew in the size that the widget has.
    void draw();

    form_context context_;

  private:
    void add_legend();
    void show_legend_texts();
    void add_popup();
    void open_popup(const QPoint& global_place);

    chart_size size_twips() const;
    shown_chart shown() const;
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

    Qt::ShortcutContext keys_;
    result_chart chart_;
    text_metrics metrics_;
    chart_drawing drawing_;
    hidden_curves hidden_;
    std::optional<point2> moved_legend_;  ///< its corner, after the user moved it
    std::optional<chart_reading> reading_;
    bool is_pointed_at_ = false;  ///< the reading is the pointer's and goes with it
    legend_frame* legend_ = nullptr;
    chart_popup* popup_ = nullptr;
};

}  // namespace kvt
