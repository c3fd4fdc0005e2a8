#include "views/charts/pinned_curves.hpp"

#include "views/charts/axis_marks.hpp"

#include <algorithm>
#include <utility>

namespace kvt {

namespace {

/// Where the points of another chart stand on the x axis, in steps; empty when they can't.
std::vector<double> steps_on(const result_chart& chart, const result_chart& other) {
    const double first = chart.x_values.front();
    const double length = chart.x_values.back() - first;
    std::vector<double> steps;
    if (!(length > 0.0)) {
        return steps;
    }
    const auto own_steps = static_cast<double>(chart.x_values.size() - 1);
    steps.reserve(other.x_values.size());
    for (const double x : other.x_values) {
        steps.push_back(chart.first_step + (x - first) / length * own_steps);
    }
    return steps;
}

/// Efficiencies always go from 0 to 100 %.
void widen_axis(const result_chart& other, result_chart& chart) {
    if (chart.y_times != 1.0) {
        return;
    }
    chart.minimum = std::min(chart.minimum, other.minimum);
    chart.maximum = std::max(chart.maximum, other.maximum);
    chart.y_marks = computed_marks(chart.minimum, chart.maximum, chart.y_unit);
}

}  // namespace

result_chart with_pinned_curves(result_chart chart, const result_chart& other, std::string note) {
    const std::vector<double> steps = steps_on(chart, other);
    if (steps.empty()) {
        return chart;
    }
    for (const chart_curve& curve : other.curves) {
        chart.pinned.push_back({curve.series, steps, curve.values});
    }
    chart.pinned_note = std::move(note);
    widen_axis(other, chart);
    return chart;
}

}  // namespace kvt
