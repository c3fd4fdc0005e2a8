// What the stages notice about designs that they accepted.
#include "app/stages/design_hints.hpp"

#include "app/stages/calculate_profiles.hpp"
#include "app/stages/design_ports.hpp"
#include "support/open_design.hpp"
#include "support/undercut_design.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

std::vector<hint> hints_of(program& kavetta) {
    scripted_user person;
    kavetta.hints.clear();
    EXPECT_EQ(calculate_profiles(kavetta, person), run_end::ok);
    return kavetta.hints;
}

TEST(design_hints, of_sound_designs_are_none) {
    for (const char* name : {"n03_transfer_sharp", "n04_fuel", "n07_engine_oil_groove",
                             "n07_inch_hydraulic", "n09_crank_oil"}) {
        program kavetta = opened_design(name);
        scripted_user person;
        EXPECT_TRUE(hints_of(kavetta).empty()) << name;
        design_ports(kavetta, person);
        EXPECT_TRUE(kavetta.hints.empty()) << name;
    }
}

TEST(design_hints, name_the_entries_of_lobes_that_are_more_than_half_a_turn) {
    program kavetta = opened_design("n07_engine_oil_groove");
    type_undercut_rotors(kavetta.entries);
    EXPECT_EQ(hints_of(kavetta),
              (std::vector<hint>{{"The fillets of the outer rotor stand beyond the lobe centres, "
                                  "so that a lobe is more than half a turn: increase \"Radius "
                                  "Outer Lobes\" or reduce \"Outer Rotor Root Radius\"."},
                                 {"Neighbouring arcs of the outer rotor miss each other: change "
                                  "\"Radius Outer Lobes\" or \"Outer Rotor Root Radius\". "
                                  "Largest distance in mm: 0.761"}}));
    kavetta.app_state.language = GERMAN;
    EXPECT_TRUE(hints_of(kavetta).at(0).text.starts_with("Die Ausrundungen des äußeren Rotors"));
}

TEST(design_hints, tell_a_profile_that_crosses_itself) {
    program kavetta = opened_design("n07_engine_oil_groove");
    ASSERT_TRUE(hints_of(kavetta).empty());
    rotor_profiles& rotors = kavetta.rotor_profiles;
    std::swap(rotors.inner_x[100], rotors.inner_x[101]);
    std::swap(rotors.inner_y[100], rotors.inner_y[101]);
    note_profile_faults(kavetta);
    ASSERT_EQ(kavetta.hints.size(), 1U);
    EXPECT_EQ(kavetta.hints[0].text,
              "The profile of the inner rotor crosses itself: reduce \"Radius Outer Lobes\" or "
              "\"Rotor Tip Clearance\".");
    kavetta.hints.clear();
    std::swap(rotors.inner_x[100], rotors.inner_x[101]);
    std::swap(rotors.inner_y[100], rotors.inner_y[101]);
    std::swap(rotors.outer_x[300], rotors.outer_x[301]);
    std::swap(rotors.outer_y[300], rotors.outer_y[301]);
    note_profile_faults(kavetta);
    ASSERT_EQ(kavetta.hints.size(), 1U);
    EXPECT_TRUE(kavetta.hints[0].text.starts_with("The profile of the outer rotor crosses"));
}

TEST(design_hints, name_the_end_angles_of_a_groove_on_the_wrong_side) {
    program kavetta = opened_design("n07_engine_oil_groove");
    ASSERT_TRUE(hints_of(kavetta).empty());
    kavetta.entries.outlet_end_inner = "155.65";
    kavetta.entries.outlet_end_outer = "115.91";
    scripted_user person;
    ASSERT_TRUE(design_ports(kavetta, person).groove);
    ASSERT_FALSE(kavetta.hints.empty());
    EXPECT_EQ(kavetta.hints[0], (hint{"The metering groove lies on the wrong side of the pump: "
                                      "change the outlet end angles."}));
    // A groove that was refused is told elsewhere.
    kavetta.hints.clear();
    kavetta.port_params.has_groove = false;
    note_groove_faults(kavetta);
    EXPECT_TRUE(kavetta.hints.empty());
}

}  // namespace
}  // namespace kvt
