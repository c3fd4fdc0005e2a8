#include "ui/parts/drawn_icons.hpp"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

#include <cmath>
#include <numbers>

namespace kvt {

namespace {

/// Icons are drawn at this size; a larger one than shown stays sharp on a dense screen.
constexpr int ICON_SIZE = 64;

QPixmap turn_arrow(const QColor& colour, bool clockwise) {
    QPixmap picture(ICON_SIZE, ICON_SIZE);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!clockwise) {
        painter.translate(ICON_SIZE, 0);
        painter.scale(-1.0, 1.0);
    }
    painter.setPen(QPen(colour, 6.0, Qt::SolidLine, Qt::FlatCap));
    painter.drawArc(QRectF(12, 12, 40, 40), 0, -270 * 16);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawPolygon(QPolygonF({QPointF(30, 0), QPointF(30, 24), QPointF(48, 12)}));
    return picture;
}

QIcon turn_icon(const QPalette& palette, bool clockwise) {
    QIcon icon(turn_arrow(palette.color(QPalette::Active, QPalette::ButtonText), clockwise));
    icon.addPixmap(turn_arrow(palette.color(QPalette::Disabled, QPalette::ButtonText), clockwise),
                   QIcon::Disabled);
    return icon;
}

/// A rounded star of `lobes` waves about a centre, for the icon only.
QPainterPath wave(QPointF centre, double radius, double height, int lobes) {
    QPolygonF points;
    for (int step = 0; step <= 360; ++step) {
        const double angle = step * std::numbers::pi / 180.0;
        const double reach = radius + height * std::cos(lobes * angle);
        points.append(centre + QPointF(reach * std::cos(angle), reach * std::sin(angle)));
    }
    QPainterPath path;
    path.addPolygon(points);
    return path;
}

}  // namespace

QIcon clockwise_icon(const QPalette& palette) {
    return turn_icon(palette, true);
}

QIcon counter_clockwise_icon(const QPalette& palette) {
    return turn_icon(palette, false);
}

void paint_program_picture(QPainter& painter) {
    painter.setPen(Qt::NoPen);
    QPainterPath ring;
    ring.addEllipse(QRectF(1, 1, 62, 62));
    painter.fillPath(ring - wave({32, 32}, 22, 4, 5), QColor(38, 94, 138));
    painter.fillPath(wave({35, 32}, 18, 4, 4), QColor(226, 132, 34));
}

QPixmap program_picture(int side) {
    QPixmap picture(side, side);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(side / PICTURE_UNITS, side / PICTURE_UNITS);
    paint_program_picture(painter);
    return picture;
}

QIcon program_icon() {
    QIcon icon;
    for (const int side : PROGRAM_ICON_SIZES) {
        icon.addPixmap(program_picture(side));
    }
    return icon;
}

}  // namespace kvt
