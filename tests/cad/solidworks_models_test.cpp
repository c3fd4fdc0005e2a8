// What the routines of SolidWorks do when something goes wrong; their solids are compared by
// replayed_models_test.
#include "cad/solidworks_models.hpp"

#include "automation/automation_error.hpp"
#include "support/cad/model_designs.hpp"
#include "support/cad/recorded_routine.hpp"
#include "support/cad/stand_ins.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

constexpr int REFUSED = -2147467259;

}  // namespace

TEST(solidworks_models, leave_no_sketch_drawing_mode_on_when_a_curve_fails) {
    automation::recorder_host host;
    EXPECT_EQ(run_with_fault(host, solidworks::outer_rotor, double_sided_design(), "CreateSpline2",
                             REFUSED),
              REFUSED);
    EXPECT_EQ(host.calls().back().name, "AddToDB");
    EXPECT_FALSE(last_put(host, "AddToDB"));
}

TEST(solidworks_models, put_the_drawing_mode_back_once_more_when_that_fails) {
    automation::recorder_host sound, host;
    const program kavetta = double_sided_design();
    run_recorded(sound, solidworks::inner_rotor, kavetta);
    const std::size_t switched_off = first_call(sound, "CreateSpline2") + 1;
    ASSERT_EQ(sound.calls().at(switched_off - 1).name, "AddToDB");
    host.fail_call(switched_off, REFUSED);
    EXPECT_EQ(run_recorded(host, solidworks::inner_rotor, kavetta), REFUSED);
    EXPECT_EQ(host.calls().size(), switched_off + 1);
    EXPECT_FALSE(last_put(host, "AddToDB"));
}

TEST(solidworks_models, fail_when_the_package_answers_no_object_and_no_error) {
    const program kavetta = double_sided_design();
    for (const solidworks_release release :
         {solidworks_release{.has_part_template = false}, solidworks_release{.extrudes = false}}) {
        const auto package = solidworks_stand_in(release);
        EXPECT_EQ(run_recorded(*package, solidworks::inner_rotor, kavetta), automation::NO_OBJECT);
        EXPECT_TRUE(package->bodies().empty());
    }
}

TEST(solidworks_models, give_the_ports_bodies_of_their_own) {
    automation::recorder_host host;
    EXPECT_EQ(run_recorded(host, solidworks::porting, double_sided_design()), 0);
    EXPECT_EQ(count_of_calls(host, "FeatureExtrusion3"), 5U);
    for (const automation::recorded_call& call : host.calls()) {
        if (call.name == "FeatureExtrusion3") {
            ASSERT_EQ(call.arguments.size(), 23U);
            EXPECT_FALSE(std::get<bool>(call.arguments[17]));
        }
    }
}

}  // namespace kvt
