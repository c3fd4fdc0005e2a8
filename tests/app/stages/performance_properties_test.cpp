// What must hold for the performance of every sound design: random rotor pairs with the default
// ports.
#include "app/program.hpp"
#include "app/stages/calculate_performance.hpp"
#include "app/stages/calculate_profiles.hpp"
#include "app/stages/design_ports.hpp"
#include "base/number_text.hpp"
#include "base/run_time_error.hpp"
#include "support/random_performance.hpp"

#include <cmath>
#include <gtest/gtest.h>
#include <memory>

namespace kvt {
namespace {

constexpr int DESIGNS = 100;

/// A rotor pair up to about 75 mm across; most of them are accepted.
void type_rotors(random_values& random, entries& boxes) {
    const int lobes = random.whole(3, 14);
    const double ratio = random.real(1.12, 2.6);
    const double ecc = random.real(5.0, 30.0) / (ratio * lobes);
    const double radouter = ecc * random.real(1.0, 6.0);
    const double radinnroot = ratio * lobes * ecc - radouter - ecc;
    boxes.numlobes = number_text(lobes);
    boxes.ecc = typed_number(ecc);
    boxes.radouter = typed_number(radouter);
    boxes.radinnroot = typed_number(radinnroot);
    boxes.clearn = typed_number(random.real(0.01, 0.2));
    boxes.thick = typed_number(random.real(4.0, 40.0));
    boxes.shaftdiameter = typed_number(radinnroot);
    boxes.minmaterial = typed_number(radinnroot / 2.0);
    boxes.maxdiameter = typed_number(2.1 * (radinnroot * 1.5 + 3.0 * ecc));
    boxes.axial_clear = typed_number(random.real(0.02, 0.15));
    boxes.radial_clear = typed_number(random.real(0.05, 0.3));
}

void type_performance(random_values& random, entries& boxes) {
    type_random_performance(random, boxes);
    boxes.shadow_ports = random.whole(0, 3) == 0 ? "1" : "0";
    boxes.inlet_double_sided = random.whole(0, 3) == 0 ? "1" : "0";
}

class performance_properties : public testing::Test {
  protected:
    /// False when the random entries are no sound design: a message, an error, or a port end that
    /// went to 180.
    bool next_design() {
        kavetta = std::make_unique<program>();
        type_rotors(random, kavetta->entries);
        // Calculate Profiles drops an outer root radius of another rotor pair, and tells so.
        kavetta->design_params.ecc = val(kavetta->entries.ecc);
        kavetta->design_params.radinnroot = val(kavetta->entries.radinnroot);
        type_performance(random, kavetta->entries);
        person.messages.clear();
        try {
            if (calculate_profiles(*kavetta, person) != run_end::ok ||
                !design_ports(*kavetta, person).outlet) {
                return false;
            }
        } catch (const run_time_error&) {
            return false;
        }
        return person.messages.empty() &&
               kavetta->port_params.outlet.corners[END_OUTER].angle_deg > 0.0 &&
               kavetta->port_params.outlet.corners[END_OUTER].angle_deg < 180.0;
    }

    /// Calls check for as many sound designs as the run takes, with their performance calculated.
    template <typename checker>
    void for_sound_designs(const checker& check) {
        const int wanted = property_count(DESIGNS);
        int sound = 0;
        for (int tried = 0; sound < wanted && !HasFailure(); ++tried) {
            ASSERT_LT(tried, 20 * wanted + 100) << "too few of the random designs are sound";
            if (!next_design()) {
                continue;
            }
            ++sound;
            SCOPED_TRACE("design " + std::to_string(tried) + ": N " + kavetta->entries.numlobes +
                         " ecc " + kavetta->entries.ecc + " radouter " + kavetta->entries.radouter +
                         " radinnroot " + kavetta->entries.radinnroot);
            ASSERT_TRUE(calculate_performance(*kavetta, person));
            check();
        }
    }

    const perf_results& now() const { return kavetta->perf_results; }

    std::unique_ptr<program> kavetta;  // without a folder: no report is written
    scripted_user person;
    random_values random;
};

TEST_F(performance_properties, hold_efficiencies_between_0_and_1) {
    for_sound_designs([this] {
        for (std::size_t i = 0; i < GRID_SIZE; ++i) {
            for (std::size_t j = 0; j < GRID_SIZE; ++j) {
                for (const double efficiency :
                     {now().vol_eff[i][j], now().mech_eff[i][j], now().overall_eff[i][j]}) {
                    EXPECT_GE(efficiency, 0.0);
                    EXPECT_LE(efficiency, 1.0 + 1e-6)
                        << "the decimal constants differ in the eighth digit";
                }
            }
        }
    });
}

TEST_F(performance_properties, hold_a_hydraulic_torque_without_speed) {
    for_sound_designs([this] {
        for (std::size_t i = 1; i < GRID_SIZE; ++i) {
            for (std::size_t j = 0; j < GRID_SIZE; ++j) {
                EXPECT_NEAR(now().hyd_torque[i][j] / now().hyd_torque[0][j], 1.0, 1e-14);
            }
        }
    });
}

TEST_F(performance_properties, hold_a_flow_that_falls_with_pressure_and_rises_with_speed) {
    for_sound_designs([this] {
        for (std::size_t i = 0; i < GRID_SIZE; ++i) {
            for (std::size_t j = 1; j < GRID_SIZE; ++j) {
                EXPECT_LE(now().flow_m3s[i][j], now().flow_m3s[i][j - 1]);
                EXPECT_GE(now().flow_m3s[j][i], now().flow_m3s[j - 1][i]);
            }
        }
    });
}

TEST_F(performance_properties, hold_no_better_volumetric_efficiency_with_twice_the_clearances) {
    for_sound_designs([this] {
        const perf_grid tight = now().vol_eff;
        kavetta->design_params.axial_clear *= 2.0;
        kavetta->design_params.radial_clear *= 2.0;
        run_performance(*kavetta, person);
        for (std::size_t i = 0; i < GRID_SIZE; ++i) {
            for (std::size_t j = 0; j < GRID_SIZE; ++j) {
                EXPECT_LE(now().vol_eff[i][j], tight[i][j]);
            }
        }
    });
}

TEST_F(performance_properties, hold_no_friction_for_balanced_rotors) {
    for_sound_designs([this] {
        const bool balanced = kavetta->entries.shadow_ports == "1";
        for (std::size_t i = 0; i < GRID_SIZE; ++i) {
            for (std::size_t j = 0; j < GRID_SIZE; ++j) {
                EXPECT_EQ(now().friction_power[i][j] == 0.0, balanced);
            }
        }
    });
}

TEST_F(performance_properties, hold_extremes_that_bound_their_grids) {
    for_sound_designs([this] {
        for (std::size_t i = 0; i < GRID_SIZE; ++i) {
            for (std::size_t j = 0; j < GRID_SIZE; ++j) {
                EXPECT_GE(now().flow_m3s[i][j], now().flow_min);
                EXPECT_LE(now().flow_m3s[i][j], now().flow_max);
                EXPECT_GE(now().drive_power[i][j], now().power_min);
                EXPECT_LE(now().drive_power[i][j], now().power_max);
                EXPECT_GE(now().overall_eff[i][j], now().overall_eff_min);
                EXPECT_LE(now().overall_eff[i][j], now().overall_eff_max);
            }
        }
        EXPECT_GE(now().ripple_percent, 0.0);
        EXPECT_LE(now().ripple_min, now().ripple_max);
    });
}

}  // namespace
}  // namespace kvt
