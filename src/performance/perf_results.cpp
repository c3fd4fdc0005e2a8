// The arrays of perf_results over the grid.
#include "performance/perf_results.hpp"

namespace kvt {

perf_speed_angles perf_results::speed_arrays() {
    perf_speed_angles arrays;
    arrays.fill(angle_array());
    return arrays;
}

perf_grid_angles perf_results::grid_arrays() {
    perf_grid_angles arrays;
    arrays.fill(speed_arrays());
    return arrays;
}

}  // namespace kvt
