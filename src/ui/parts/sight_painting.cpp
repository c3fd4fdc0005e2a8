#include "ui/parts/sight_painting.hpp"

#include "ui/parts/chart_painting.hpp"
#include "ui/parts/ink.hpp"
#include "ui/shell/qt_text.hpp"

#include <QFontMetricsF>
#include <QPainter>
#include <QPolygonF>

#include <vector>

namespace kvt {

namespace {

/// How much of what lies below a text its ground covers.
constexpr float TEXT_GROUND_COVER = 0.82F;
constexpr double THIN = 1.0, THICK = 2.0;  ///< pixels

QPointF point_of(const point2& place) {
    return {place.x, place.y};
}

QPolygonF polygon_of(const std::vector<point2>& points) {
    QPolygonF polygon;
    for (const point2& point : points) {
        polygon.append(point_of(point));
    }
    return polygon;
}

void fill_polygon(QPainter& painter, const std::vector<point2>& points, const QColor& colour) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawPolygon(polygon_of(points));
}

QColor port_colour(const rgb_colour& colour) {
    QColor shown = qt_colour(colour);
    shown.setAlphaF(static_cast<float>(PORT_COVER));
    return shown;
}

double width_of(sight_ink ink) {
    return ink == sight_ink::scale_bar ? THICK : THIN;
}

void paint_lines(QPainter& painter, const std::vector<sight_line>& lines,
                 const sight_palette& palette) {
    for (const sight_line& line : lines) {
        painter.setPen(QPen(qt_colour(colour_of(line.ink, palette)), width_of(line.ink)));
        painter.drawLine(point_of(line.from), point_of(line.to));
    }
}

void paint_circle(QPainter& painter, const sight_circle& circle, const sight_palette& palette) {
    const QColor colour = qt_colour(colour_of(circle.ink, palette));
    painter.setPen(QPen(circle.is_filled ? qt_colour(palette.paper) : colour, THIN));
    painter.setBrush(circle.is_filled ? QBrush(colour) : QBrush(Qt::NoBrush));
    painter.drawEllipse(point_of(circle.centre), circle.radius, circle.radius);
}

void paint_arrow(QPainter& painter, const sight_arrow& arrow, const sight_palette& palette) {
    fill_polygon(painter, {arrow.tip, arrow.left_foot, arrow.right_foot},
                 qt_colour(colour_of(arrow.ink, palette)));
}

void paint_text(QPainter& painter, const sight_text& text, const sight_palette& palette) {
    const QRectF place(text.corner.x, text.corner.y, text.width, text.height);
    QColor ground = qt_colour(palette.paper);
    ground.setAlphaF(TEXT_GROUND_COVER);
    painter.fillRect(place, ground);
    painter.setPen(qt_colour(colour_of(text.ink, palette)));
    painter.drawText(place, Qt::AlignCenter, qt_text(text.text));
}

}  // namespace

sight_metrics metrics_of_view() {
    const QFontMetricsF metrics(chart_font());
    return {[metrics](const std::string& text) { return metrics.horizontalAdvance(qt_text(text)); },
            metrics.height()};
}

void paint_sight_ground(QPainter& painter, const rotor_fill& fill, const sight_drawing& drawing,
                        const sight_palette& palette) {
    fill_polygon(painter, fill.body, qt_colour(palette.body));
    fill_polygon(painter, fill.space, qt_colour(palette.paper));
    fill_polygon(painter, fill.inner, qt_colour(palette.inner_rotor));
    for (const std::vector<point2>& area : drawing.areas) {
        fill_polygon(painter, area, qt_colour(palette.chamber));
    }
    fill_polygon(painter, fill.outlet, port_colour(palette.outlet));
    fill_polygon(painter, fill.inlet, port_colour(palette.inlet));
    fill_polygon(painter, fill.groove, port_colour(palette.groove));
    paint_lines(painter, drawing.grid, palette);
}

void paint_sight(QPainter& painter, const sight_drawing& drawing, const sight_palette& palette) {
    painter.setFont(chart_font());
    paint_lines(painter, drawing.lines, palette);
    for (const sight_circle& circle : drawing.circles) {
        paint_circle(painter, circle, palette);
    }
    for (const sight_arrow& arrow : drawing.arrows) {
        paint_arrow(painter, arrow, palette);
    }
    for (const sight_text& text : drawing.texts) {
        paint_text(painter, text, palette);
    }
}

}  // namespace kvt
