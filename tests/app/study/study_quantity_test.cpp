// Tests of the quantities of a study: their names, units and values.
#include "app/study/study_quantity.hpp"

#include "app/study/study_problem.hpp"
#include "base/number_text.hpp"
#include "support/all_exact_results.hpp"
#include "support/open_design.hpp"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>

namespace kvt {
namespace {

const char* const DESIGN = "n07_engine_oil_groove";

/// A design after all stages, with all exact figures.
struct calculated {
    program kavetta = opened_design(DESIGN);
    batch_result result;
    exact_results exact;
    std::vector<study_quantity> quantities = study_quantities(kavetta);

    explicit calculated(calc_stage last = calc_stage::performance) {
        scripted_user person;
        result = calculate_open_design(kavetta, person, last);
    }
    void work_out_exact() { exact = all_exact_results(exact_source_of(kavetta)); }
    std::optional<double> operator[](const std::string& name) const {
        return chosen_quantity_of(quantities, name).value_of({kavetta, result, exact});
    }
};

std::string problem_of(const std::string& name) {
    try {
        chosen_quantity_of(study_quantities(opened_design(DESIGN)), name);
    } catch (const study_problem& problem) {
        return problem.what();
    }
    return {};
}

TEST(study_quantity, has_each_name_once) {
    std::set<std::string> names;
    for (const study_quantity& quantity : study_quantities(opened_design(DESIGN))) {
        EXPECT_TRUE(names.insert(quantity.name).second) << quantity.name;
    }
    EXPECT_GT(names.size(), 300U);
}

TEST(study_quantity, is_what_the_results_show) {
    const calculated design;
    const program& kavetta = design.kavetta;
    EXPECT_EQ(design["capacity"], val(kavetta.labels.capacity));
    EXPECT_EQ(design["max_chamb_vol"], kavetta.rotor_profiles.max_chamber_volume);
    EXPECT_EQ(design["max_speed"], kavetta.perf_results.max_speed_rpm);
    EXPECT_EQ(design["max_cutter_inner"], -2.0 * kavetta.perf_results.cutter_r);
    EXPECT_EQ(design["ripple"], kavetta.perf_results.ripple_percent);
    EXPECT_EQ(design["ripple_percent"], kavetta.perf_results.ripple_percent);
    EXPECT_EQ(design["overall_eff_max"], kavetta.perf_results.overall_eff_max);
    EXPECT_EQ(design["outer_diameter"],
              2.0 * (kavetta.design_params.outer_root + kavetta.design_params.minmaterial));
    EXPECT_EQ(design["inlet_inner_r"], kavetta.port_params.inlet.inner_r);
}

TEST(study_quantity, stands_at_a_point_of_the_grid) {
    const calculated design;
    const perf_results& results = design.kavetta.perf_results;
    EXPECT_EQ(design["flow_m3s[0][5]"], results.flow_m3s[0][5]);
    EXPECT_EQ(design["flow_m3s[5][0]"], results.flow_m3s[5][0]);
    EXPECT_EQ(design["leak_tip[3]"], results.leak_tip[3]);
    EXPECT_EQ(design["od_power[2]"], results.od_power[2]);
}

TEST(study_quantity, has_extremes_where_it_is_spread) {
    const calculated design;
    const perf_results& results = design.kavetta.perf_results;
    double largest = results.flow_m3s[0][0];
    for (const perf_list& speed : results.flow_m3s) {
        largest = std::max(largest, *std::ranges::max_element(speed));
    }
    EXPECT_EQ(design["flow_m3s_max"], largest);
    EXPECT_EQ(design["speed_rpm_min"], results.speed_rpm[0]);
    EXPECT_EQ(design["hertz_stress_max"], results.hertz_max);
    // Angle 0 has no contact: its 0 is no result.
    EXPECT_GT(*design["contact_dist_min"], 0.0);
    EXPECT_GT(*design["ripple_pressure_min"], 0.0);
}

TEST(study_quantity, takes_entries_after_the_run) {
    const calculated design;
    EXPECT_EQ(design["numlobes"], 7.0);
    EXPECT_EQ(design["outer_root"], val(design.kavetta.entries.outer_root));
}

TEST(study_quantity, has_exact_figures) {
    calculated design;
    EXPECT_FALSE(design["exact_swept_cc"].has_value());
    design.work_out_exact();
    EXPECT_EQ(design["exact_swept_cc"], design.exact.rotors.swept_cc);
    EXPECT_EQ(design["exact_least_gap"], design.exact.gap.least);
    EXPECT_EQ(design["exact_contact_pressure[5]"], design.exact.performance.contact[5].pressure);
    EXPECT_EQ(design["exact_flow_m3s[0][5]"], design.exact.performance.flow.flow_m3s[0][5]);
    // mm/s for one radian a second at the highest speed, in m/s.
    const double speed = design.kavetta.perf_inputs.speed_hi * 3.14159265358979 / 30.0 / 1000.0;
    EXPECT_NEAR(*design["exact_outlet_speed"], design.exact.timing.outlet_speed.speed * speed,
                1e-12);
}

TEST(study_quantity, is_missing_where_the_run_did_not_get) {
    const calculated design(calc_stage::profiles);
    EXPECT_TRUE(design["capacity"].has_value());
    EXPECT_FALSE(design["inlet_c1_x"].has_value());
    EXPECT_FALSE(design["flow_max"].has_value());
    EXPECT_FALSE(design["flow_m3s_max"].has_value());
    EXPECT_FALSE(design["ripple"].has_value());
}

TEST(study_quantity, names_its_unit) {
    const auto quantities = study_quantities(opened_design(DESIGN));
    const auto heading = [&](const char* name) {
        return chosen_quantity_of(quantities, name).heading();
    };
    EXPECT_EQ(heading("capacity"), "capacity [Lit/Min/1000rpm]");
    EXPECT_EQ(heading("ecc"), "ecc [mm]");
    EXPECT_EQ(heading("overall_eff_max"), "overall_eff_max");
    EXPECT_EQ(heading("flow_m3s[0][5]"), "flow_m3s[0][5] [m3/s]");
    EXPECT_EQ(heading("side_load_direction"), "side_load_direction [deg]");
    EXPECT_EQ(heading("inlet_inner_r"), "inlet_inner_r [mm]");
    EXPECT_EQ(heading("inlet_t1_deg"), "inlet_t1_deg [deg]");
}

TEST(study_quantity, says_what_is_wrong_with_a_name) {
    EXPECT_EQ(problem_of("capacty"), "there is no quantity 'capacty'; near names: capacity");
    EXPECT_EQ(problem_of("flow_m3s"),
              "'flow_m3s' is no quantity: it is flow_m3s[SPEED][PRESSURE], "
              "indexes 0 to 5");
    EXPECT_EQ(problem_of("leak_tip[6]"),
              "'leak_tip[6]' is no quantity: it is leak_tip[PRESSURE], indexes 0 to 5");
    EXPECT_EQ(problem_of("capacity[0]"),
              "'capacity[0]' is no quantity: it is capacity, indexes 0 to 5");
}

}  // namespace
}  // namespace kvt
