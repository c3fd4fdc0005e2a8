#include "base/environment.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

TEST(environment_variable, is_nothing_when_it_is_not_set) {
    EXPECT_TRUE(environment_variable("PATH"));
    EXPECT_FALSE(environment_variable("KVT_NO_SUCH_VARIABLE"));
}

TEST(environment, knows_the_running_program_and_where_programs_keep_their_files) {
    EXPECT_EQ(running_program().stem(), "kvt_base_tests");
    EXPECT_FALSE(user_data_folder().empty());
}

}  // namespace
}  // namespace kvt
