// legend_frame: the legend of a chart. It tells what the mouse does to it; the chart window moves
// it.
#pragma once

#include "ui/parts/chart_painting.hpp"
#include "ui/parts/creeping_drag.hpp"

#include <QWidget>

#include <optional>

namespace kvt {

class legend_frame : public QWidget {
    Q_OBJECT

  public:
    explicit legend_frame(QWidget* parent);

    /// Takes over what the legend shows and stands where its frame says.
    void show_legend(const chart_legend& legend, const hidden_curves& hidden);

  signals:
    /// The frame is dragged by that much, twips.
    void dragged(double x, double y);
    /// A row was clicked: the left button went down and up on it and the frame did not move.
    void clicked(int series);
    void menu_asked(const QPoint& global_place);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    /// The series of the row at a place; nothing elsewhere.
    std::optional<int> series_at(const QPointF& place) const;

    chart_legend legend_;
    hidden_curves hidden_;
    creeping_drag legend_drag_;
    std::optional<int> pressed_;  ///< the row that a click may be on
};

}  // namespace kvt
