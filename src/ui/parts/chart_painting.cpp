#include "ui/parts/chart_painting.hpp"

#include "core/form_table.hpp"
#include "ui/parts/text_font.hpp"
#include "ui/shell/qt_text.hpp"

#include <QFontMetricsF>
#include <QPainter>

namespace kvt {

namespace {

constexpr int FONT_PIXELS = 12;
constexpr double CURVE_WIDTH = 2.0;  ///< pixels
/// Of the dashed curves, pixels, and their dashes in widths.
constexpr double PINNED_WIDTH = 1.5;
constexpr qreal DASH = 4.0, GAP = 3.0;
constexpr double RING_RADIUS = 5.0;
constexpr double DOT_WIDTH = 4.5;

constexpr QColor GROUND(240, 240, 240);
constexpr QColor PLOT_GROUND(48, 48, 48);
constexpr QColor INK(0, 0, 0);
/// The curves below the legend shine through.
constexpr QColor LEGEND_GROUND(48, 48, 48, 205);
constexpr QColor LEGEND_INK(255, 255, 255);
constexpr QColor LEGEND_FAINT_INK(160, 160, 160);
constexpr QColor READING(255, 255, 255);

QColor colour_of(int series) {
    const rgb_colour colour = series_colour(series);
    return {colour.red, colour.green, colour.blue};
}

bool is_series_hidden(int series, const hidden_curves& hidden) {
    return is_hidden(hidden, static_cast<std::size_t>(series - 1));
}

QLineF in_pixels(const chart_line& line) {
    return {kvt::in_pixels(point2{line.x1, line.y1}), kvt::in_pixels(point2{line.x2, line.y2})};
}

Qt::Alignment alignment_of(const chart_label& label) {
    switch (label.alignment) {
        case chart_alignment::left:
            return Qt::AlignLeft;
        case chart_alignment::right:
            return Qt::AlignRight;
        case chart_alignment::centre:
            break;
    }
    return Qt::AlignHCenter;
}

void paint_label(QPainter& painter, const chart_label& label) {
    if (label.visible) {
        painter.drawText(in_pixels(label.box),
                         static_cast<int>(alignment_of(label) | Qt::AlignVCenter) |
                             Qt::TextSingleLine | Qt::TextDontClip,
                         qt_text(label.text));
    }
}

void paint_texts(QPainter& painter, const chart_drawing& drawing) {
    painter.setPen(INK);
    painter.setFont(chart_font());
    for (const chart_label& marker : drawing.yaxis_marker) {
        paint_label(painter, marker);
    }
    for (const chart_label& marker : drawing.xaxis_marker) {
        paint_label(painter, marker);
    }
    paint_label(painter, drawing.xaxis_title);
    QFont bold = chart_font();
    bold.setBold(true);
    painter.setFont(bold);
    paint_label(painter, drawing.graph_title);
}

void paint_axes(QPainter& painter, const chart_drawing& drawing) {
    painter.setPen(QPen(INK, 1.0));
    painter.drawLine(in_pixels(drawing.X_axis));
    painter.drawLine(in_pixels(drawing.Y_axis));
    for (const chart_line& tick : drawing.yaxis_tickmark) {
        painter.drawLine(in_pixels(tick));
    }
}

QPen pinned_pen(int series) {
    QPen pen(colour_of(series), PINNED_WIDTH, Qt::CustomDashLine, Qt::FlatCap, Qt::BevelJoin);
    pen.setDashPattern({DASH, GAP});
    return pen;
}

/// Round corners, 3600 of them in the ripple, would take most of the time of a repaint.
QPen curve_pen(int series) {
    return {colour_of(series), CURVE_WIDTH, Qt::SolidLine, Qt::RoundCap, Qt::BevelJoin};
}

bool goes_on(const chart_segment& before, const chart_segment& segment) {
    return before.x2 == segment.x1 && before.y2 == segment.y1;
}

/// The segments of a curve follow each other end to end, so each curve is one line; lines between
/// dots may begin anew.
void paint_curves(QPainter& painter, const std::vector<chart_segment>& segments,
                  const hidden_curves& hidden, QPen (*pen)(int series)) {
    for (std::size_t first = 0, next = 0; first < segments.size(); first = next) {
        const int series = segments[first].series;
        QPolygonF curve{in_pixels(point2{segments[first].x1, segments[first].y1})};
        for (; next < segments.size() && segments[next].series == series &&
               (next == first || goes_on(segments[next - 1], segments[next]));
             ++next) {
            curve.append(in_pixels(point2{segments[next].x2, segments[next].y2}));
        }
        if (!is_series_hidden(series, hidden)) {
            painter.setPen(pen(series));
            painter.drawPolyline(curve);
        }
    }
}

/// All dots of a series at once: there may be a hundred thousand.
void paint_dots(QPainter& painter, const std::vector<chart_dot>& dots,
                const hidden_curves& hidden) {
    for (std::size_t first = 0, next = 0; first < dots.size(); first = next) {
        const int series = dots[first].series;
        QPolygonF places;
        for (; next < dots.size() && dots[next].series == series; ++next) {
            places.append(in_pixels(dots[next].place));
        }
        if (!is_series_hidden(series, hidden)) {
            painter.setPen(QPen(colour_of(series), DOT_WIDTH, Qt::SolidLine, Qt::RoundCap));
            painter.drawPoints(places);
        }
    }
}

void paint_rings(QPainter& painter, const std::vector<chart_dot>& dots,
                 const hidden_curves& hidden) {
    painter.setPen(QPen(LEGEND_INK, 1.0));
    for (const chart_dot& dot : dots) {
        if (dot.is_ringed && !is_series_hidden(dot.series, hidden)) {
            painter.drawEllipse(in_pixels(dot.place), DOT_WIDTH, DOT_WIDTH);
        }
    }
}

void paint_pinned_note(QPainter& painter, const chart_label& note) {
    painter.setPen(LEGEND_INK);
    painter.setFont(chart_font());
    paint_label(painter, note);
}

void paint_legend_row(QPainter& painter, const legend_row& row, bool hidden) {
    painter.setPen(QPen(hidden ? LEGEND_FAINT_INK : LEGEND_INK, 1.0));
    painter.setBrush(hidden ? QBrush(Qt::NoBrush) : QBrush(colour_of(row.series)));
    painter.drawRect(in_pixels(row.square));
    paint_label(painter, row.label);
}

}  // namespace

QFont chart_font() {
    QFont font = text_font();
    font.setPixelSize(FONT_PIXELS);
    return font;
}

text_metrics chart_metrics() {
    return [metrics = QFontMetricsF(chart_font())](std::string_view text) {
        return text_extent{metrics.horizontalAdvance(qt_text(text)) * TWIPS_PER_PIXEL,
                           metrics.height() * TWIPS_PER_PIXEL};
    };
}

QPointF in_pixels(point2 place) {
    return {place.x / TWIPS_PER_PIXEL, place.y / TWIPS_PER_PIXEL};
}

QRectF in_pixels(const chart_box& box) {
    return {box.left / TWIPS_PER_PIXEL, box.top / TWIPS_PER_PIXEL, box.width / TWIPS_PER_PIXEL,
            box.height / TWIPS_PER_PIXEL};
}

void paint_chart(QPainter& painter, const chart_drawing& drawing, const hidden_curves& hidden,
                 const QSizeF& area) {
    painter.fillRect(QRectF(QPointF(0.0, 0.0), area), GROUND);
    painter.fillRect(in_pixels(drawing.Picture1), PLOT_GROUND);
    painter.setBrush(Qt::NoBrush);
    paint_axes(painter, drawing);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setClipRect(QRectF(QPointF(0.0, 0.0), area));
    paint_curves(painter, drawing.graph_line, hidden, curve_pen);
    paint_curves(painter, drawing.pinned_line, hidden, pinned_pen);
    paint_dots(painter, drawing.dots, hidden);
    paint_rings(painter, drawing.dots, hidden);
    painter.restore();
    paint_texts(painter, drawing);
    paint_pinned_note(painter, drawing.pinned_note);
}

void paint_legend(QPainter& painter, const chart_legend& legend, const hidden_curves& hidden) {
    const QRectF frame(QPointF(0.0, 0.0), in_pixels(legend.frame).size());
    painter.setPen(QPen(LEGEND_FAINT_INK, 1.0));
    painter.setBrush(LEGEND_GROUND);
    painter.drawRect(frame.adjusted(0.0, 0.0, -1.0, -1.0));
    painter.setFont(chart_font());
    painter.setPen(LEGEND_INK);
    paint_label(painter, legend.caption);
    for (const legend_row& row : legend.rows) {
        paint_legend_row(painter, row, is_series_hidden(row.series, hidden));
    }
}

void paint_whole_chart(QPainter& painter, const chart_drawing& drawing, const hidden_curves& hidden,
                       const QSizeF& area) {
    paint_chart(painter, drawing, hidden, area);
    if (drawing.legend_frame) {
        painter.save();
        painter.translate(in_pixels(drawing.legend_frame->frame).topLeft());
        paint_legend(painter, *drawing.legend_frame, hidden);
        painter.restore();
    }
}

void paint_reading(QPainter& painter, const QPointF& place) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(READING, 1.5));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(place, RING_RADIUS, RING_RADIUS);
    painter.restore();
}

}  // namespace kvt
