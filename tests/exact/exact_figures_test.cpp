// Tests of the exact figures of a design together, beside the product's own.
#include "exact/exact_figures.hpp"

#include "support/performed_design.hpp"

#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

namespace kvt {
namespace {

TEST(exact_figures, differ_from_the_products_as_the_guide_says) {
    const program kavetta = performed_design("n03_transfer_sharp");
    const exact_rotors exact = exact_rotors_of(kavetta.design_params);
    EXPECT_NEAR(kavetta.rotor_profiles.capacity_cc / exact.swept_cc, 1.1662, 0.0005);
    const exact_performance performance =
        exact_performance_of(kavetta.design_params, kavetta.perf_inputs, kavetta.perf_results);
    const double textbook = performance.contact.back().pressure;
    EXPECT_GT(textbook / kavetta.perf_results.hertz_max, 1.5);
    EXPECT_LT(textbook / kavetta.perf_results.hertz_max, 2.5);
}

TEST(exact_figures, the_torque_of_the_contact_is_the_ideal_one) {
    const program kavetta = performed_design("n07_engine_oil_groove");
    const double swept_cc = exact_rotors_of(kavetta.design_params).swept_cc;
    const exact_performance exact =
        exact_performance_of(kavetta.design_params, kavetta.perf_inputs, kavetta.perf_results);
    const double torque =
        swept_cc * 1000.0 * kavetta.perf_results.press_pa[3] / 1.0e6 / (2.0 * std::numbers::pi);
    const contact_maximum expected =
        pushed_side(nominal_pair(kavetta.design_params))
            .largest_pressure(
                contact_modulus(
                    {kavetta.perf_inputs.young_inner_mpa, kavetta.perf_inputs.young_outer_mpa,
                     kavetta.perf_inputs.poisson_inner, kavetta.perf_inputs.poisson_outer}),
                torque);
    EXPECT_DOUBLE_EQ(exact.contact[3].pressure, expected.pressure);
    EXPECT_LT(exact.contact[0].pressure, exact.contact[5].pressure);
}

TEST(exact_figures, the_largest_chamber_of_odd_lobes_is_the_products) {
    const program kavetta = performed_design("n07_engine_oil_groove");
    const exact_rotors exact = exact_rotors_of(kavetta.design_params);
    // The product's chamber has the clearance in it.
    EXPECT_NEAR(exact.chamber.largest / kavetta.rotor_profiles.max_chamber_volume, 1.0, 0.02);
    EXPECT_EQ(exact.flow.pulses, 12);
}

}  // namespace
}  // namespace kvt
