// graphview2: a chart window, one class for the seven forms of the performance results. It shows
// the results of the moment it was loaded, and those of the pinned design as long as there is one.
#pragma once

#include "app/windows/result_charts.hpp"
#include "ui/parts/chart_view.hpp"
#include "ui/parts/creeping_drag.hpp"

#include <QPointF>

#include <cstdint>
#include <memory>

namespace kvt {

struct pinned_design;

class graphview2 : public chart_view {
    Q_OBJECT

  public:
    /// Loads a chart, named as its form; not shown yet. It belongs to nobody: closing deletes it.
    graphview2(const chart_row& row, form_context context);

    /// Where it stands, or goes back to when it is maximised or minimised; as the layout file has
    /// it, so with the frame of the drawing's rules in its size, whatever frame the screen has.
    window_rectangle place() const;

  protected:
    void closeEvent(QCloseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    void put_in_place();
    void show_pinned();
    void drag_window(const QPointF& step);

    result_chart loaded_;  ///< without the pinned design, which comes and goes
    std::int16_t language_;
    unit_system system_;
    std::shared_ptr<const pinned_design> pinned_;
    creeping_drag window_drag_;
    QPointF dragged_corner_;  ///< of the window while it is dragged, twips
};

/// The chart window of a form while it is open, else nullptr.
graphview2* open_chart(std::string_view form);

}  // namespace kvt
