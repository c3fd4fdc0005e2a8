// What the routines of CATIA do when something goes wrong; their solids are compared by
// replayed_models_test.
#include "cad/catia_models.hpp"

#include "support/cad/model_designs.hpp"
#include "support/cad/recorded_routine.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

constexpr int REFUSED = -2147467259;

}  // namespace

TEST(catia_models, draw_the_screen_again_when_a_call_fails) {
    for (const char* member : {"CreateControlPoint", "CreateSpline", "AddNewPad", "UpdateObject",
                               "Update", "CloseEdition"}) {
        automation::recorder_host host;
        EXPECT_EQ(run_with_fault(host, catia::inner_rotor, double_sided_design(), member, REFUSED),
                  REFUSED)
            << member;
        EXPECT_TRUE(last_put(host, "RefreshDisplay")) << member;
    }
}

TEST(catia_models, close_a_spline_with_the_object_that_it_began_with) {
    automation::recorder_host host;
    EXPECT_EQ(run_recorded(host, catia::trochoid, double_sided_design()), 0);
    EXPECT_EQ(count_of_calls(host, "CreateControlPoint"), 3600U);
    const automation::recorded_call& spline = host.calls().at(first_call(host, "CreateSpline") - 1);
    const auto& points = std::get<automation::variant_array>(spline.arguments.at(0)).objects;
    ASSERT_EQ(points.size(), 3601U);
    EXPECT_EQ(points.front(), points.back());
}

TEST(catia_models, turn_the_pads_of_the_lower_bodies_round) {
    automation::recorder_host host;
    EXPECT_EQ(run_recorded(host, catia::porting, double_sided_design()), 0);
    EXPECT_EQ(count_of_calls(host, "AddNewPad"), 5U);
    EXPECT_EQ(count_of_calls(host, "DirectionOrientation"), 3U);
    EXPECT_EQ(count_of_calls(host, "AddNewPlaneOffset"), 1U);
}

}  // namespace kvt
