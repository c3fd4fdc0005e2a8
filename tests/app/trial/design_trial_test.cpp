// Tests of a trial: what it says of a design, and that it leaves everything else alone.
#include "app/trial/design_trial.hpp"

#include "app/stages/calculate_performance.hpp"
#include "app/stages/calculate_profiles.hpp"
#include "app/stages/design_ports.hpp"
#include "core/text_table.hpp"
#include "support/performed_design.hpp"
#include "support/temporary_folder.hpp"
#include "views/port_lines.hpp"

#include <filesystem>
#include <gtest/gtest.h>
#include <thread>

namespace kvt {
namespace {

constexpr calc_stage PROFILES = calc_stage::profiles;
constexpr calc_stage PORTS = calc_stage::ports;
constexpr calc_stage PERFORMANCE = calc_stage::performance;

TEST(design_trial, gives_what_the_commands_would_give) {
    program calculated = performed_design("n07_engine_oil_groove");
    const design_trial trial =
        try_design(opened_design("n07_engine_oil_groove"), std::nullopt, PERFORMANCE);
    EXPECT_TRUE(trial.accepted);
    EXPECT_TRUE(trial.messages.empty());
    EXPECT_EQ(trial.tried.rotor_profiles.capacity, calculated.rotor_profiles.capacity);
    EXPECT_EQ(trial.tried.port_params.inlet.x, calculated.port_params.inlet.x);
    EXPECT_EQ(trial.tried.perf_results.flow_max, calculated.perf_results.flow_max);
    EXPECT_EQ(trial.tried.labels.capacity, calculated.labels.capacity);
}

TEST(design_trial, leaves_the_program_as_it_was) {
    const program kavetta = performed_design("n07_engine_oil_groove");
    const program before = kavetta;
    const design_trial trial = try_design(kavetta, typed_entry{"ecc", "9"}, PERFORMANCE);
    EXPECT_FALSE(trial.accepted);
    EXPECT_EQ(kavetta.entries, before.entries);
    EXPECT_EQ(kavetta.stage_entries, before.stage_entries);
    EXPECT_EQ(kavetta.rotor_profiles.inner_plot_xy, before.rotor_profiles.inner_plot_xy);
    EXPECT_EQ(kavetta.port_params.last_good_port_radius, before.port_params.last_good_port_radius);
    EXPECT_EQ(kavetta.labels.capacity, before.labels.capacity);
}

TEST(design_trial, touches_no_file) {
    const temporary_folder folder;
    program kavetta = opened_design("n07_engine_oil_groove");
    kavetta.folder = folder.path();
    EXPECT_TRUE(try_design(kavetta, std::nullopt, PERFORMANCE).accepted);
    EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
}

TEST(design_trial, shares_nothing_that_the_program_changes) {
    program kavetta = opened_design("n04_fuel");
    const program copy = trial_copy(kavetta);
    EXPECT_NE(copy.unsaved, kavetta.unsaved);
    EXPECT_EQ(copy.unsaved.use_count(), 1);
    EXPECT_EQ(copy.packages, nullptr);
    EXPECT_EQ(copy.modeller, nullptr);
    EXPECT_EQ(copy.driven_package, nullptr);
    EXPECT_TRUE(copy.folder.empty());
}

TEST(design_trial, runs_in_another_thread_while_the_program_calculates) {
    program kavetta = performed_design("n07_engine_oil_groove");
    const program copy = trial_copy(kavetta);
    design_trial trial;
    std::thread worker([&] { trial = try_design(copy, std::nullopt, PERFORMANCE); });
    scripted_user person;
    kavetta.entries.ecc = "2.2";
    calculate_profiles(kavetta, person);
    worker.join();
    EXPECT_TRUE(trial.accepted);
    EXPECT_EQ(trial.tried.entries.ecc, copy.entries.ecc);
}

TEST(design_trial, collects_the_messages_of_a_refusal) {
    const program kavetta = opened_design("n07_engine_oil_groove");
    const design_trial trial = try_design(kavetta, typed_entry{"ecc", "0"}, PORTS);
    EXPECT_FALSE(trial.accepted);
    EXPECT_EQ(trial.result.end, batch_end::validation);
    ASSERT_EQ(trial.messages.size(), 1U);
    EXPECT_EQ(trial.messages[0], message_text(message::eccentricity_zero, ENGLISH));
}

TEST(design_trial, refuses_a_number_that_the_leave_handler_replaces) {
    const program kavetta = opened_design("n07_engine_oil_groove");
    EXPECT_FALSE(try_design(kavetta, typed_entry{"coarseness", "11"}, PROFILES).accepted);
    EXPECT_FALSE(try_design(kavetta, typed_entry{"numlobes", "2"}, PROFILES).accepted);
    EXPECT_TRUE(try_design(kavetta, typed_entry{"coarseness", "10"}, PROFILES).accepted);
}

// Design Ports takes such a radius back and comes to its end.
TEST(design_trial, refuses_a_port_radius_that_is_taken_back) {
    const program kavetta = opened_design("n07_engine_oil_groove");
    const design_trial trial = try_design(kavetta, typed_entry{"port_radii", "6"}, PORTS);
    EXPECT_FALSE(trial.result.ports_refused);
    EXPECT_FALSE(trial.messages.empty());
    EXPECT_FALSE(trial.accepted);
    EXPECT_TRUE(try_design(kavetta, typed_entry{"port_radii", "6"}, PROFILES).accepted);
}

TEST(design_trial, accepts_a_root_radius_that_is_corrected) {
    const program kavetta = opened_design("n07_engine_oil_groove");
    const design_trial trial = try_design(kavetta, typed_entry{"outer_root", "1"}, PROFILES);
    ASSERT_EQ(trial.messages.size(), 1U);
    EXPECT_NE(trial.tried.entries.outer_root, "1");
    EXPECT_TRUE(trial.accepted);
}

TEST(design_trial, accepts_a_decimal_comma_and_what_is_filled_in) {
    program kavetta = opened_design("n07_engine_oil_groove");
    kavetta.entries.port_radii.clear();
    kavetta.entries.inlet_inner_radius.clear();
    kavetta.entries.inlet_start_inner.clear();
    EXPECT_TRUE(try_design(kavetta, typed_entry{"thick", "10,5"}, PORTS).accepted);
}

TEST(design_trial, refuses_what_the_performance_refuses) {
    const program kavetta = opened_design("n07_engine_oil_groove");
    const typed_entry typed{"speed_hi", "1"};
    const design_trial trial = try_design(kavetta, typed, PERFORMANCE);
    EXPECT_TRUE(trial.result.performance_refused);
    EXPECT_FALSE(trial.accepted);
    EXPECT_TRUE(try_design(kavetta, typed, PORTS).accepted);
}

TEST(design_trial, tells_a_run_time_failure) {
    program kavetta = opened_design("n07_engine_oil_groove");
    const design_trial trial = try_design(kavetta, typed_entry{"coarseness", "1e-9"}, PROFILES);
    EXPECT_EQ(trial.result.end, batch_end::fatal);
    EXPECT_FALSE(trial.messages.empty());
    EXPECT_FALSE(trial.accepted);
}

TEST(design_trial, shows_no_port_that_was_refused) {
    const program kavetta = performed_design("n07_engine_oil_groove");
    const design_trial trial = try_design(kavetta, typed_entry{"outlet_end_inner", "30"}, PORTS);
    EXPECT_TRUE(trial.result.ports_refused);
    EXPECT_FALSE(shows_outline(trial.tried.design_view.outlet_portline));
    EXPECT_TRUE(shows_outline(trial.tried.design_view.inlet_portline));
}

TEST(last_calculated_stage, is_the_one_on_display) {
    program kavetta = opened_design("n07_engine_oil_groove");
    scripted_user person;
    EXPECT_EQ(last_calculated_stage(kavetta), PROFILES);
    calculate_profiles(kavetta, person);
    EXPECT_EQ(last_calculated_stage(kavetta), PROFILES);
    design_ports(kavetta, person);
    EXPECT_EQ(last_calculated_stage(kavetta), PORTS);
    calculate_performance(kavetta, person);
    EXPECT_EQ(last_calculated_stage(kavetta), PERFORMANCE);
    clear_ports(kavetta, person);
    EXPECT_EQ(last_calculated_stage(kavetta), PROFILES);
}

}  // namespace
}  // namespace kvt
