#include "ui/parts/reading_keys.hpp"

#include <Qt>

#include <algorithm>

namespace kvt {

namespace {

constexpr int STEPS_WITH_CTRL = 10;

/// It has points to be read.
bool is_shown(const result_chart& chart, const hidden_curves& hidden, std::size_t curve) {
    return !is_hidden(hidden, curve) && !chart.curves[curve].values.empty();
}

/// The nearest curve in a direction that is shown; curve itself when there is none.
std::size_t shown_curve(const result_chart& chart, const hidden_curves& hidden, std::size_t curve,
                        int direction) {
    const int count = static_cast<int>(chart.curves.size());
    for (int next = static_cast<int>(curve) + direction; next >= 0 && next < count;
         next += direction) {
        if (is_shown(chart, hidden, static_cast<std::size_t>(next))) {
            return static_cast<std::size_t>(next);
        }
    }
    return curve;
}

std::optional<chart_reading> first_reading(const result_chart& chart, const hidden_curves& hidden) {
    for (std::size_t curve = 0; curve < chart.curves.size(); ++curve) {
        if (is_shown(chart, hidden, curve)) {
            return chart_reading{curve, 0};
        }
    }
    return std::nullopt;
}

std::size_t moved_point(const result_chart& chart, const chart_reading& reading, int direction,
                        bool with_ctrl) {
    const int last = static_cast<int>(chart.curves[reading.curve].values.size()) - 1;
    const int step = with_ctrl ? std::max(1, last / STEPS_WITH_CTRL) : 1;
    return static_cast<std::size_t>(
        std::clamp(static_cast<int>(reading.point) + direction * step, 0, last));
}

}  // namespace

std::optional<chart_reading> next_reading(const result_chart& chart, const hidden_curves& hidden,
                                          const std::optional<chart_reading>& reading, int key,
                                          bool with_ctrl) {
    const bool is_sideways = key == Qt::Key_Left || key == Qt::Key_Right;
    if (!is_sideways && key != Qt::Key_Up && key != Qt::Key_Down) {
        return std::nullopt;
    }
    if (!reading) {
        return first_reading(chart, hidden);
    }
    const int direction = key == Qt::Key_Right || key == Qt::Key_Down ? 1 : -1;
    if (is_sideways) {
        return chart_reading{reading->curve, moved_point(chart, *reading, direction, with_ctrl)};
    }
    const std::size_t curve = shown_curve(chart, hidden, reading->curve, direction);
    return chart_reading{curve, std::min(reading->point, chart.curves[curve].values.size() - 1)};
}

}  // namespace kvt
