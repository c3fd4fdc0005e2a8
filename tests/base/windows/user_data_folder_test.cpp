#include "base/environment.hpp"
#include "support/environment_value.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

TEST(user_data_folder, is_that_of_the_local_program_data) {
    environment_value folder("LOCALAPPDATA", "C:\\Nutzer\\Jürgen");
    EXPECT_TRUE(user_data_folder() == u8"C:\\Nutzer\\Jürgen");
    folder.set(std::nullopt);
    EXPECT_TRUE(user_data_folder().empty());
}

}  // namespace
}  // namespace kvt
