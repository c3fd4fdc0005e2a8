#include "ui/parts/design_painting.hpp"

#include "core/form_table.hpp"
#include "ui/parts/ink.hpp"

#include <QPainter>
#include <QPen>

#include <algorithm>
#include <array>
#include <cmath>
#include <initializer_list>
#include <numbers>

namespace kvt {

namespace {

/// Two steps of an outline are joined up to this length, pixels, when the point between them is no
/// further off than INVISIBLE.
constexpr double LONGEST_JOINED = 4.0;
constexpr double INVISIBLE = 0.02;

/// The most steps of a piece of an outline.
constexpr qsizetype LONGEST_PIECE = 16;

constexpr double CONTACT_RADIUS = 4.0;  ///< of the marked chamber, pixels

/// Line width of both rotors and of the outside circle, pixels.
constexpr double OUTLINE_WIDTH = 2.0;

/// An arc is drawn with cubic curves; one of a quarter turn is off by 0.00027 of its radius, and a
/// shorter one by the sixth power of its share of a quarter. After a zoom the radius can be
/// thousands of pixels.
constexpr double QUARTER_CURVE_ERROR = 0.00027;
constexpr double LARGEST_CURVE_ERROR = 0.02;  ///< pixels
constexpr double SMALLEST_CURVE = 0.01;       ///< of a quarter turn
constexpr double QUARTER_TURN = std::numbers::pi / 2.0;

/// A picture has a side of at most 32767 twips; what lies outside is left out, since after a zoom
/// most of the drawing does, and painting it takes long.
constexpr double MARGIN = 50.0;
constexpr double LARGEST_SIDE = 32767.0 / TWIPS_PER_PIXEL;
constexpr QRectF ANY_PICTURE(-MARGIN, -MARGIN, LARGEST_SIDE + 2.0 * MARGIN,
                             LARGEST_SIDE + 2.0 * MARGIN);

struct line_style {
    line_array design_view::*member;
    rgb_colour sight_palette::*colour;
    double width;  ///< pixels
};

/// The line arrays of the ports in stacking order, lowest first.
constexpr std::array PORT_STYLES = {
    line_style{&design_view::metering_groove_extraline, &sight_palette::groove_end, 2.0},
    line_style{&design_view::anglelineout, &sight_palette::ink, 1.0},
    line_style{&design_view::angleline, &sight_palette::ink, 1.0},
    line_style{&design_view::metering_groove_portline, &sight_palette::groove, 2.0},
    line_style{&design_view::outlet_portline, &sight_palette::outlet, 2.0},
    line_style{&design_view::inlet_portline, &sight_palette::inlet, 2.0},
};

QPointF start_of(const drawn_line& line, const view_box& box) {
    return {box.pixels(line.x1), box.pixels(line.y1)};
}

QPointF end_of(const drawn_line& line, const view_box& box) {
    return {box.pixels(line.x2), box.pixels(line.y2)};
}

QList<QPointF> points_of(const std::vector<drawn_point>& places, const view_box& box) {
    QList<QPointF> points;
    for (const drawn_point& place : places) {
        points.append({box.pixels(place.x), box.pixels(place.y)});
    }
    return points;
}

/// Whether the box around points reaches into a picture.
bool can_be_seen(std::initializer_list<QPointF> points) {
    double left = points.begin()->x(), right = left, top = points.begin()->y(), bottom = top;
    for (const QPointF& point : points) {
        left = std::min(left, point.x());
        right = std::max(right, point.x());
        top = std::min(top, point.y());
        bottom = std::max(bottom, point.y());
    }
    return left <= ANY_PICTURE.right() && right >= ANY_PICTURE.left() &&
           top <= ANY_PICTURE.bottom() && bottom >= ANY_PICTURE.top();
}

/// True when `point` can be left out between `from` and `to` without a visible difference.
bool is_on_the_way(QPointF from, QPointF point, QPointF to) {
    const QPointF way = to - from;
    const double length = std::hypot(way.x(), way.y());
    const QPointF step = point - from;
    const double off = std::abs(way.x() * step.y() - way.y() * step.x());
    return length > 0.0 && length < LONGEST_JOINED && off <= INVISIBLE * length;
}

/// Segments that continue each other become an outline with clean joins: thousands of antialiased
/// segments shorter than a pixel would blend into a line that is too thick. Points that nobody can
/// see are left out. Long outlines come in pieces, which are painted in half the time.
std::vector<QPolygonF> outlines_of(const line_array& array, const view_box& box) {
    std::vector<QPolygonF> outlines;
    QPointF last;
    for (std::size_t index = array.element0_visible ? 0 : 1; index < array.elements.size();
         ++index) {
        const QPointF start = start_of(array.elements[index], box);
        const QPointF end = end_of(array.elements[index], box);
        if (!can_be_seen({start, end})) {
            continue;
        }
        if (outlines.empty() || start != last || outlines.back().size() > LONGEST_PIECE) {
            outlines.push_back({start, end});
        } else if (QPolygonF& outline = outlines.back();
                   is_on_the_way(outline[outline.size() - 2], last, end)) {
            outline.back() = end;
        } else {
            outline.append(end);
        }
        last = end;
    }
    return outlines;
}

/// The largest turn of one cubic curve at a radius in pixels, radians.
double largest_curve(double radius) {
    const double share = std::pow(LARGEST_CURVE_ERROR / (QUARTER_CURVE_ERROR * radius), 1.0 / 6.0);
    return QUARTER_TURN * std::clamp(share, SMALLEST_CURVE, 1.0);
}

/// The point of a circle at an angle in radians, y down.
QPointF on_circle(QPointF centre, double radius, double angle) {
    return {centre.x() + radius * std::cos(angle), centre.y() - radius * std::sin(angle)};
}

/// A cubic curve along a circle, counter-clockwise as seen on the screen; its handles are 4/3
/// tan(turn/4) of the radius long. It continues the path when that ends at its start.
void add_curve(QPainterPath& path, QPointF centre, double radius, double from, double to) {
    const double handle = radius * 4.0 / 3.0 * std::tan((to - from) / 4.0);
    const auto along = [handle](double angle) {
        return handle * QPointF(-std::sin(angle), -std::cos(angle));
    };
    const QPointF start = on_circle(centre, radius, from);
    const QPointF end = on_circle(centre, radius, to);
    const QPointF first = start + along(from);
    const QPointF second = end - along(to);
    if (!can_be_seen({start, first, second, end})) {
        return;
    }
    if (path.isEmpty() || path.currentPosition() != start) {
        path.moveTo(start);
    }
    path.cubicTo(first, second, end);
}

/// Arcs run counter-clockwise as seen on the screen; an end before the start lies one turn further.
QPainterPath arc_path(const drawn_arc& arc, const view_box& box) {
    QPainterPath path;
    const double radius = box.pixels(arc.radius);
    if (!(radius > 0.0)) {
        return path;
    }
    const QPointF centre(box.pixels(arc.x), box.pixels(arc.y));
    const double turn = arc.end_angle - arc.start_angle;
    const double sweep = turn < 0.0 ? turn + 2.0 * std::numbers::pi : turn;
    const int curves = std::max(1, static_cast<int>(std::ceil(sweep / largest_curve(radius))));
    for (int curve = 0; curve < curves; ++curve) {
        add_curve(path, centre, radius, arc.start_angle + sweep * curve / curves,
                  arc.start_angle + sweep * (curve + 1) / curves);
    }
    return path;
}

std::vector<QPainterPath> arc_paths(const std::vector<drawn_arc>& arcs, const view_box& box) {
    std::vector<QPainterPath> paths;
    for (const drawn_arc& arc : arcs) {
        if (QPainterPath path = arc_path(arc, box); !path.isEmpty()) {
            paths.push_back(std::move(path));
        }
    }
    return paths;
}

/// The outside circle as two half turns.
std::vector<QPainterPath> circle_paths(const drawn_circle& circle, const view_box& box) {
    if (!circle.visible) {
        return {};
    }
    const double radius = circle.diameter / 2.0;
    return arc_paths({{circle.x, circle.y, radius, 0.0, std::numbers::pi},
                      {circle.x, circle.y, radius, std::numbers::pi, 2.0 * std::numbers::pi}},
                     box);
}

QPen outline_pen(const QColor& colour, double width) {
    return {colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

}  // namespace

design_painting::design_painting(const design_view& view, const view_box& box) : box_(box) {
    take_rotors(view);
    take_ports(view);
    take_band(view.Line3);
}

void design_painting::take_rotors(const design_view& view) {
    chamber_ = QPolygonF(points_of(view.chamber.outline, box_));
    chamber_ends_ = points_of(view.chamber.contacts, box_);
    arcs_ = arc_paths(view.Picture1, box_);
    inner_rotor_ = outlines_of(view.Line1, box_);
    circle_ = circle_paths(view.Shape1, box_);
}

void design_painting::take_ports(const design_view& view) {
    ports_.clear();
    for (const line_style& style : PORT_STYLES) {
        std::vector<QPolygonF> outlines = outlines_of(view.*style.member, box_);
        if (!outlines.empty()) {
            ports_.push_back({style.colour, style.width, std::move(outlines)});
        }
    }
}

bool design_painting::take_band(const rubber_band& band) {
    if (!band.visible && band_.isEmpty()) {
        return false;
    }
    band_.clear();
    if (band.visible) {
        for (const drawn_line& line : band.lines) {
            band_.append(QLineF(start_of(line, box_), end_of(line, box_)));
        }
    }
    return true;
}

bool design_painting::is_empty() const {
    return arcs_.empty() && ports_.empty() && band_.isEmpty() && inner_rotor_.empty() &&
           circle_.empty();
}

void design_painting::paint(QPainter& painter, const sight_palette& palette) const {
    const QColor ink = qt_colour(palette.ink);
    painter.setRenderHint(QPainter::Antialiasing);
    paint_chamber(painter, palette);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(outline_pen(ink, OUTLINE_WIDTH));
    for (const QPainterPath& arc : arcs_) {
        painter.drawPath(arc);
    }
    for (const layer& drawn : ports_) {
        painter.setPen(outline_pen(qt_colour(palette.*drawn.colour), drawn.width));
        for (const QPolygonF& outline : drawn.outlines) {
            painter.drawPolyline(outline);
        }
    }
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(QPen(ink, 1.0, Qt::DotLine));
    painter.drawLines(band_);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(outline_pen(ink, OUTLINE_WIDTH));
    for (const QPolygonF& outline : inner_rotor_) {
        painter.drawPolyline(outline);
    }
    for (const QPainterPath& half : circle_) {
        painter.drawPath(half);
    }
    paint_contacts(painter, palette);
}

void design_painting::paint_outlines(QPainter& painter, const QColor& colour, double width) const {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(outline_pen(colour, width));
    for (const std::vector<QPainterPath>* paths : {&arcs_, &circle_}) {
        for (const QPainterPath& path : *paths) {
            painter.drawPath(path);
        }
    }
    for (const QPolygonF& outline : inner_rotor_) {
        painter.drawPolyline(outline);
    }
    for (const layer& drawn : ports_) {
        for (const QPolygonF& outline : drawn.outlines) {
            painter.drawPolyline(outline);
        }
    }
}

void design_painting::paint_chamber(QPainter& painter, const sight_palette& palette) const {
    painter.setPen(Qt::NoPen);
    painter.setBrush(qt_colour(palette.marked_chamber));
    painter.drawPolygon(chamber_);
}

void design_painting::paint_contacts(QPainter& painter, const sight_palette& palette) const {
    painter.setPen(QPen(qt_colour(palette.paper), 1.0));
    painter.setBrush(qt_colour(palette.marked_contact));
    for (const QPointF& place : chamber_ends_) {
        painter.drawEllipse(place, CONTACT_RADIUS, CONTACT_RADIUS);
    }
}

}  // namespace kvt
