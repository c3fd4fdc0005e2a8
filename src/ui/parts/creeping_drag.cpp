#include "ui/parts/creeping_drag.hpp"

#include "core/form_table.hpp"

namespace kvt {

namespace {

constexpr double STEP_TWIPS = 20.0;

double step_towards(double place, double pressed) {
    if (place > pressed + STEP_TWIPS) {
        return STEP_TWIPS;
    }
    return place < pressed - STEP_TWIPS ? -STEP_TWIPS : 0.0;
}

}  // namespace

void creeping_drag::press(Qt::MouseButton button, const QPointF& place) {
    is_on_ = button == Qt::LeftButton;
    x_ = static_cast<float>(place.x() * TWIPS_PER_PIXEL);
    y_ = static_cast<float>(place.y() * TWIPS_PER_PIXEL);
}

QPointF creeping_drag::step(const QPointF& place) const {
    if (!is_on_) {
        return {};
    }
    return {step_towards(place.x() * TWIPS_PER_PIXEL, x_),
            step_towards(place.y() * TWIPS_PER_PIXEL, y_)};
}

}  // namespace kvt
