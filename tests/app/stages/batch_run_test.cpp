// Tests of a run without a person at the screen: any user hears what is told, nothing is printed.
#include "app/stages/batch_run.hpp"

#include "app/program.hpp"
#include "support/scripted_user.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

using texts = std::vector<std::string>;

design_source engine_oil() {
    design_source source;
    source.project = std::string(KVT_TEST_DATA) + "/designs/n07_engine_oil_groove.KVT";
    return source;
}

TEST(batch_run, takes_a_design_through_all_stages_with_any_user) {
    scripted_user person;
    program kavetta;
    const batch_result result =
        calculate_design(kavetta, person, engine_oil(), calc_stage::performance);
    EXPECT_EQ(result.end, batch_end::ok);
    EXPECT_TRUE(result.profiles_reached && result.ports_reached && result.performance_reached);
    EXPECT_FALSE(result.ports_refused || result.performance_refused);
    EXPECT_TRUE(person.messages.empty());
    EXPECT_GT(kavetta.rotor_profiles.capacity_cc, 0.0);
}

TEST(batch_run, is_accepted_where_no_stage_refused_anything) {
    batch_result result;
    EXPECT_TRUE(result.is_accepted());
    result.ports_refused = true;
    EXPECT_FALSE(result.is_accepted());
    result = {};
    result.performance_refused = true;
    EXPECT_FALSE(result.is_accepted());
    result = {};
    result.end = batch_end::failure;
    EXPECT_FALSE(result.is_accepted());
}

TEST(batch_run, types_before_it_runs) {
    scripted_user person;
    program kavetta;
    design_source source = engine_oil();
    source.typed = {{"thick", "13,5"}};
    EXPECT_EQ(calculate_design(kavetta, person, source, calc_stage::profiles).end, batch_end::ok);
    EXPECT_EQ(kavetta.design_params.thick, 13.5);
}

TEST(batch_run, tells_a_file_that_cannot_be_read_as_a_line_and_not_as_a_message) {
    scripted_user person;
    program kavetta;
    design_source source = engine_oil();
    source.project = "/nowhere/design.KVT";
    EXPECT_EQ(calculate_design(kavetta, person, source, calc_stage::ports).end,
              batch_end::read_error);
    EXPECT_TRUE(person.messages.empty());
    ASSERT_EQ(person.statuses.size(), 1U);
    EXPECT_TRUE(person.statuses[0].starts_with("/nowhere/design.KVT: ")) << person.statuses[0];
}

TEST(batch_run, tells_a_refused_entry_and_stops_before_the_profiles) {
    scripted_user person;
    program kavetta;
    design_source source = engine_oil();
    source.typed = {{"shaftdiameter", "0"}};
    const batch_result result = calculate_design(kavetta, person, source, calc_stage::performance);
    EXPECT_EQ(result.end, batch_end::validation);
    EXPECT_FALSE(result.profiles_reached || result.ports_reached);
    EXPECT_EQ(person.messages, texts{"Input a value for the diameter of the shaft"});
}

TEST(batch_run, holds_two_designs_side_by_side) {
    scripted_user person;
    program thin;
    program thick;
    design_source source = engine_oil();
    source.typed = {{"thick", "10"}};
    calculate_design(thin, person, source, calc_stage::profiles);
    source.typed = {{"thick", "20"}};
    calculate_design(thick, person, source, calc_stage::profiles);
    EXPECT_NEAR(thick.rotor_profiles.max_chamber_volume / thin.rotor_profiles.max_chamber_volume,
                2.0, 1e-12);
}

}  // namespace
}  // namespace kvt
