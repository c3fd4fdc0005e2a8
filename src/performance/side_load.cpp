#include "performance/side_load.hpp"

#include "base/checked_math.hpp"
#include "base/constants.hpp"

#include <cmath>
#include <vector>

namespace kvt {

namespace {

/// Sine and cosine of the pressure angles: the same for every speed and pressure.
struct directions {
    explicit directions(const perf_array& pressure_angle) {
        for (const double angle : pressure_angle) {
            sine.push_back(std::sin(angle));
            cosine.push_back(std::cos(angle));
        }
    }
    std::vector<double> sine, cosine;
};

/// side_x, side_y, side_mag and side_dir at a. The last angle is tested before it is rounded to an
/// index, half to even.
void add_lobes(std::int32_t numlobes, const perf_array& force, const directions& at, int a,
               perf_results& results) {
    double& x = checked_at(results.side_x, a);
    double& y = checked_at(results.side_y, a);
    x = 0.0;
    y = 0.0;
    for (std::int32_t k = 1; k <= numlobes; ++k) {
        const double b = a + (k - 1.0) * 360.0 / (numlobes - 1.0);
        if (b > 180.0) {
            continue;
        }
        const std::int32_t index = to_int32(b);
        x = x + checked_at(at.sine, index) * checked_at(force, index);
        y = y + checked_at(at.cosine, index) * checked_at(force, index);
    }
    checked_at(results.side_mag, a) = checked_sqrt(x * x + y * y);
    checked_at(results.side_dir, a) = std::atan(checked_divide(y, x));
}

void set_contact_load(std::int32_t numlobes, const directions& at, std::size_t i, std::size_t j,
                      perf_results& results) {
    double& load = results.side_load[i][j];
    double& angle = results.side_load_angle[i][j];
    const double last = checked_divide(360.0, numlobes - 1.0) - 1.0;
    for (int a = 1; a <= last; ++a) {
        // Kept: reset at each a, so the load of the last a stands and not the largest;
        // side_load_test holds it.
        load = 0.0;
        angle = 0.0;
        add_lobes(numlobes, results.contact_force[i][j], at, a, results);
        if (checked_at(results.side_mag, a) > load) {
            load = checked_at(results.side_mag, a);
            angle = checked_at(results.side_dir, a);
        }
    }
}

}  // namespace

void set_side_loads(const design_params& design, const perf_inputs& inputs, perf_results& results) {
    const directions at(results.pressure_angle);
    results.root_arc = 2.0 * design.radinnroot * PI_D * design.thick *
                       (inputs.outlet_end_inner - inputs.outlet_start_inner) / 360.0;
    for (std::size_t j = 0; j < GRID_SIZE; ++j) {
        for (std::size_t i = 0; i < GRID_SIZE; ++i) {
            set_contact_load(design.numlobes, at, i, j, results);
            results.side_load[i][j] = checked_finite(
                results.side_load[i][j] + results.root_arc * results.press_pa[j] / 1000000.0);
        }
    }
}

}  // namespace kvt
