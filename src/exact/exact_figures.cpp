#include "exact/exact_figures.hpp"

#include "exact/inner_hollow.hpp"

#include <numbers>

namespace kvt {

namespace {

constexpr double MM3_PER_CC = 1000.0;
constexpr double PA_PER_MPA = 1.0e6;

}  // namespace

exact_rotors exact_rotors_of(const design_params& design) {
    const exact_pair pair = nominal_pair(design);
    return {swept_volume(pair) / MM3_PER_CC, extremes_of_chamber(pair, outline_of_lobe(design)),
            figures_of_flow(pair), largest_cutter(pair_of_inner_rotor(design))};
}

exact_performance exact_performance_of(const design_params& design, const perf_inputs& inputs,
                                       const perf_results& results) {
    const exact_pair pair = nominal_pair(design);
    const double swept_cc = swept_volume(pair) / MM3_PER_CC;
    exact_performance exact{
        flow_of_volume(swept_cc, results), {}, max_speed_of_volume(swept_cc, results)};
    const double modulus = contact_modulus({inputs.young_inner_mpa, inputs.young_outer_mpa,
                                            inputs.poisson_inner, inputs.poisson_outer});
    const pushed_side side(pair);
    for (std::size_t j = 0; j < GRID_SIZE; ++j) {
        const double torque =
            swept_cc * MM3_PER_CC * results.press_pa[j] / PA_PER_MPA / (2.0 * std::numbers::pi);
        exact.contact[j] = side.largest_pressure(modulus, torque);
    }
    return exact;
}

}  // namespace kvt
