// Tests of what the window Exact Figures does in the Design view, and of what opens it.
#include "app/windows/chamber_commands.hpp"

#include "app/program.hpp"
#include "app/windows/view_commands.hpp"
#include "support/cnc_design.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

TEST(chamber_commands, turns_the_pair_to_the_place_and_marks_the_chamber) {
    program kavetta = design_with_ports("n07_engine_oil_groove");
    point_at_chamber(kavetta, 130.0);
    // Lobe 0 stands on the line of centres at 0: the chamber before it is half a pitch old.
    EXPECT_NEAR(kavetta.view_state.rotation_angle, 130.0 - 180.0 / 6.0, 1e-9);
    EXPECT_EQ(kavetta.entries.rotated_angle, "100");
    EXPECT_FALSE(kavetta.design_view.chamber.outline.empty());
    rotation_tick(kavetta, turning::clockwise);
    EXPECT_NEAR(kavetta.view_state.marked_chamber->place, 131.0 * 3.14159265358979 / 180.0, 1e-9);
    forget_chamber(kavetta);
    EXPECT_TRUE(kavetta.design_view.chamber.outline.empty());
    EXPECT_EQ(kavetta.entries.rotated_angle, "101") << "the pair stays";
}

TEST(chamber_commands, another_calculation_takes_the_mark_away) {
    program kavetta = design_with_ports("n07_engine_oil_groove");
    point_at_chamber(kavetta, 130.0);
    scripted_user person;
    calculate_profiles(kavetta, person);
    EXPECT_FALSE(kavetta.view_state.marked_chamber.has_value());
    rotation_tick(kavetta, turning::clockwise);
    EXPECT_TRUE(kavetta.design_view.chamber.outline.empty());
}

TEST(chamber_commands, nothing_happens_without_rotors) {
    program kavetta = opened_design("n07_engine_oil_groove");
    point_at_chamber(kavetta, 130.0);
    EXPECT_FALSE(kavetta.view_state.marked_chamber.has_value());
}

TEST(chamber_commands, a_sign_opens_the_window_at_its_row) {
    program kavetta = design_with_ports("n07_engine_oil_groove");
    scripted_user person;
    show_exact_row(kavetta, "max_chamber", person);
    EXPECT_EQ(kavetta.exact_record.asked_row, "max_chamber");
    ASSERT_FALSE(person.log.empty());
    EXPECT_NE(person.log.back().find("exact_figures"), std::string::npos);
}

}  // namespace
}  // namespace kvt
