// What the routines of Inventor do when something goes wrong; their solids are compared by
// replayed_models_test.
#include "cad/inventor_models.hpp"

#include "automation/automation_error.hpp"
#include "support/cad/model_designs.hpp"
#include "support/cad/recorded_routine.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

constexpr int REFUSED = -2147467259;

}  // namespace

TEST(inventor_models, go_on_solving_when_a_spline_fails) {
    automation::recorder_host host;
    EXPECT_EQ(run_with_fault(host, inventor::inner_rotor, double_sided_design(), "SketchSplines",
                             REFUSED),
              REFUSED);
    EXPECT_EQ(host.calls().back().name, "DeferUpdates");
    EXPECT_FALSE(last_put(host, "DeferUpdates"));
}

TEST(inventor_models, take_a_definition_only_where_the_short_form_is_unknown) {
    const program kavetta = double_sided_design();
    automation::recorder_host old_release, refusing;
    EXPECT_EQ(run_with_fault(old_release, inventor::inner_rotor, kavetta, "AddByDistanceExtent",
                             automation::UNKNOWN_NAME),
              0);
    EXPECT_EQ(count_of_calls(old_release, "CreateExtrudeDefinition"), 1U);
    EXPECT_EQ(
        run_with_fault(refusing, inventor::inner_rotor, kavetta, "AddByDistanceExtent", REFUSED),
        REFUSED);
    EXPECT_EQ(count_of_calls(refusing, "CreateExtrudeDefinition"), 0U);
}

TEST(inventor_models, make_all_collections_of_the_porting_first) {
    automation::recorder_host host;
    EXPECT_EQ(run_recorded(host, inventor::porting, double_sided_design()), 0);
    EXPECT_EQ(count_of_calls(host, "CreateObjectCollection"), 5U);
    const std::size_t first = first_call(host, "CreateObjectCollection");
    EXPECT_EQ(host.calls().at(first + 3).name, "CreateObjectCollection");
    EXPECT_EQ(count_of_calls(host, "AddByDistanceExtent"), 5U);
}

}  // namespace kvt
