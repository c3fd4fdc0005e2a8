// The contact stress of the model against a textbook line contact at the same torque: the figures
// of the page how-sure.
//
// Textbook: only the lobes that can push carry load, those that the rotation has not yet carried
// past the line of centres, and two cylinders of the equivalent radius R under the force F over the
// length L have the stress sqrt(F E / (pi L R)).
#include "support/performance_case.hpp"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

namespace kvt {
namespace {

/// The force on lobe 1 when the lobes 0 .. 180 degrees from the line of centres share the torque as
/// the model's do.
double pushing_lobe_force(const performance_case& sample, std::size_t a) {
    const double lobes = sample.design_params.numlobes;
    double sum = 0.0;
    for (std::size_t k = 1; k <= static_cast<std::size_t>(sample.design_params.numlobes); ++k) {
        const double degrees = std::fmod(
            static_cast<double>(a) + 360.0 * (static_cast<double>(k) - 1.0) / lobes, 360.0);
        if (degrees <= 180.0) {
            sum += std::pow(sample.perf_results.lobe_arm[k][a], 2.11);
        }
    }
    return std::pow(sample.perf_results.lobe_arm[1][a], 1.11) *
           sample.perf_results.drive_torque[5][5] * 1000.0 / sum;
}

double textbook_maximum(const performance_case& sample) {
    double largest = 0.0;
    for (std::size_t a = 1; a <= 179; ++a) {
        const double radius = sample.perf_results.equiv_r[a];
        if (radius > 0.0) {
            const double stress =
                std::sqrt(pushing_lobe_force(sample, a) * sample.perf_results.combined_modulus /
                          (std::numbers::pi * sample.design_params.thick * radius));
            largest = std::max(largest, stress);
        }
    }
    return largest;
}

struct share {
    const char* sample;
    double of_textbook;
};

class textbook_contact_test : public testing::TestWithParam<share> {};

TEST_P(textbook_contact_test, gives_about_twice_the_stress_of_the_model) {
    performance_case sample = load_performance_case(GetParam().sample);
    sample.run();
    EXPECT_NEAR(sample.perf_results.hertz_max / textbook_maximum(sample), GetParam().of_textbook,
                0.0005);
}

INSTANTIATE_TEST_SUITE_P(samples, textbook_contact_test,
                         testing::Values(share{"n03_transfer_sharp", 0.5121},
                                         share{"n04_fuel", 0.5105},
                                         share{"n07_engine_oil_groove", 0.4950},
                                         share{"n07_inch_hydraulic", 0.4960},
                                         share{"n09_crank_oil", 0.5021}),
                         [](const auto& row) { return std::string(row.param.sample); });

}  // namespace
}  // namespace kvt
