// Tests of the record of exact figures: when it takes the records over, and what it leaves.
#include "app/stages/exact_record.hpp"

#include "app/program.hpp"
#include "app/stages/batch_run.hpp"
#include "app/stages/calculate_performance.hpp"
#include "support/cnc_design.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

TEST(exact_record, takes_over_what_stands_in_the_records_once) {
    program kavetta = design_with_ports("n07_engine_oil_groove");
    EXPECT_TRUE(update_exact_record(kavetta));
    EXPECT_TRUE(kavetta.exact_record.source->has_ports);
    EXPECT_FALSE(kavetta.exact_record.source->has_performance);
    EXPECT_TRUE(kavetta.exact_record.results.has(exact_part::rotors));
    EXPECT_EQ(kavetta.exact_record.results.state_of(exact_part::timing), part_state::waiting);
    EXPECT_FALSE(update_exact_record(kavetta));
    scripted_user person;
    calculate_performance(kavetta, person);
    EXPECT_TRUE(update_exact_record(kavetta));
    EXPECT_TRUE(kavetta.exact_record.results.has(exact_part::performance));
}

TEST(exact_record, typing_changes_nothing) {
    program kavetta = design_with_ports("n07_engine_oil_groove");
    update_exact_record(kavetta);
    kavetta.entries.thick = "99";
    kavetta.entries.inlet_double_sided = "1";
    EXPECT_FALSE(update_exact_record(kavetta));
    EXPECT_FALSE(kavetta.exact_record.source->which.inlet_double_sided) << "as it was designed";
}

TEST(exact_record, another_calculation_leaves_the_older_performance) {
    program kavetta = design_with_ports("n07_engine_oil_groove");
    scripted_user person;
    calculate_performance(kavetta, person);
    update_exact_record(kavetta);
    kavetta.entries.thick = "12";
    calculate_profiles(kavetta, person);
    EXPECT_TRUE(update_exact_record(kavetta));
    EXPECT_EQ(kavetta.exact_record.source->design.thick, 12.0);
    EXPECT_FALSE(kavetta.exact_record.source->has_performance);
}

TEST(exact_record, has_nothing_that_a_run_did_not_reach) {
    program kavetta = design_with_ports("n07_engine_oil_groove");
    scripted_user person;
    calculate_performance(kavetta, person);
    batch_result run;
    run.ports_reached = run.performance_reached = true;
    const exact_source whole = exact_source_of(kavetta, run);
    EXPECT_TRUE(whole.has_rotors && whole.has_ports && whole.has_performance);
    run.performance_reached = false;
    EXPECT_TRUE(exact_source_of(kavetta, run).has_ports);
    EXPECT_FALSE(exact_source_of(kavetta, run).has_performance);
    run.ports_reached = false;
    EXPECT_FALSE(exact_source_of(kavetta, run).has_ports);
    EXPECT_TRUE(exact_source_of(kavetta).has_ports);
}

TEST(exact_record, has_nothing_of_a_design_that_failed) {
    program kavetta = design_with_ports("n07_engine_oil_groove");
    update_exact_record(kavetta);
    kavetta.entries.fillet = "20";
    scripted_user person;
    calculate_profiles(kavetta, person);
    update_exact_record(kavetta);
    EXPECT_FALSE(kavetta.exact_record.source->has_rotors);
}

}  // namespace
}  // namespace kvt
