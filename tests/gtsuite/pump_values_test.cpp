#include "gtsuite/pump_values.hpp"

#include "support/expect_failure.hpp"
#include "support/performance_case.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

pump_values values_of(const performance_case& sample) {
    return pump_values_of(sample.design_params, sample.port_params, sample.perf_inputs,
                          sample.perf_results);
}

performance_case calculated(const std::string& name) {
    performance_case sample = load_performance_case(name);
    sample.run();
    return sample;
}

TEST(pump_values, are_lengths_in_millimetres_and_clearances_in_micrometres) {
    const performance_case sample = calculated("n04_fuel");
    const design_params& design = sample.design_params;
    const pump_values pump = values_of(sample);
    EXPECT_EQ(pump.numlobes, design.numlobes);
    EXPECT_EQ(pump.thick, design.thick);
    EXPECT_EQ(pump.maxdiameter, design.maxdiameter);
    EXPECT_EQ(pump.tip_clearance_um, 2000.0 * design.clearn_half);
    EXPECT_EQ(pump.axial_clearance_each_side_um, 500.0 * design.axial_clear);
    EXPECT_EQ(pump.radial_clearance_um, 1000.0 * design.radial_clear);
    EXPECT_EQ(pump.inlet_gap_width,
              sample.port_params.inlet.outer_r - sample.port_params.inlet.inner_r);
    EXPECT_EQ(pump.outlet_gap_width,
              sample.port_params.outlet.outer_r - sample.port_params.outlet.inner_r);
}

TEST(pump_values, assume_a_bearing_as_long_as_the_shaft_is_thick_and_a_thousandth_clearance) {
    const performance_case sample = calculated("n04_fuel");
    const pump_values pump = values_of(sample);
    EXPECT_EQ(pump.bearing_length, sample.design_params.shaftdiameter);
    EXPECT_DOUBLE_EQ(pump.bearing_clearance_um / 1000.0,
                     0.001 * sample.design_params.shaftdiameter);
}

// The velocity factor is that of the mean radius of the inner face: 2 pi / 60 r.
TEST(pump_values, move_the_gaps_with_the_mean_radius_of_the_inner_face) {
    const performance_case sample = calculated("n04_fuel");
    EXPECT_DOUBLE_EQ(values_of(sample).velocity_factor * 1000.0,
                     1000.0 * 2.0 * 3.1415927 / 60.0 * sample.perf_results.inner_mean_r / 1000.0);
}

TEST(pump_values, have_the_grid_of_the_run_in_bar_also_for_an_imperial_project) {
    const performance_case sample = calculated("n07_inch_hydraulic");
    const pump_values pump = values_of(sample);
    const perf_inputs& inputs = sample.perf_inputs;
    ASSERT_EQ(inputs.system, unit_system::imperial);
    EXPECT_EQ(pump.speed_rpm, sample.perf_results.speed_rpm);
    const double range_bar = (inputs.pressure_hi - inputs.pressure_lo) / 14.5;
    for (std::size_t j = 0; j < GRID_SIZE; ++j) {
        EXPECT_NEAR(pump.pressure_bar[j],
                    inputs.pressure_lo / 14.5 + range_bar * static_cast<double>(j) / 5.0, 1e-12);
    }
}

// One area at one radius shears like the two faces, the outer one slower by (N - 1) / N.
TEST(pump_values, have_one_area_and_radius_that_shear_like_both_faces) {
    for (const char* name : SAMPLES) {
        const performance_case sample = calculated(name);
        const perf_results& results = sample.perf_results;
        const pump_values pump = values_of(sample);
        const double ratio = (sample.design_params.numlobes - 1.0) / sample.design_params.numlobes;
        const double both =
            results.face_area_inner * results.inner_mean_r * results.inner_mean_r +
            results.face_area_outer * results.outer_mean_r * results.outer_mean_r * ratio * ratio;
        EXPECT_NEAR(pump.face_area_mm2 * pump.face_radius * pump.face_radius, both, 1e-9 * both);
    }
}

TEST(pump_values, have_no_radius_for_faces_without_a_film) {
    performance_case sample = load_performance_case("n04_fuel");
    sample.perf_inputs.Face_area_value = 0.0;
    sample.run();
    EXPECT_EQ(values_of(sample).face_radius, 0.0);
    EXPECT_EQ(values_of(sample).drag.face_shear, 0.0);
}

TEST(pump_values, of_a_pump_without_lobes_are_a_failure) {
    EXPECT_FAILURE(pump_values_of({}, {}, {}, {}), failure::division_by_zero);
}

}  // namespace
}  // namespace kvt
