// preview_state: when a trial is due, and what stays of it.
#include "app/trial/preview_state.hpp"

#include "app/desk/settings_commands.hpp"
#include "app/program.hpp"
#include "support/performed_design.hpp"

#include <gtest/gtest.h>

namespace kvt {

namespace {

using need = preview_state::need;

class preview_state_test : public testing::Test {
  protected:
    static tried_design accepted(bool ports_refused = false) {
        tried_design tried;
        tried.design = std::make_shared<const kept_design>();
        tried.ports_refused = ports_refused;
        return tried;
    }
    static tried_design refused() {
        tried_design tried;
        tried.messages = {"why"};
        return tried;
    }
    /// Types an eccentricity whose trial is accepted.
    void type(const std::string& ecc) {
        kavetta.entries.ecc = ecc;
        EXPECT_EQ(preview.look(kavetta), need::trial);
        preview.take(accepted());
    }

    program kavetta = performed_design("n07_engine_oil_groove");
    preview_state preview;
};

}  // namespace

TEST_F(preview_state_test, tries_once_what_differs_from_the_results) {
    EXPECT_EQ(preview.look(kavetta), need::nothing);
    kavetta.entries.ecc = "2.7";
    EXPECT_EQ(preview.look(kavetta), need::trial);
    EXPECT_EQ(preview.look(kavetta), need::nothing) << "it is on its way";
    kavetta.entries.rotated_angle = "12";
    EXPECT_EQ(preview.look(kavetta), need::nothing);
    kavetta.entries.volumereqd = "9";
    EXPECT_EQ(preview.look(kavetta), need::trial);
}

TEST_F(preview_state_test, goes_when_the_entries_are_as_they_were) {
    const std::string before = kavetta.entries.ecc;
    type("2.7");
    EXPECT_NE(preview.rotors().design, nullptr);
    kavetta.entries.ecc = before;
    EXPECT_EQ(preview.look(kavetta), need::no_trial);
    EXPECT_EQ(preview.rotors().design, nullptr);
    EXPECT_EQ(preview.look(kavetta), need::nothing);
}

TEST_F(preview_state_test, goes_when_the_results_follow_the_entries) {
    type("2.7");
    scripted_user person;
    calculate_profiles(kavetta, person);
    EXPECT_EQ(preview.look(kavetta), need::no_trial);
    EXPECT_EQ(preview.rotors().design, nullptr);
}

TEST_F(preview_state_test, keeps_the_last_good_trial_pale_while_an_entry_is_refused) {
    type("2.7");
    EXPECT_FALSE(preview.rotors().is_pale);
    const auto good = preview.rotors().design;
    kavetta.entries.ecc = "9";
    EXPECT_EQ(preview.look(kavetta), need::trial);
    preview.take(refused());
    EXPECT_EQ(preview.rotors().design, good);
    EXPECT_TRUE(preview.rotors().is_pale && preview.ports().is_pale);
    EXPECT_EQ(preview.messages(), std::vector<std::string>{"why"});
    type("2.8");
    EXPECT_FALSE(preview.rotors().is_pale);
    EXPECT_TRUE(preview.messages().empty());
}

TEST_F(preview_state_test, keeps_the_last_good_ports_pale_beside_new_rotors) {
    type("2.7");
    const auto good = preview.ports().design;
    kavetta.entries.groove_length = "0";
    EXPECT_EQ(preview.look(kavetta), need::trial);
    preview.take(accepted(true));
    EXPECT_NE(preview.rotors().design, good);
    EXPECT_FALSE(preview.rotors().is_pale);
    EXPECT_EQ(preview.ports().design, good);
    EXPECT_TRUE(preview.ports().is_pale);
}

TEST_F(preview_state_test, is_off_when_its_tick_is) {
    type("2.7");
    scripted_user person;
    toggle_preview(kavetta, person);
    EXPECT_EQ(preview.look(kavetta), need::no_trial);
    kavetta.entries.ecc = "2.8";
    EXPECT_EQ(preview.look(kavetta), need::nothing);
    toggle_preview(kavetta, person);
    EXPECT_EQ(preview.look(kavetta), need::trial);
}

TEST_F(preview_state_test, takes_the_trials_of_another_project_away) {
    program fresh = opened_design("n07_engine_oil_groove");
    preview_state of_fresh;
    EXPECT_EQ(of_fresh.look(fresh), need::trial) << "no results stand there";
    of_fresh.take(accepted());
    fresh.app_state.project_name = "another";
    EXPECT_EQ(of_fresh.look(fresh), need::trial);
    EXPECT_EQ(of_fresh.rotors().design, nullptr);
    of_fresh.take(accepted());
    fresh.entries = entries();  // as Clear Design leaves them
    EXPECT_EQ(of_fresh.look(fresh), need::trial);
    EXPECT_EQ(of_fresh.rotors().design, nullptr);
}

}  // namespace kvt
