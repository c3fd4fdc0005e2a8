#include "app/gt/gt_fluids.hpp"

#include "app/program.hpp"
#include "support/gt_stand_in.hpp"
#include "support/scripted_user.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

using texts = std::vector<std::string>;

const char* const SELECT_VERSION = "You must select a version of GT-SUITE to run the simulation";
const char* const NOT_INSTALLED = "You must have GT-SUITE installed in order to use this function";

class gt_fluids_test : public testing::Test {
  protected:
    gt_choices& choices() { return kavetta.gt_choices; }
    gt_stand_in package;
    program kavetta;
    scripted_user person;
};

TEST_F(gt_fluids_test, fills_the_list_with_the_fluids_of_the_version) {
    select_gt_version(kavetta, person, "GT 2021");
    EXPECT_EQ(choices().gt_version, 2021);
    EXPECT_EQ(choices().fluids, (texts{"oil_A", "oil_C"}));
    EXPECT_EQ(choices().fluid(), "") << "Select Fluid...";
    EXPECT_TRUE(person.log.empty());
}

TEST_F(gt_fluids_test, keeps_the_fluid_that_is_chosen) {
    select_gt_version(kavetta, person, "GT 2021");
    select_gt_fluid(kavetta, 2);
    EXPECT_EQ(choices().fluid(), "oil_C");
    select_gt_fluid(kavetta, 3);
    EXPECT_EQ(choices().fluid(), "oil_C") << "there is no third";
    select_gt_fluid(kavetta, 0);
    EXPECT_EQ(choices().fluid(), "");
}

TEST_F(gt_fluids_test, tells_a_version_without_a_library_and_empties_the_list) {
    select_gt_version(kavetta, person, "GT 2021");
    select_gt_fluid(kavetta, 1);
    select_gt_version(kavetta, person, "GT 2019");
    EXPECT_EQ(person.messages, texts{NOT_INSTALLED});
    EXPECT_EQ(choices().gt_version, 2019);
    EXPECT_TRUE(choices().fluids.empty());
    EXPECT_EQ(choices().fluid(), "");
}

TEST_F(gt_fluids_test, tells_a_missing_installation_in_english_in_either_language) {
    package.home_variable().set(std::nullopt);
    kavetta.app_state.language = GERMAN;
    select_gt_version(kavetta, person, "GT 2021");
    EXPECT_EQ(person.messages, texts{NOT_INSTALLED});
}

TEST_F(gt_fluids_test, tells_a_text_that_is_no_version) {
    for (const char* text : {"", "GT 2017", "GT 2022", "2021"}) {
        person.messages.clear();
        select_gt_version(kavetta, person, text);
        EXPECT_EQ(person.messages, texts{SELECT_VERSION}) << text;
        EXPECT_EQ(choices().gt_version, 0);
        EXPECT_TRUE(choices().fluids.empty());
    }
}

}  // namespace
}  // namespace kvt
