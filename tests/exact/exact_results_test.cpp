// Tests of the parts: what each needs, what fails, what is taken over.
#include "exact/exact_results.hpp"

#include "app/stages/exact_record.hpp"
#include "exact/exact_designs.hpp"
#include "support/all_exact_results.hpp"
#include "support/random_performance.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

exact_source source_with_rotors() {
    exact_source source;
    source.has_rotors = true;
    source.design = pair_design(6, 3.0, 25.0, 9.0, 20.0);
    return source;
}

TEST(exact_results, a_part_without_its_stage_is_not_calculated) {
    const exact_results exact = all_exact_results(source_with_rotors());
    EXPECT_EQ(exact.state_of(exact_part::rotors), part_state::there);
    EXPECT_EQ(exact.state_of(exact_part::gap), part_state::there);
    EXPECT_EQ(exact.state_of(exact_part::timing), part_state::not_calculated);
    EXPECT_EQ(exact.state_of(exact_part::performance), part_state::not_calculated);
    EXPECT_NEAR(exact.rotors.swept_cc, 11.733643, 5e-7);
}

TEST(exact_results, wait_until_they_are_worked_out) {
    exact_results exact;
    EXPECT_EQ(exact.state_of(exact_part::gap), part_state::waiting);
    work_out(exact_part::gap, source_with_rotors(), exact);
    EXPECT_TRUE(exact.has(exact_part::gap));
    EXPECT_FALSE(exact.has(exact_part::rotors));
}

/// Lobes of 1 mm never reach a root that is 10 mm away from them.
TEST(exact_results, a_geometry_without_such_figures_fails_with_its_reason) {
    exact_source source = source_with_rotors();
    source.design.outer_root = 40.0;
    const exact_results exact = all_exact_results(source);
    EXPECT_EQ(exact.state_of(exact_part::gap), part_state::failed);
    ASSERT_TRUE(exact.failure_of(exact_part::gap).has_value());
    EXPECT_EQ(exact.failure_of(exact_part::gap)->kind(), failure::invalid_procedure_call);
}

/// Without a thickness there is no flow that its pulses could be compared with.
TEST(exact_results, a_part_that_fails_leaves_no_figure_that_is_no_number) {
    exact_source source = source_with_rotors();
    exact_results exact = all_exact_results(source);
    source.design.thick = 0.0;
    work_out(exact_part::rotors, source, exact);
    EXPECT_EQ(exact.state_of(exact_part::rotors), part_state::failed);
    EXPECT_EQ(exact.rotors.flow.irregularity, 0.0);
    EXPECT_EQ(exact.rotors.flow.harmonics, flow_figures().harmonics);
    EXPECT_EQ(exact.rotors.swept_cc, 0.0);
}

TEST(exact_results, hard_designs_end_in_figures_or_in_a_reason) {
    random_values random(property_seed());
    for (int run = 0; run < property_count(60); ++run) {
        exact_source source = source_with_rotors();
        design_params& design = source.design;
        design.numlobes = random.whole(1, 20);
        design.ecc = random.real(0.0, 6.0);
        design.radouter = random.real(0.0, 20.0);
        design.radinnroot = random.real(-2.0, 30.0);
        design.outer_root = random.real(0.0, 60.0);
        design.fillet = random.real(0.0, 8.0);
        design.thick = random.real(0.0, 40.0);
        exact_results exact;
        work_out(exact_part::rotors, source, exact);
        work_out(exact_part::gap, source, exact);
        for (const exact_part part : {exact_part::rotors, exact_part::gap}) {
            EXPECT_NE(exact.state_of(part), part_state::waiting);
            EXPECT_EQ(exact.state_of(part) == part_state::failed,
                      exact.failure_of(part).has_value());
        }
        if (exact.has(exact_part::rotors)) {
            EXPECT_TRUE(std::isfinite(exact.rotors.swept_cc)) << run;
        }
    }
}

TEST(exact_results, whole_designs_have_every_part) {
    random_values random(property_seed());
    program kavetta = random_performance(random);
    update_exact_record(kavetta);
    const exact_source& source = *kavetta.exact_record.source;
    EXPECT_TRUE(source.has_rotors && source.has_ports && source.has_performance);
    const exact_results exact = all_exact_results(source);
    for (const exact_part part : EXACT_PARTS) {
        EXPECT_TRUE(exact.has(part));
    }
    exact_results taken;
    take_part(exact_part::timing, exact, taken);
    EXPECT_EQ(taken.timing.life.size(), exact.timing.life.size());
    EXPECT_FALSE(taken.has(exact_part::rotors));
}

}  // namespace
}  // namespace kvt
