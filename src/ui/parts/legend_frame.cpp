#include "ui/parts/legend_frame.hpp"

#include "ui/parts/accessible_role.hpp"

#include <QMouseEvent>
#include <QPainter>

namespace kvt {

legend_frame::legend_frame(QWidget* parent) : QWidget(parent) {
    setObjectName("legend_frame");
    set_accessible_role(*this, QAccessible::Graphic);
    setCursor(Qt::ArrowCursor);
}

void legend_frame::show_legend(const chart_legend& legend, const hidden_curves& hidden) {
    legend_ = legend;
    hidden_ = hidden;
    setGeometry(in_pixels(legend.frame).toAlignedRect());
    update();
}

void legend_frame::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paint_legend(painter, legend_, hidden_);
}

std::optional<int> legend_frame::series_at(const QPointF& place) const {
    for (const legend_row& row : legend_.rows) {
        const QRectF line = in_pixels(row.square).united(in_pixels(row.label.box));
        if (line.contains(place)) {
            return row.series;
        }
    }
    return std::nullopt;
}

void legend_frame::mousePressEvent(QMouseEvent* event) {
    legend_drag_.press(event->button(), event->position());
    pressed_ = legend_drag_.is_on() ? series_at(event->position()) : std::nullopt;
    if (event->button() == Qt::RightButton) {
        emit menu_asked(event->globalPosition().toPoint());
    }
}

void legend_frame::mouseMoveEvent(QMouseEvent* event) {
    const QPointF step = legend_drag_.step(event->position());
    if (!step.isNull()) {
        pressed_.reset();
        emit dragged(step.x(), step.y());
    }
}

void legend_frame::mouseReleaseEvent(QMouseEvent* event) {
    legend_drag_.release();
    if (event->button() == Qt::LeftButton && pressed_ && pressed_ == series_at(event->position())) {
        emit clicked(*pressed_);
    }
    pressed_.reset();
}

}  // namespace kvt
