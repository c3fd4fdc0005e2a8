// The grid of speeds and pressures in both unit systems.
#include "performance/perf_grid.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

perf_inputs range(double speed_lo, double speed_hi, double pressure_lo, double pressure_hi,
                  unit_system system) {
    perf_inputs inputs;
    inputs.speed_lo = speed_lo;
    inputs.speed_hi = speed_hi;
    inputs.pressure_lo = pressure_lo;
    inputs.pressure_hi = pressure_hi;
    inputs.system = system;
    return inputs;
}

TEST(perf_grid, steps_from_the_lowest_to_the_highest) {
    perf_results results;
    set_grid(range(1000, 6000, 2, 12, unit_system::metric), results);
    EXPECT_EQ(results.speed_rpm, (perf_list{1000, 2000, 3000, 4000, 5000, 6000}));
    EXPECT_EQ(results.press_pa, (perf_list{202600, 405200, 607800, 810400, 1013000, 1215600}));
    EXPECT_EQ(results.press_step_bar, 2.0);
    EXPECT_EQ(results.speed_step, 1000.0);
}

TEST(perf_grid, takes_14_5_psi_for_a_bar) {
    perf_results results;
    set_grid(range(1000, 6000, 29, 174, unit_system::imperial), results);  // 2 .. 12 bar
    EXPECT_EQ(results.press_step_bar, 2.0);
    EXPECT_EQ(results.press_pa, (perf_list{202600, 405200, 607800, 810400, 1013000, 1215600}));
}

TEST(perf_grid, shares_viscosity_and_tip_radius) {
    design_params design;
    design.ecc = 2.0;
    design.clearn_half = 0.05;
    design.radouter = 8.0;
    rotor_profiles rotors;
    rotors.base_radius = 10.0;
    rotors.roll_radius = 5.0;
    perf_inputs inputs;
    inputs.kin_visc_cst = 12.5;
    inputs.density_kgm3 = 800.0;
    perf_results results;
    set_shared_values(design, rotors, inputs, results);
    EXPECT_EQ(results.dyn_visc, 0.01) << "12.5 cSt at 800 kg/m3 are 10 mPa s";
    EXPECT_EQ(results.tip_radius, 10.0 + 5.0 + 2.0 - 0.05 - 8.0);
}

}  // namespace
}  // namespace kvt
