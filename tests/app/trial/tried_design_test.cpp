// tried_design: a trial says what the commands would say then.
#include "app/trial/tried_design.hpp"

#include "app/program.hpp"
#include "app/trial/design_trial.hpp"
#include "core/text_table.hpp"
#include "support/performed_design.hpp"

#include <gtest/gtest.h>

namespace kvt {

namespace {

constexpr const char* DESIGN = "n07_engine_oil_groove";

tried_design tried(const program& kavetta, const std::string& entry_in_use = {}) {
    return try_typed_entries(trial_copy(kavetta), stages_on_display(kavetta, entry_in_use));
}

}  // namespace

TEST(try_typed_entries, finds_the_figures_that_the_commands_find_then) {
    program kavetta = performed_design(DESIGN);
    kavetta.entries.ecc = "2,7";
    const tried_design found = tried(kavetta, "ecc");
    ASSERT_NE(found.design, nullptr);
    EXPECT_FALSE(found.ports_refused);
    EXPECT_TRUE(found.design->has_performance);
    const labels figures = labels_of(*found.design, kavetta.app_state);
    const std::string before = kavetta.labels.capacity;
    scripted_user person;
    calculate_profiles(kavetta, person);
    calculate_performance(kavetta, person);
    EXPECT_NE(kavetta.labels.capacity, before);
    EXPECT_EQ(figures.capacity, kavetta.labels.capacity);
    EXPECT_EQ(figures.min_chamb_vol, kavetta.labels.min_chamb_vol);
    EXPECT_EQ(figures.max_speed, kavetta.labels.max_speed);
    EXPECT_EQ(figures.Label1, kavetta.labels.Label1);
    EXPECT_EQ(found.messages, person.messages);
}

TEST(try_typed_entries, runs_the_stages_on_display_alone) {
    program kavetta = opened_design(DESIGN);
    scripted_user person;
    calculate_profiles(kavetta, person);
    kavetta.entries.ecc = "2.7";
    const tried_design rotors = tried(kavetta);
    ASSERT_NE(rotors.design, nullptr);
    EXPECT_TRUE(rotors.design->outlines.rotors);
    EXPECT_FALSE(rotors.design->outlines.inlet);
    EXPECT_FALSE(rotors.design->has_performance);
}

TEST(try_typed_entries, of_refused_rotors_has_the_message_alone) {
    program kavetta = performed_design(DESIGN);
    kavetta.entries.ecc = "3.4";
    const tried_design refused = tried(kavetta);
    EXPECT_EQ(refused.design, nullptr);
    EXPECT_FALSE(refused.messages.empty());
}

TEST(try_typed_entries, takes_no_entry_that_would_be_replaced) {
    program kavetta = performed_design(DESIGN);
    kavetta.entries.numlobes = "1";  // on the way to 12
    EXPECT_EQ(tried(kavetta, "numlobes").design, nullptr);
    EXPECT_EQ(tried(kavetta, "numlobes").messages.front(),
              message_text(message::lobe_number_minimum, ENGLISH));
    kavetta.entries.numlobes = "7";
    kavetta.entries.thick = "";
    EXPECT_EQ(tried(kavetta).design, nullptr);
    kavetta.entries.thick = "10";
    kavetta.entries.numlobes = "x";
    EXPECT_EQ(tried(kavetta).design, nullptr);
}

TEST(try_typed_entries, of_refused_ports_has_the_rotors) {
    program kavetta = performed_design(DESIGN);
    kavetta.entries.groove_length = "0";
    const tried_design found = tried(kavetta);
    ASSERT_NE(found.design, nullptr);
    EXPECT_TRUE(found.ports_refused);
    EXPECT_TRUE(found.design->outlines.rotors);
    EXPECT_FALSE(found.design->outlines.inlet || found.design->outlines.groove);
    EXPECT_FALSE(found.design->has_performance);
    EXPECT_EQ(found.messages.front(), message_text(message::input_groove_length, ENGLISH));
}

TEST(try_typed_entries, of_a_refused_performance_has_the_ports) {
    program kavetta = performed_design(DESIGN);
    kavetta.entries.fluid_density = "";
    const tried_design found = tried(kavetta);
    ASSERT_NE(found.design, nullptr);
    EXPECT_FALSE(found.ports_refused);
    EXPECT_TRUE(found.design->outlines.outlet);
    EXPECT_FALSE(found.design->has_performance);
    EXPECT_FALSE(found.messages.empty());
}

TEST(try_typed_entries, waits_in_silence_for_the_entries_of_a_new_project) {
    program kavetta;
    EXPECT_EQ(tried(kavetta).design, nullptr);
    EXPECT_TRUE(tried(kavetta).messages.empty());
    kavetta.entries = opened_design(DESIGN).entries;
    EXPECT_NE(tried(kavetta).design, nullptr);
    kavetta.entries.radial_clear = "";
    EXPECT_EQ(tried(kavetta).design, nullptr);
    EXPECT_TRUE(tried(kavetta).messages.empty());
}

}  // namespace kvt
