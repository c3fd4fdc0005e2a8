#include "exact/exact_flow.hpp"

#include "performance/perf_units.hpp"

#include <algorithm>

namespace kvt {

exact_flow flow_of_volume(double swept_cc, const perf_results& results) {
    exact_flow exact;
    for (std::size_t i = 0; i < GRID_SIZE; ++i) {
        const double ideal = swept_cc * results.speed_rpm[i] / CC_RPM_PER_M3S;
        for (std::size_t j = 0; j < GRID_SIZE; ++j) {
            const double flow = ideal - results.leak_tip[j] - results.leak_face[j];
            exact.flow_m3s[i][j] = std::max(flow, 0.0);
            exact.vol_eff[i][j] = ideal > 0.0 ? exact.flow_m3s[i][j] / ideal : 0.0;
        }
    }
    return exact;
}

double max_speed_of_volume(double swept_cc, const perf_results& results) {
    return std::min(results.tip_speed_rpm, results.port_flow * CC_RPM_PER_M3S / swept_cc);
}

}  // namespace kvt
