// Tests of the contact pressure: values from first principles, and its laws.
#include "exact/textbook_contact.hpp"

#include "base/run_time_error.hpp"
#include "exact/exact_designs.hpp"

#include <cmath>
#include <gtest/gtest.h>

namespace kvt {
namespace {

constexpr contact_materials STEEL = {210000.0, 210000.0, 0.3, 0.3};

TEST(textbook_contact, is_that_of_first_principles) {
    const double modulus = contact_modulus(STEEL);
    const auto pressure = [&](const design_params& design) {
        return pushed_side(nominal_pair(design)).largest_pressure(modulus, 10000.0).pressure;
    };
    EXPECT_NEAR(pressure(pair_design(6, 3.0, 25.0, 9.0, 20.0)), 752.9, 0.05);
    EXPECT_NEAR(pressure(pair_design(5, 2.85, 25.08, 9.0, 10.0)), 900.5, 0.05);
}

TEST(textbook_contact, modulus_of_steel_on_steel) {
    EXPECT_NEAR(contact_modulus(STEEL), 210000.0 / 1.82, 1e-6);
    EXPECT_NEAR(contact_modulus({210000.0, 100000.0, 0.3, 0.25}),
                1.0 / (0.91 / 210000.0 + 0.9375 / 100000.0), 1e-6);
    EXPECT_THROW(contact_modulus({0.0, 1.0, 0.3, 0.3}), run_time_error);
}

TEST(textbook_contact, grows_with_the_root_of_the_torque) {
    random_values random(property_seed());
    const double modulus = contact_modulus(STEEL);
    for (int run = 0; run < property_count(50); ++run) {
        const exact_pair pair = nominal_pair(random_pair(random));
        const contact_maximum once = pushed_side(pair).largest_pressure(modulus, 1000.0);
        const contact_maximum four = pushed_side(pair).largest_pressure(modulus, 4000.0);
        EXPECT_NEAR(four.pressure / once.pressure, 2.0, 1e-6);
        EXPECT_NEAR(four.force / once.force, 4.0, 1e-3);
        EXPECT_LT(once.at, 0.0) << "on the side that is pushed";
        EXPECT_GT(once.at, -3.1416);
    }
}

/// The forces of all lobes times their arms are the torque: with one lobe at `at` the others stand
/// pitches apart.
TEST(textbook_contact, no_angle_has_more_than_the_largest) {
    random_values random(property_seed());
    for (int run = 0; run < property_count(20); ++run) {
        const exact_pair pair = nominal_pair(random_pair(random));
        const contact_maximum largest = pushed_side(pair).largest_pressure(1.0e5, 1000.0);
        for (int i = 1; i < 3000; ++i) {
            const double at = -3.14159265358979 * i / 3000.0;
            double squares = 0.0;
            double own = 0.0;
            for (int k = 0; k < pair.lobes; ++k) {
                const double lobe = at + k * pair.pitch();
                const double arm =
                    std::sin(lobe) < 0.0
                        ? std::abs(cross(pair.pitch_point(), contact_of_lobe(pair, lobe).normal))
                        : 0.0;
                squares += arm * arm;
                own = k == 0 ? arm : own;
            }
            const double load = 1000.0 * own / squares * 1.0e5 * contact_curvature(pair, at) /
                                (3.14159265358979 * pair.thick);
            EXPECT_LE(load, largest.pressure * largest.pressure * (1.0 + 1e-6));
        }
    }
}

}  // namespace
}  // namespace kvt
