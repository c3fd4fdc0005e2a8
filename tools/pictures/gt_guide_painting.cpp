#include "pictures/gt_guide_painting.hpp"

#include "core/app_state.hpp"
#include "core/text_table.hpp"

#include <QPainter>

#include <array>
#include <cmath>

namespace kvt {

namespace {

// Everything is drawn on a sheet of this size and scaled.
constexpr double SHEET_WIDTH = 720.0;
constexpr double SHEET_HEIGHT = 450.0;

const QColor BAND(0x1f, 0x3a, 0x68);
const QColor SHAPE(0xd5, 0xdd, 0xe6);
const QColor LINE(0x20, 0x20, 0x20);
const QColor MARK(0x2e, 0x7d, 0x32);

QString text_of(std::string_view form, std::string_view row) {
    const std::string_view text = form_text(form, row, ENGLISH);
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QString guide_text(const std::string& row) {
    return text_of("GT_form", row);
}

QFont font_of(double pixels, bool bold) {
    QFont font;
    font.setFamilies({"Liberation Sans", "DejaVu Sans"});
    font.setPixelSize(static_cast<int>(pixels));
    font.setBold(bold);
    return font;
}

void paint_box(QPainter& painter, const QRectF& box, const QString& text = {}) {
    painter.setPen(QPen(LINE, 1.5));
    painter.setBrush(SHAPE);
    painter.drawRoundedRect(box, 6.0, 6.0);
    painter.setFont(font_of(15.0, false));
    painter.drawText(box, Qt::AlignCenter, text);
}

void paint_arrow(QPainter& painter, const QPointF& from, const QPointF& to) {
    constexpr double HEAD = 9.0;
    painter.setPen(QPen(BAND, 2.5));
    painter.drawLine(from, to);
    const QPointF along = (to - from) / std::hypot(to.x() - from.x(), to.y() - from.y()) * HEAD;
    const QPointF across(-along.y() / 2, along.x() / 2);
    painter.setPen(Qt::NoPen);
    painter.setBrush(BAND);
    painter.drawPolygon(QPolygonF{to, to - along + across, to - along - across});
}

/// Kavetta hands a pump on to the package.
void paint_install(QPainter& painter) {
    paint_box(painter, {130, 160, 160, 90}, "Kavetta");
    paint_arrow(painter, {300, 205}, {420, 205});
    paint_box(painter, {430, 160, 160, 90}, "GT-SUITE");
}

/// The variable and the folder that it names.
void paint_variable(QPainter& painter) {
    paint_box(painter, {80, 175, 170, 60}, "GTIHOME");
    paint_arrow(painter, {260, 205}, {350, 205});
    paint_box(painter, {360, 130, 280, 150});
    painter.setPen(LINE);
    for (const auto& [at, name] : {std::pair{165.0, "bin/gemc"}, std::pair{205.0, "bin/gtise"},
                                   std::pair{245.0, "v2021/resrc/gtise/*.gto"}}) {
        painter.drawText(QPointF(385, at + 5), name);
    }
}

/// A document with a seal.
void paint_license(QPainter& painter) {
    paint_box(painter, {280, 125, 160, 170});
    painter.setPen(QPen(LINE, 1.5));
    for (double y = 155; y <= 215; y += 20) {
        painter.drawLine(QPointF(305, y), QPointF(415, y));
    }
    painter.setPen(QPen(MARK, 7.0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(QPolygonF{{375, 258}, {390, 273}, {418, 240}});
}

/// The part of the Performance form.
void paint_choices(QPainter& painter) {
    paint_box(painter, {150, 135, 180, 44}, "GT 2021");
    paint_box(painter, {350, 135, 220, 44}, text_of("Perffrm", "GT_fluid"));
    for (const double x : {312.0, 552.0}) {
        painter.setBrush(LINE);
        painter.drawPolygon(QPolygonF{{x - 6, 153}, {x + 6, 153}, {x, 162}});
    }
    paint_box(painter, {150, 205, 420, 54}, "GT-SUITE");
}

/// The model: two volumes and what lies between them.
void paint_model(QPainter& painter) {
    paint_box(painter, {80, 170, 120, 70}, "InletVol");
    paint_box(painter, {520, 170, 120, 70}, "OutletVol");
    for (const auto& [y, name] : {std::pair{115.0, "Axial_Gap_Upper"}, std::pair{187.0, "gap"},
                                  std::pair{259.0, "Axial_Gap_Lower"}}) {
        paint_box(painter, {285, y, 150, 36}, name);
        paint_arrow(painter, {205, 205}, {280, y + 18});
        paint_arrow(painter, {440, y + 18}, {515, 205});
    }
}

constexpr std::array SKETCHES = {paint_install, paint_variable, paint_license, paint_choices,
                                 paint_model};
static_assert(SKETCHES.size() == GT_GUIDE_SCREENS);

void paint_heading(QPainter& painter, int screen, const std::string& row) {
    painter.fillRect(QRectF(0, 0, SHEET_WIDTH, 70), BAND);
    painter.setPen(Qt::white);
    painter.setFont(font_of(26.0, true));
    painter.drawText(QRectF(30, 0, 560, 70), Qt::AlignVCenter, guide_text(row));
    painter.setFont(font_of(18.0, false));
    painter.drawText(QRectF(590, 0, 100, 70), Qt::AlignVCenter | Qt::AlignRight,
                     QString("%1 / %2").arg(screen).arg(GT_GUIDE_SCREENS));
}

void paint_lines(QPainter& painter, const std::string& row) {
    painter.setPen(LINE);
    painter.setFont(font_of(16.0, false));
    painter.drawText(QRectF(30, 335, 660, 40), Qt::AlignVCenter, guide_text(row + "_a"));
    painter.drawText(QRectF(30, 375, 660, 40), Qt::AlignVCenter, guide_text(row + "_b"));
}

}  // namespace

QImage paint_gt_guide(int screen, int width) {
    const double scale = width / SHEET_WIDTH;
    QImage picture(width, static_cast<int>(SHEET_HEIGHT * scale), QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(scale, scale);
    const std::string row = "screen_" + std::to_string(screen);
    paint_heading(painter, screen, row);
    SKETCHES.at(static_cast<std::size_t>(screen - 1))(painter);
    paint_lines(painter, row);
    return picture;
}

}  // namespace kvt
