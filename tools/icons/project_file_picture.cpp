#include "icons/project_file_picture.hpp"

#include "ui/parts/drawn_icons.hpp"

#include <QPainter>
#include <QPainterPath>

namespace kvt {

namespace {

constexpr QColor PAPER(250, 251, 252);
constexpr QColor FOLD(206, 214, 222);
constexpr QColor EDGE(120, 134, 148);

/// The sheet from x 9 to 55; its upper right corner, a square of 14, is folded over.
const QPolygonF SHEET({{9, 1}, {41, 1}, {55, 15}, {55, 63}, {9, 63}});
const QPolygonF CORNER({{41, 1}, {41, 15}, {55, 15}});

void paint_polygon(QPainter& painter, const QPolygonF& polygon, const QColor& colour) {
    painter.setPen(QPen(EDGE, 2.0, Qt::SolidLine, Qt::SquareCap, Qt::RoundJoin));
    painter.setBrush(colour);
    painter.drawPolygon(polygon);
}

}  // namespace

void paint_project_file_picture(QPainter& painter) {
    paint_polygon(painter, SHEET, PAPER);
    paint_polygon(painter, CORNER, FOLD);
    painter.save();
    painter.translate(14.0, 21.0);
    painter.scale(0.5625, 0.5625);  // 36 of the 64 units
    paint_program_picture(painter);
    painter.restore();
}

}  // namespace kvt
