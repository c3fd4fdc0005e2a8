#include "ui/parts/model_canvas.hpp"

#include "ui/parts/accessible_role.hpp"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace kvt {

namespace {

/// While something moves a picture has half of its columns and rows.
constexpr int COARSE = 2;
/// How many columns and rows of a fine picture are mixed into one dot, unless the screen is dense.
constexpr int SMOOTH = 2;
constexpr double DENSE_SCREEN = 1.5;  ///< dots to a pixel
/// How long nothing must move before a picture becomes fine, milliseconds.
constexpr int FINE_AFTER_MS = 120;
/// A step of the wheel, 15 degrees, is 120.
constexpr double ZOOM_PER_WHEEL_UNIT = 1.0015;
constexpr double ZOOM_OF_KEY = 1.25;
/// What a key drags, pixels.
constexpr double STEP_OF_KEY = 25.0;
/// How near to a corner a click takes it, pixels.
constexpr double CORNER_REACH = 7.0;
constexpr double POINT_RADIUS = 4.0;
constexpr double CROSS_LENGTH = 8.0;

QImage image_of(const model_picture& picture) {
    return {reinterpret_cast<const uchar*>(picture.pixels.data()), picture.grid.width,
            picture.grid.height, picture.grid.width * static_cast<int>(sizeof(std::uint32_t)),
            QImage::Format_RGB32};
}

QImage smaller(const QImage& image, const QSize& size) {
    return image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

QPointF step_of_key(int key) {
    switch (key) {
        case Qt::Key_Left:
            return {-STEP_OF_KEY, 0.0};
        case Qt::Key_Right:
            return {STEP_OF_KEY, 0.0};
        case Qt::Key_Up:
            return {0.0, -STEP_OF_KEY};
        case Qt::Key_Down:
            return {0.0, STEP_OF_KEY};
        default:
            return {};
    }
}

}  // namespace

model_canvas::model_canvas(const char* name) : camera_(1, 1) {
    setObjectName(name);
    set_accessible_role(*this, QAccessible::Graphic);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
    setMinimumSize(240, 180);
    fine_drawing_.setSingleShot(true);
    fine_drawing_.setInterval(FINE_AFTER_MS);
    connect(&fine_drawing_, &QTimer::timeout, this, &model_canvas::draw_fine);
}

QSize model_canvas::size_in_dots() const {
    return (QSizeF(size()) * devicePixelRatioF()).toSize().expandedTo(QSize(1, 1));
}

void model_canvas::show_scene(model_scene scene, bool moves) {
    scene_ = std::move(scene);
    if (moves) {
        draw_moving();
    } else {
        draw_fine();
    }
}

int model_canvas::dots_of_fine() const {
    return devicePixelRatioF() < DENSE_SCREEN ? SMOOTH : 1;
}

void model_canvas::draw_fine() {
    const int dots = dots_of_fine();
    model_scene scene = scene_;
    scene.line_width *= dots;
    density_ = dots;
    draw(scene, camera_.enlarged(dots));
    fine_drawing_.stop();
}

void model_canvas::draw_coarse() {
    density_ = 1.0 / COARSE;
    draw(scene_, camera_.reduced(COARSE));
}

void model_canvas::draw(const model_scene& scene, const model_camera& camera) {
    if (!isVisible()) {
        picture_.reset();
        return;
    }
    picture_ = draw_model(scene, camera);
    image_ = density_ > 1.0 ? smaller(image_of(*picture_), size_in_dots()) : image_of(*picture_);
    update();
}

void model_canvas::draw_moving() {
    draw_coarse();
    fine_drawing_.start();
}

void model_canvas::fit() {
    camera_.fit(points_of(scene_));
    is_fitted_ = true;
    draw_fine();
}

void model_canvas::look_from(const view_direction& direction) {
    camera_.look_from(direction);
    fit();
}

void model_canvas::set_picking(bool picks) {
    picks_ = picks;
    setCursor(picks ? Qt::CrossCursor : Qt::ArrowCursor);
    update();
}

void model_canvas::show_measure(std::vector<point3> points, const QColor& colour) {
    measured_ = std::move(points);
    measure_colour_ = colour;
    update();
}

QImage model_canvas::picture(int density) const {
    const model_camera camera = camera_.enlarged(density);
    model_scene scene = scene_;
    scene.line_width *= density * SMOOTH;
    const model_picture drawn = draw_model(scene, camera.enlarged(SMOOTH));
    QImage image = smaller(image_of(drawn), {camera.width(), camera.height()});
    QPainter painter(&image);
    const double dots = density * devicePixelRatioF();
    painter.scale(dots, dots);
    paint_measure(painter, camera, dots);
    return image;
}

/// What is dragged: the point under the pointer, or the middle of the picture beside the bodies.
point3 model_canvas::pivot_at(const QPointF& place) const {
    if (picture_) {
        const QPointF dots = in_dots(place) * density_;
        if (const auto point = picked(*picture_, dots.x(), dots.y())) {
            return point->point;
        }
    }
    return camera_.point_at({camera_.width() / 2.0, camera_.height() / 2.0, 0.0});
}

void model_canvas::mousePressEvent(QMouseEvent* event) {
    if (dragged_ != Qt::NoButton) {
        return;
    }
    dragged_ = event->button();
    pressed_ = event->position();
    last_ = pressed_;
    has_moved_ = false;
    pivot_ = pivot_at(pressed_);
}

void model_canvas::mouseMoveEvent(QMouseEvent* event) {
    if (dragged_ == Qt::NoButton) {
        return;
    }
    const QPointF place = event->position();
    has_moved_ = has_moved_ ||
                 (place - pressed_).manhattanLength() >= QApplication::startDragDistance() / 2.0;
    if (has_moved_) {
        drag(place - last_);
        last_ = place;
    }
}

void model_canvas::drag(const QPointF& step) {
    if (dragged_ == Qt::LeftButton) {
        camera_.orbit(pivot_, step.x(), step.y());
    } else {
        const QPointF dots = in_dots(step);
        camera_.pan(dots.x(), dots.y());
    }
    is_fitted_ = false;
    draw_moving();
}

void model_canvas::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != dragged_) {
        return;
    }
    dragged_ = Qt::NoButton;
    if (has_moved_) {
        draw_fine();
    } else if (picks_ && event->button() == Qt::LeftButton) {
        pick_at(event->position());
    }
}

void model_canvas::pick_at(const QPointF& place) {
    if (!picture_ || density_ < 1.0) {
        draw_fine();
    }
    if (!picture_) {
        return;
    }
    const QPointF dots = in_dots(place) * density_;
    const double reach = CORNER_REACH * devicePixelRatioF() * density_;
    auto point = picked_corner(*picture_, scene_, dots.x(), dots.y(), reach);
    if (!point) {
        point = picked(*picture_, dots.x(), dots.y());
    }
    if (point) {
        emit point_picked(point->part, point->point);
    }
}

void model_canvas::wheelEvent(QWheelEvent* event) {
    const QPointF place = in_dots(event->position());
    camera_.zoom(place.x(), place.y(), std::pow(ZOOM_PER_WHEEL_UNIT, event->angleDelta().y()));
    is_fitted_ = false;
    draw_moving();
    event->accept();
}

void model_canvas::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Space && picks_) {
        pick_at(rect().toRectF().center());
    } else if (!move_by_key(event->key(), event->modifiers().testFlag(Qt::ControlModifier))) {
        QWidget::keyPressEvent(event);
    }
}

bool model_canvas::move_by_key(int key, bool with_ctrl) {
    const QPointF middle = rect().toRectF().center();
    const QPointF step = step_of_key(key);
    const bool is_larger = key == Qt::Key_Plus || key == Qt::Key_Equal;
    if (!step.isNull() && with_ctrl) {
        const QPointF dots = in_dots(step);
        camera_.pan(dots.x(), dots.y());
    } else if (!step.isNull()) {
        camera_.orbit(pivot_at(middle), step.x(), step.y());
    } else if (is_larger || key == Qt::Key_Minus) {
        const QPointF dots = in_dots(middle);
        camera_.zoom(dots.x(), dots.y(), is_larger ? ZOOM_OF_KEY : 1.0 / ZOOM_OF_KEY);
    } else {
        return false;
    }
    is_fitted_ = false;
    draw_moving();
    return true;
}

void model_canvas::resizeEvent(QResizeEvent*) {
    const QSize dots = size_in_dots();
    camera_.resize(dots.width(), dots.height());
    if (is_fitted_) {
        camera_.fit(points_of(scene_));
    }
    draw_moving();
}

void model_canvas::showEvent(QShowEvent*) {
    draw_fine();
}

void model_canvas::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (!picture_) {
        painter.fillRect(rect(), palette().window());
        return;
    }
    const double dots = devicePixelRatioF();
    const double enlarged = density_ < 1.0 ? 1.0 / density_ : 1.0;
    painter.drawImage(QRectF(QPointF(), QSizeF(image_.size()) * (enlarged / dots)), image_);
    paint_measure(painter, camera_, dots);
    if (picks_ && hasFocus()) {
        paint_cross(painter);
    }
    if (hasFocus()) {
        painter.setRenderHint(QPainter::Antialiasing, false);
        painter.setPen(palette().color(QPalette::Highlight));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

void model_canvas::paint_measure(QPainter& painter, const model_camera& camera, double dots) const {
    QPolygonF places;
    for (const point3& point : measured_) {
        const picture_point place = camera.project(point);
        places.append(QPointF(place.x, place.y) / dots);
    }
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(measure_colour_, 2.0));
    painter.setBrush(Qt::NoBrush);
    painter.drawPolyline(places);
    for (const QPointF& place : places) {
        painter.drawEllipse(place, POINT_RADIUS, POINT_RADIUS);
    }
}

void model_canvas::paint_cross(QPainter& painter) const {
    const QPointF middle = rect().toRectF().center();
    painter.setPen(QPen(measure_colour_, 1.0));
    painter.drawLine(middle - QPointF(CROSS_LENGTH, 0.0), middle + QPointF(CROSS_LENGTH, 0.0));
    painter.drawLine(middle - QPointF(0.0, CROSS_LENGTH), middle + QPointF(0.0, CROSS_LENGTH));
}

}  // namespace kvt
