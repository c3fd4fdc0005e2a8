// Paints the Design view's data: line elements, arcs and the outside circle in their colours,
// widths and order.
#pragma once

#include "views/design_view.hpp"
#include "views/sight/sight_palette.hpp"
#include "views/sight/view_box.hpp"

#include <QColor>
#include <QLineF>
#include <QList>
#include <QPainterPath>
#include <QPolygonF>
#include <QVector>

#include <vector>

class QPainter;

namespace kvt {

/// The drawing in logical pixels, ready to be painted; made once a command, painted as often as the
/// screen asks.
class design_painting {
  public:
    design_painting() = default;
    /// Takes the data over, as it stands in its box.
    explicit design_painting(const design_view& view, const view_box& box = {});

    /// Takes the rotors over again, which a turn moves; ports and rubber band stay.
    void take_rotors(const design_view& view);
    /// Takes the rubber band over again. False when there was none to see and there is none now.
    bool take_band(const rubber_band& band);

    void paint(QPainter& painter, const sight_palette& palette) const;
    /// Rotors and ports alone, all in one colour and width.
    void paint_outlines(QPainter& painter, const QColor& colour, double width) const;
    bool is_empty() const;

  private:
    struct layer {
        rgb_colour sight_palette::*colour = nullptr;
        double width = 1.0;
        std::vector<QPolygonF> outlines;
    };

    void take_ports(const design_view& view);
    void paint_chamber(QPainter& painter, const sight_palette& palette) const;
    void paint_contacts(QPainter& painter, const sight_palette& palette) const;

    view_box box_;
    // In stacking order, lowest first.
    QPolygonF chamber_;               ///< filled
    QList<QPointF> chamber_ends_;     ///< its contacts
    std::vector<QPainterPath> arcs_;  ///< outer rotor
    std::vector<layer> ports_;        ///< ports, their angles, groove
    QVector<QLineF> band_;            ///< rubber band, dotted
    std::vector<QPolygonF> inner_rotor_;
    std::vector<QPainterPath> circle_;  ///< outside diameter
};

}  // namespace kvt
