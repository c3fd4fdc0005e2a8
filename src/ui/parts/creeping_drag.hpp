// creeping_drag: how a chart window and its legend follow the mouse: a step of 20 twips for each
// move, as long as the left button is down. window_drag and legend_drag are of this kind, each with
// the place of the button's press, window_drag_x and so on.
#pragma once

#include <QPointF>
#include <Qt>

namespace kvt {

class creeping_drag {
  public:
    /// Places are pixels from the corner of what is dragged. The left button starts, any other
    /// ends.
    void press(Qt::MouseButton button, const QPointF& place);
    void release() { is_on_ = false; }
    bool is_on() const { return is_on_; }

    /// The step of a move of the mouse, twips: 20 in each direction in which the place lies more
    /// than 20 twips away from the press, else 0. The place of the press stays, so what is dragged
    /// creeps after the mouse.
    QPointF step(const QPointF& place) const;

  private:
    bool is_on_ = false;
    float x_ = 0.0F, y_ = 0.0F;  ///< of the press, twips
};

}  // namespace kvt
