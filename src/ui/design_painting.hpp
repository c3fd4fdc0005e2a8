// Paints the Design view's data: line elements, arcs and the outside circle in their colours, widths and order.
#pragma once

#include "views/design_view.hpp"

#include <QColor>
#include <QPainterPath>
#include <QPolygonF>

#include <vector>

class QPainter;

namespace kvt {

/// The drawing in logical pixels, ready to be painted; made once a command, painted as often as the screen asks.
class design_painting {
  public:
    design_painting() = default;
    /// Takes the data over; 15 twips are one logical pixel.
    explicit design_painting(const design_view& view);

    void paint(QPainter& painter) const;
    bool is_empty() const { return layers_.empty() && arcs_.isEmpty() && circle_.isEmpty(); }

  private:
    struct layer {
        QColor colour;
        double width = 1.0;
        std::vector<QPolygonF> outlines;
    };

    QPainterPath arcs_;          ///< outer rotor, lowest
    std::vector<layer> layers_;  ///< line arrays in stacking order
    QPainterPath circle_;        ///< outside diameter, topmost
};

}  // namespace kvt
