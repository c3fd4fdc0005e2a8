// Tests of the forms that close with stale results.
#include "app/windows/result_forms.hpp"

#include "support/scripted_user.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

TEST(result_forms, close_in_their_order) {
    scripted_user person;
    unload_result_forms(person);
    EXPECT_EQ(person.log,
              (std::vector<std::string>{"unload perf_res", "unload EFFIC_graphview2",
                                        "unload FLOW_graphview2", "unload HERTZ_graphview2",
                                        "unload LOAD_graphview2", "unload OVREFF_graphview2",
                                        "unload PRESS_RIP_graphview2", "unload VE_graphview2"}));
}

}  // namespace
}  // namespace kvt
