// Results as if a run had left them, with numbers that are easy to follow through a chart.
#pragma once

#include "performance/perf_results.hpp"

namespace kvt {

/// Speeds 500, 1000 .. 3000 rpm, pressures 1 .. 6 bar. In the units of the metric charts: flow
/// 10 i + j, drive power i + 10 j; efficiencies (i + j) / 10; contact stress 100 i + 10 j + a;
/// outlet pressure t / 100.
inline perf_results chart_results() {
    perf_results results;
    for (std::size_t i = 0; i < GRID_SIZE; ++i) {
        const auto speed = static_cast<double>(i);
        results.speed_rpm[i] = 500.0 * (speed + 1.0);
        results.press_pa[i] = 101300.0 * (speed + 1.0);
        for (std::size_t j = 0; j < GRID_SIZE; ++j) {
            const auto pressure = static_cast<double>(j);
            results.flow_m3s[i][j] = (10.0 * speed + pressure) / 60000.0;
            results.drive_power[i][j] = 1000.0 * (speed + 10.0 * pressure);
            const double ratio = (speed + pressure) / 10.0;
            results.vol_eff[i][j] = results.mech_eff[i][j] = results.overall_eff[i][j] = ratio;
            for (std::size_t a = 1; a <= CONTACT_ANGLE_LAST; ++a) {
                results.hertz_stress[i][j][a] =
                    100.0 * speed + 10.0 * pressure + static_cast<double>(a);
            }
        }
    }
    results.flow_max = 55.0 / 60000.0;
    results.power_max = 55000.0;
    results.hertz_max = 729.0;
    for (std::size_t t = 0; t < RIPPLE_STEPS; ++t) {
        results.ripple_pressure[t] = 1013.0 * static_cast<double>(t);
    }
    results.ripple_max = 1013.0 * 3599.0;
    results.ripple_percent = 12.5;
    return results;
}

}  // namespace kvt
