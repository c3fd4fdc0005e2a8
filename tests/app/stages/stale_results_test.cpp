// Tests of the hint that results on display belong to older entries.
#include "app/stages/stale_results.hpp"

#include "app/desk/unit_commands.hpp"
#include "app/files/project_reset.hpp"
#include "app/stages/calculate_performance.hpp"
#include "app/stages/calculate_profiles.hpp"
#include "app/stages/design_ports.hpp"
#include "base/path_text.hpp"
#include "core/text_table.hpp"
#include "support/open_design.hpp"
#include "support/temporary_folder.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

class stale_results_test : public testing::Test {
  protected:
    stale_results_test() { kavetta.app_state.projects_folder = utf8_of_path(folder.path()); }

    void run_all() {
        ASSERT_EQ(calculate_profiles(kavetta, person), run_end::ok);
        design_ports(kavetta, person);
        ASSERT_TRUE(calculate_performance(kavetta, person));
    }

    temporary_folder folder;
    program kavetta = opened_design("n07_engine_oil_groove");
    scripted_user person;
};

TEST_F(stale_results_test, nothing_is_stale_before_a_run_and_right_after_it) {
    kavetta.entries.ecc = "1";
    EXPECT_EQ(find_stale_stages(kavetta), stale_stages());
    kavetta.entries.ecc = opened_design("n07_engine_oil_groove").entries.ecc;
    run_all();
    EXPECT_EQ(find_stale_stages(kavetta), stale_stages());
    EXPECT_EQ(stale_hint(kavetta), "");
}

TEST_F(stale_results_test, a_rotor_entry_makes_all_stages_stale) {
    run_all();
    kavetta.entries.thick += "1";
    EXPECT_EQ(find_stale_stages(kavetta), (stale_stages{true, true, true}));
    EXPECT_EQ(stale_hint(kavetta), message_text(message::stale_profiles, ENGLISH));
    kavetta.app_state.language = GERMAN;
    EXPECT_EQ(stale_hint(kavetta), message_text(message::stale_profiles, GERMAN));
}

TEST_F(stale_results_test, a_port_entry_makes_ports_and_performance_stale) {
    run_all();
    kavetta.entries.port_radii = "1.1";
    EXPECT_EQ(find_stale_stages(kavetta), (stale_stages{false, true, true}));
    EXPECT_EQ(stale_hint(kavetta), message_text(message::stale_ports, ENGLISH));
}

TEST_F(stale_results_test, a_performance_entry_makes_only_the_performance_stale) {
    run_all();
    kavetta.entries.speed_hi += "0";
    EXPECT_EQ(find_stale_stages(kavetta), (stale_stages{false, false, true}));
    EXPECT_EQ(stale_hint(kavetta), message_text(message::stale_performance, ENGLISH));
}

TEST_F(stale_results_test, the_required_capacity_and_the_angle_are_read_by_no_stage) {
    run_all();
    kavetta.entries.volumereqd = "17";
    kavetta.entries.rotated_angle = "90";
    kavetta.entries.flow_checkbox = "1";
    EXPECT_EQ(find_stale_stages(kavetta), stale_stages());
}

TEST_F(stale_results_test, an_edit_taken_back_is_no_edit) {
    run_all();
    const std::string typed = kavetta.entries.ecc;
    kavetta.entries.ecc = "9";
    kavetta.entries.ecc = typed;
    EXPECT_EQ(find_stale_stages(kavetta), stale_stages());
}

TEST_F(stale_results_test, another_unit_of_length_makes_all_stages_stale) {
    run_all();
    set_unit_labels(kavetta, length_unit_of(INCHES));
    EXPECT_EQ(find_stale_stages(kavetta), (stale_stages{true, true, true}));
}

TEST_F(stale_results_test, a_run_makes_its_stage_fresh_again) {
    run_all();
    kavetta.entries.thick += "1";
    calculate_profiles(kavetta, person);
    EXPECT_FALSE(find_stale_stages(kavetta).profiles);
    EXPECT_FALSE(find_stale_stages(kavetta).ports);        // designed again for the new rotors
    EXPECT_FALSE(find_stale_stages(kavetta).performance);  // dropped
}

TEST_F(stale_results_test, without_results_on_display_nothing_is_stale) {
    run_all();
    project_reset(kavetta, person, reset_kind::open_project);
    kavetta.entries.thick += "1";
    EXPECT_EQ(find_stale_stages(kavetta), stale_stages());
    kavetta.entries = opened_design("n07_engine_oil_groove").entries;
    run_all();
    clear_ports(kavetta, person);
    EXPECT_FALSE(find_stale_stages(kavetta).ports);
}

TEST_F(stale_results_test, disables_nothing) {
    run_all();
    const enabling before = kavetta.enabling;
    kavetta.entries.thick += "1";
    find_stale_stages(kavetta);
    EXPECT_EQ(kavetta.enabling, before);
}

}  // namespace
}  // namespace kvt
