#include "pictures/explanation_painting.hpp"

#include "core/text_table.hpp"
#include "views/outline_looks.hpp"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <QPen>

#include <cassert>
#include <cmath>

namespace kvt {

namespace {

// Sizes at a width of 900 pixels; a wider picture has everything larger.
constexpr double USUAL_WIDTH = 900.0;
constexpr double TEXT_PIXELS = 12.0;
constexpr double TEXT_GAP = 4.0;  ///< between a leader and its text
constexpr double ARROW_LENGTH = 8.0;
constexpr double ARROW_HALF_WIDTH = 2.5;

QColor colour_of(const rgb_colour& colour) {
    return {colour.red, colour.green, colour.blue};
}

class explanation_painter {
  public:
    explanation_painter(const explanation& drawing, int width, std::int16_t language)
        : drawing_(drawing),
          language_(language),
          scale_(width / (drawing.right - drawing.left)),
          size_(width / USUAL_WIDTH) {
        const int height = static_cast<int>(std::lround((drawing.top - drawing.bottom) * scale_));
        painted_.picture = QImage(width, height, QImage::Format_RGB32);
        painted_.picture.fill(Qt::white);
        font_.setFamilies({"Liberation Sans", "DejaVu Sans"});
        font_.setPixelSize(static_cast<int>(std::lround(TEXT_PIXELS * size_)));
    }

    painted_explanation run() {
        QPainter painter(&painted_.picture);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setFont(font_);
        painter_ = &painter;
        for (const explained_outline& outline : drawing_.outlines) {
            paint(outline);
        }
        for (const explained_parameter& parameter : drawing_.parameters) {
            paint_lines(parameter);
        }
        for (const explained_mark& mark : drawing_.marks) {
            paint_text(QString::fromStdString(mark.text), mark.at, text_side::centred, false);
        }
        for (const explained_parameter& parameter : drawing_.parameters) {
            paint_name(parameter);
        }
        return std::move(painted_);
    }

  private:
    QPointF pixel(const point2& point) const {
        return {(point.x - drawing_.left) * scale_, (drawing_.top - point.y) * scale_};
    }
    QPolygonF pixels(const std::vector<point2>& points) const {
        QPolygonF polygon;
        for (const point2& point : points) {
            polygon.append(pixel(point));
        }
        return polygon;
    }

    void paint(const explained_outline& outline) {
        const outline_look& look = look_of(outline.style);
        painter_->setPen(QPen(colour_of(look.line), look.width * size_,
                              look.is_dashed ? Qt::DashDotLine : Qt::SolidLine, Qt::FlatCap,
                              Qt::RoundJoin));
        if (outline.is_filled && look.fill) {
            painter_->setBrush(colour_of(*look.fill));
            painter_->drawPolygon(pixels(outline.points));
        } else {
            painter_->setBrush(Qt::NoBrush);
            painter_->drawPolyline(pixels(outline.points));
        }
    }

    void paint_lines(const explained_parameter& parameter) {
        painter_->setBrush(Qt::NoBrush);
        painter_->setPen(QPen(colour_of(LEADER_COLOUR), 0.8 * size_));
        painter_->drawPolyline(pixels(parameter.leader));
        for (const extension_line& line : parameter.extensions) {
            painter_->drawLine(pixel(line.from), pixel(line.to));
        }
        if (parameter.leader_has_arrow && parameter.leader.size() > 1) {
            const point2 before = parameter.leader[parameter.leader.size() - 2];
            paint_arrow(pixel(parameter.leader.back()), pixel(before));
        }
        painter_->setPen(QPen(colour_of(DIMENSION_COLOUR), 1.2 * size_));
        for (const measured_line& line : parameter.lines) {
            paint(line);
        }
        for (const measured_arc& arc : parameter.arcs) {
            paint(arc);
        }
    }

    void paint(const measured_line& line) {
        const QPointF from = pixel(line.from);
        const QPointF to = pixel(line.to);
        painter_->drawLine(from, to);
        if (line.arrow_from) {
            paint_arrow(from, to);
        }
        if (line.arrow_to) {
            paint_arrow(to, from);
        }
    }

    void paint(const measured_arc& arc) {
        const double radius = arc.radius * scale_;
        const QPointF centre = pixel(arc.centre);
        QPainterPath path;
        const QRectF box(centre.x() - radius, centre.y() - radius, 2.0 * radius, 2.0 * radius);
        path.arcMoveTo(box, arc.from_deg);
        path.arcTo(box, arc.from_deg, arc.to_deg - arc.from_deg);
        painter_->setBrush(Qt::NoBrush);
        painter_->drawPath(path);
        // An arrow points along the chord over its own length, so that it lies on the arc.
        const double share = std::min(1.0, ARROW_LENGTH * size_ / std::max(path.length(), 1.0));
        paint_arrow(path.pointAtPercent(0.0), path.pointAtPercent(share));
        paint_arrow(path.pointAtPercent(1.0), path.pointAtPercent(1.0 - share));
    }

    /// A filled arrow head with its tip at a point, coming from another.
    void paint_arrow(const QPointF& tip, const QPointF& from) {
        const QPointF way = tip - from;
        const double length = std::hypot(way.x(), way.y());
        if (length < 0.5) {
            return;
        }
        const QPointF along = way / length * ARROW_LENGTH * size_;
        const QPointF across = QPointF(-way.y(), way.x()) / length * ARROW_HALF_WIDTH * size_;
        const QPen pen = painter_->pen();
        painter_->setPen(Qt::NoPen);
        painter_->setBrush(colour_of(DIMENSION_COLOUR));
        painter_->drawPolygon(QPolygonF{tip, tip - along + across, tip - along - across});
        painter_->setPen(pen);
        painter_->setBrush(Qt::NoBrush);
    }

    void paint_name(const explained_parameter& parameter) {
        const text_row* row = find_caption(parameter.form, parameter.label);
        assert(row != nullptr);
        const std::string_view text = row_text(*row, language_);
        paint_text(QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())),
                   parameter.text_at, parameter.side, true);
    }

    void paint_text(const QString& text, const point2& where, text_side side, bool is_name) {
        const QFontMetricsF metrics(font_);
        QRectF place(QPointF(), QSizeF(metrics.horizontalAdvance(text), metrics.height()));
        place.moveCenter(pixel(where));
        if (side == text_side::right_of) {
            place.moveLeft(pixel(where).x() + TEXT_GAP * size_);
        } else if (side == text_side::left_of) {
            place.moveRight(pixel(where).x() - TEXT_GAP * size_);
        }
        painter_->setPen(Qt::black);
        painter_->drawText(place, Qt::AlignCenter | Qt::TextDontClip, text);
        if (is_name) {
            painted_.texts.push_back({text.toStdString(), place});
        }
    }

    const explanation& drawing_;
    const std::int16_t language_;
    const double scale_;  ///< pixels a mm
    const double size_;   ///< of texts, arrows and lines
    QFont font_;
    QPainter* painter_ = nullptr;
    painted_explanation painted_;
};

}  // namespace

painted_explanation paint_explanation(const explanation& drawing, int width,
                                      std::int16_t language) {
    return explanation_painter(drawing, width, language).run();
}

std::vector<std::string> unreadable_texts(const painted_explanation& painted) {
    std::vector<std::string> findings;
    const QRectF picture(painted.picture.rect());
    for (std::size_t one = 0; one < painted.texts.size(); ++one) {
        if (!picture.contains(painted.texts[one].place)) {
            findings.push_back("leaves the picture: " + painted.texts[one].text);
        }
        for (std::size_t other = one + 1; other < painted.texts.size(); ++other) {
            if (painted.texts[one].place.intersects(painted.texts[other].place)) {
                findings.push_back("overlap: " + painted.texts[one].text + ", " +
                                   painted.texts[other].text);
            }
        }
    }
    return findings;
}

}  // namespace kvt
