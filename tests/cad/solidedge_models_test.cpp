// What the routines of Solid Edge do when something goes wrong; their solids are compared by
// replayed_models_test.
#include "cad/solidedge_models.hpp"

#include "automation/automation_error.hpp"
#include "support/cad/model_designs.hpp"
#include "support/cad/recorded_routine.hpp"
#include "support/cad/stand_ins.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

constexpr int REFUSED = -2147467259;

}  // namespace

TEST(solidedge_models, go_on_only_where_the_modelling_mode_is_unknown) {
    const program kavetta = double_sided_design();
    automation::recorder_host old_release, refusing;
    EXPECT_EQ(run_with_fault(old_release, solidedge::inner_rotor, kavetta, "ModelingMode",
                             automation::UNKNOWN_NAME),
              0);
    EXPECT_EQ(run_with_fault(refusing, solidedge::inner_rotor, kavetta, "ModelingMode", REFUSED),
              REFUSED);
}

TEST(solidedge_models, fail_when_the_first_body_fails) {
    automation::recorder_host host;
    EXPECT_EQ(run_with_fault(host, solidedge::porting, double_sided_design(),
                             "AddFiniteExtrudedProtrusion", REFUSED),
              REFUSED);
    EXPECT_EQ(count_of_calls(host, "AddFiniteMulti"), 0U);
}

TEST(solidedge_models, fail_when_the_package_makes_no_solid_and_no_error) {
    const program kavetta = double_sided_design();
    for (const solidedge_release release : {solidedge_release{.takes_profiles = false},
                                            solidedge_release{.first = new_model::failed}}) {
        const auto package = solidedge_stand_in(release);
        EXPECT_EQ(run_recorded(*package, solidedge::outer_rotor, kavetta),
                  automation::AUTOMATION_FAILED);
        EXPECT_TRUE(package->bodies().empty());
    }
    const auto package = solidedge_stand_in({.first = new_model::not_added});
    EXPECT_EQ(run_recorded(*package, solidedge::outer_rotor, kavetta), automation::NO_OBJECT);
}

TEST(solidedge_models, check_the_ring_of_the_outer_rotor_as_nested) {
    automation::recorder_host host;
    EXPECT_EQ(run_recorded(host, solidedge::outer_rotor, double_sided_design()), 0);
    const automation::recorded_call& end = host.calls().at(first_call(host, "End") - 1);
    EXPECT_EQ(std::get<std::int32_t>(end.arguments.at(0)), 8193);
}

TEST(solidedge_models, share_one_plane_above_the_rotors) {
    automation::recorder_host host;
    EXPECT_EQ(run_recorded(host, solidedge::porting, inch_design_with_shadow_ports()), 0);
    EXPECT_EQ(count_of_calls(host, "AddParallelByDistance"), 1U);
    EXPECT_EQ(count_of_calls(host, "AddFiniteExtrudedProtrusion"), 4U);
}

}  // namespace kvt
