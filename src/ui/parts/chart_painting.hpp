// chart_painting: paints a chart on a window, a picture, a page. Its colours are the same in a
// light and in a dark theme and on paper: the curves are pastel and need their dark plot.
#pragma once

#include "views/charts/chart_drawing.hpp"

#include <QFont>
#include <QRectF>
#include <QSize>

class QPainter;

namespace kvt {

/// The delivered font in a size of its own, so that texts keep their room on every screen.
QFont chart_font();
/// The room that a text takes in that font.
text_metrics chart_metrics();

/// Twips of a drawing in pixels.
QPointF in_pixels(point2 place);
QRectF in_pixels(const chart_box& box);

/// Everything but the legend; area is the client area, pixels.
void paint_chart(QPainter& painter, const chart_drawing& drawing, const hidden_curves& hidden,
                 const QSizeF& area);
/// The legend, its frame's corner at the painter's origin. The row of a hidden curve has an empty
/// square and faint text.
void paint_legend(QPainter& painter, const chart_legend& legend, const hidden_curves& hidden);
/// The chart with its legend.
void paint_whole_chart(QPainter& painter, const chart_drawing& drawing, const hidden_curves& hidden,
                       const QSizeF& area);
/// A ring around a point of a curve that is read.
void paint_reading(QPainter& painter, const QPointF& place);

}  // namespace kvt
