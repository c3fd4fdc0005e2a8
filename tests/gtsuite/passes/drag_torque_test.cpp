#include "gtsuite/formula_reader.hpp"
#include "gtsuite/pass_case.hpp"
#include "performance/face_films.hpp"
#include "support/performance_case.hpp"

namespace kvt {
namespace {

/// The summand that keeps the formula above 0, N m. In a pump of some mN m it shows.
constexpr double LEAST_TORQUE = 1e-10;

/// What a sample's formula gives at a point of the grid, N m.
double drag_torque(const performance_case& sample, std::size_t i, std::size_t j) {
    const pump_values pump = pump_values_of(sample.design_params, sample.port_params,
                                            sample.perf_inputs, sample.perf_results);
    return formula_value(drag_formula(pump.drag),
                         {{"shadow_port_enable", pump.shadow_ports ? 1.0 : 0.0},
                          {"desiredpressuredrop-bar", pump.pressure_bar[j]},
                          {"coefficient_friction", pump.friction},
                          {"fluid_viscosity", pump.kin_visc_cst},
                          {"fluid_density", pump.density_kgm3},
                          {"rpm", pump.speed_rpm[i]},
                          {"axial_clearance_each_side", pump.axial_clearance_each_side_um},
                          {"radial_clearance", pump.radial_clearance_um},
                          {"rotor_diameter", pump.maxdiameter},
                          {"rotor_width", pump.thick}});
}

/// A sample with the porting type given, calculated.
performance_case sample_with(const char* name, bool shadow_ports, bool outlet_double_sided) {
    performance_case sample = load_performance_case(name);
    sample.perf_inputs.shadow_ports = shadow_ports;
    sample.perf_inputs.outlet_double_sided = outlet_double_sided;
    sample.run();
    return sample;
}

using expected_power = double (*)(const perf_results& results, std::size_t i, std::size_t j);

/// The formula's power against the records at every point of every sample. 1E-12: the constants
/// in its text have 15 digits.
void expect_power(bool shadow_ports, bool outlet_double_sided, expected_power expected) {
    for (const char* name : SAMPLES) {
        const performance_case sample = sample_with(name, shadow_ports, outlet_double_sided);
        const perf_results& results = sample.perf_results;
        for (std::size_t i = 0; i < GRID_SIZE; ++i) {
            for (std::size_t j = 0; j < GRID_SIZE; ++j) {
                const double power = expected(results, i, j);
                ASSERT_GT(power, 0.0);
                const double torque = drag_torque(sample, i, j) - LEAST_TORQUE;
                EXPECT_NEAR(torque * shaft_speed(results.speed_rpm[i]) / power, 1.0, 1e-12)
                    << name << ", speed " << i << ", pressure " << j;
            }
        }
    }
}

double friction_of(const perf_results& results, std::size_t i, std::size_t j) {
    return (results.friction_torque_inner[j] + results.friction_torque_outer[j]) *
           shaft_speed(results.speed_rpm[i]);
}

TEST(drag_torque, is_the_drive_power_without_the_hydraulic_power_for_shadow_ports) {
    expect_power(true, false, [](const perf_results& results, std::size_t i, std::size_t j) {
        return results.drive_power[i][j] - results.hyd_power[i][j];
    });
}

TEST(drag_torque, is_that_of_all_films_and_both_friction_torques_for_a_plain_pump) {
    expect_power(false, false, [](const perf_results& results, std::size_t i, std::size_t j) {
        return results.face_power_inner[i] + results.face_power_outer[i] + results.od_power[i] +
               friction_of(results, i, j);
    });
}

// The model knows shadow ports only: a double sided outlet counts as a plain one.
TEST(drag_torque, has_a_quarter_of_the_face_films_and_friction_for_a_double_sided_outlet) {
    expect_power(false, true, [](const perf_results& results, std::size_t i, std::size_t j) {
        return (results.face_power_inner[i] + results.face_power_outer[i]) / 4.0 +
               results.od_power[i] + friction_of(results, i, j);
    });
}

TEST(drag_torque, has_the_formula_with_its_four_constants) {
    EXPECT_EQ(drag_formula({1.5, 2.5, 3.5, 4.5}),
              "=1E-10+((1-[Shadow_Port_Enable])*[DesiredPressureDrop-bar]*[Coefficient_Friction]*"
              "1.5)+(((1+[Shadow_Port_Enable]+[Shadow_Port_Enable]+[Shadow_Port_Enable])*"
              "[fluid_viscosity]*[fluid_density]/1000000)* 2.5*[RPM]/[axial_clearance_each_side])"
              "+([RPM]*3.5*([rotor_diameter]/2000)^3 * ([rotor_width] / 1000) * "
              "([fluid_viscosity]*[fluid_density]/1000000) * 4.5/ [radial_clearance])"
              "$$UNITS:RPM=139:axial_clearance_each_side=6:radial_clearance=6:fluid_density=66:"
              "fluid_viscosity=412");
}

TEST(drag_torque, stands_in_the_pump_analysis_with_its_unit) {
    const passed done =
        run_pass(set_drag_torque, {"<object id=\"o7\" name=\"PumpAnalysis\">",
                                   "<va a_id=\"951169\" text=\"0\"/>", "</value>", "</object>"});
    EXPECT_EQ(done.lines[1], "                <va a_id=\"951169\" text=\"" +
                                 drag_formula(hand_made_pump().drag) + "\" unitID=\"0\"/>");
    EXPECT_EQ(done.lines[2], "                <va a_id=\"951188\" text=\"h950355\" unitID=\"0\"/>");
    expect_count(done, 1, 2);
    expect_untouched(set_drag_torque, {"<object id=\"o7\" name=\"Pump\">", "</object>"});
}

}  // namespace
}  // namespace kvt
