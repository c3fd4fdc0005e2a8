#include "base/environment.hpp"
#include "support/environment_value.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

TEST(user_data_folder, is_below_the_home_of_the_user) {
    const environment_value home("HOME", "/home/somebody");
    EXPECT_EQ(user_data_folder(), "/home/somebody/.local/share");
}

}  // namespace
}  // namespace kvt
