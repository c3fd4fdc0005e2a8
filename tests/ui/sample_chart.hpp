// A chart whose numbers can be followed by hand: flow curve i, 1 .. 5, rises from 10 i litres a
// minute by a litre from point to point; the pressures are 1 .. 6 bar.
#pragma once

#include "core/app_state.hpp"
#include "ui/parts/chart_export.hpp"
#include "views/charts/result_chart.hpp"

namespace kvt {

inline constexpr double LITRES_A_MINUTE = 60000.0;
inline constexpr double PASCALS_A_BAR = 101300.0;

inline perf_results sample_results() {
    perf_results results;
    for (std::size_t i = 0; i < GRID_SIZE; ++i) {
        const auto number = static_cast<double>(i);
        results.speed_rpm[i] = 1000.0 * (number + 1.0);
        results.press_pa[i] = PASCALS_A_BAR * (number + 1.0);
        for (std::size_t j = 0; j < GRID_SIZE; ++j) {
            results.flow_m3s[i][j] = (10.0 * number + static_cast<double>(j)) / LITRES_A_MINUTE;
        }
    }
    results.flow_min = 0.0;
    results.flow_max = 55.0 / LITRES_A_MINUTE;
    return results;
}

inline result_chart sample_chart() {
    return make_chart(chart_kind::flow, sample_results(), ENGLISH, unit_system::metric);
}

/// The sample as a window of the default size shows it.
struct sample_window {
    result_chart chart = sample_chart();
    chart_drawing drawing = draw_chart(chart, chart_size(), std::nullopt, chart_metrics());
    hidden_curves hidden = hidden_curves(chart.curves.size());
    QSize size = QSize(578, 415);

    shown_chart shown() const { return {chart, drawing, hidden, size}; }
};

}  // namespace kvt
