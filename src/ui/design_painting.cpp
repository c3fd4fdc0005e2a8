#include "ui/design_painting.hpp"

#include "core/window_rectangles.hpp"

#include <QPainter>
#include <QPen>

#include <array>
#include <cmath>
#include <numbers>

namespace kvt {

namespace {

/// Two steps of an outline are joined up to this length, pixels, when the point between them is no further off than
/// INVISIBLE.
constexpr double LONGEST_JOINED = 4.0;
constexpr double INVISIBLE = 0.02;

/// Line width of the outer rotor's arcs and of the outside circle, pixels.
constexpr double OUTLINE_WIDTH = 2.0;

struct line_style {
    line_array design_view::*member;
    int red, green, blue;
    double width;  ///< pixels
};

/// The line arrays in stacking order, lowest first.
constexpr std::array LINE_STYLES = {
    line_style{&design_view::metering_groove_extraline, 0, 192, 0, 2.0},
    line_style{&design_view::anglelineout, 0, 0, 0, 1.0},
    line_style{&design_view::angleline, 0, 0, 0, 1.0},
    line_style{&design_view::metering_groove_portline, 255, 128, 0, 2.0},
    line_style{&design_view::outlet_portline, 255, 0, 0, 2.0},
    line_style{&design_view::inlet_portline, 0, 0, 255, 2.0},
    line_style{&design_view::Line1, 0, 0, 0, 2.0},
};

double pixels(double twips) {
    return twips / TWIPS_PER_PIXEL;
}

/// Screen degrees only: nothing computed from them reaches a file.
double degrees(double radians) {
    return radians * 180.0 / std::numbers::pi;
}

QPointF start_of(const drawn_line& line) {
    return {pixels(line.x1), pixels(line.y1)};
}

QPointF end_of(const drawn_line& line) {
    return {pixels(line.x2), pixels(line.y2)};
}

/// True when `point` can be left out between `from` and `to` without a visible difference.
bool is_on_the_way(QPointF from, QPointF point, QPointF to) {
    const QPointF way = to - from;
    const double length = std::hypot(way.x(), way.y());
    const QPointF step = point - from;
    const double off = std::abs(way.x() * step.y() - way.y() * step.x());
    return length > 0.0 && length < LONGEST_JOINED && off <= INVISIBLE * length;
}

/// Segments that continue each other become one outline with clean joins: thousands of antialiased segments shorter
/// than a pixel would blend into a line that is too thick. Points that nobody can see are left out.
std::vector<QPolygonF> outlines_of(const line_array& array) {
    std::vector<QPolygonF> outlines;
    QPointF last;
    for (std::size_t index = array.element0_visible ? 0 : 1; index < array.elements.size(); ++index) {
        const QPointF start = start_of(array.elements[index]);
        const QPointF end = end_of(array.elements[index]);
        if (outlines.empty() || start != last) {
            outlines.push_back({start, end});
        } else if (QPolygonF& outline = outlines.back(); is_on_the_way(outline[outline.size() - 2], last, end)) {
            outline.back() = end;
        } else {
            outline.append(end);
        }
        last = end;
    }
    return outlines;
}

/// Arcs run counter-clockwise as seen on the screen; an end before the start lies one turn further.
void add_arc(QPainterPath& path, const drawn_arc& arc) {
    const double radius = pixels(arc.radius);
    const QRectF box(pixels(arc.x) - radius, pixels(arc.y) - radius, 2.0 * radius, 2.0 * radius);
    const double start = degrees(arc.start_angle);
    double sweep = degrees(arc.end_angle) - start;
    if (sweep < 0.0) {
        sweep += 360.0;
    }
    path.arcMoveTo(box, start);
    path.arcTo(box, start, sweep);
}

}  // namespace

design_painting::design_painting(const design_view& view) {
    for (const drawn_arc& arc : view.Picture1) {
        add_arc(arcs_, arc);
    }
    for (const line_style& style : LINE_STYLES) {
        std::vector<QPolygonF> outlines = outlines_of(view.*style.member);
        if (!outlines.empty()) {
            layers_.push_back({QColor(style.red, style.green, style.blue), style.width, std::move(outlines)});
        }
    }
    if (view.Shape1.visible) {
        const double radius = pixels(view.Shape1.diameter) / 2.0;
        circle_.addEllipse(QPointF(pixels(view.Shape1.x), pixels(view.Shape1.y)), radius, radius);
    }
}

void design_painting::paint(QPainter& painter) const {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Qt::black, OUTLINE_WIDTH));
    painter.drawPath(arcs_);
    for (const layer& drawn : layers_) {
        painter.setPen(QPen(drawn.colour, drawn.width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        for (const QPolygonF& outline : drawn.outlines) {
            painter.drawPolyline(outline);
        }
    }
    painter.setPen(QPen(Qt::black, OUTLINE_WIDTH));
    painter.drawPath(circle_);
}

}  // namespace kvt
