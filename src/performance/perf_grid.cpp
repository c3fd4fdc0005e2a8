#include "performance/perf_grid.hpp"

#include "base/checked_math.hpp"
#include "performance/perf_units.hpp"

namespace kvt {

namespace {

constexpr double GRID_STEPS = 5.0;

double lowest_pressure_pa(const perf_inputs& inputs) {
    return inputs.pressure_lo * BAR_PA / factors_of(inputs.system).pressure;
}

double pressure_range_bar(const perf_inputs& inputs) {
    return (inputs.pressure_hi - inputs.pressure_lo) / factors_of(inputs.system).pressure;
}

}  // namespace

void set_shared_values(const design_params& design, const rotor_profiles& rotors,
                       const perf_inputs& inputs, perf_results& results) {
    results.dyn_visc = checked_finite(inputs.kin_visc_cst * inputs.density_kgm3 / 1000000.0);
    results.tip_radius =
        rotors.base_radius + rotors.roll_radius + design.ecc - design.clearn_half - design.radouter;
}

void set_grid(const perf_inputs& inputs, perf_results& results) {
    results.press_step_bar = pressure_range_bar(inputs) / GRID_STEPS;
    results.speed_step = (inputs.speed_hi - inputs.speed_lo) / GRID_STEPS;
    for (std::size_t j = 0; j < GRID_SIZE; ++j) {
        results.press_pa[j] = checked_finite(
            lowest_pressure_pa(inputs) + BAR_PA * results.press_step_bar * static_cast<double>(j));
    }
    for (std::size_t i = 0; i < GRID_SIZE; ++i) {
        results.speed_rpm[i] =
            checked_finite(inputs.speed_lo + static_cast<double>(i) * results.speed_step);
    }
}

}  // namespace kvt
