#include "automation/system_host.hpp"

#include <gtest/gtest.h>

namespace kvt::automation {
namespace {

TEST(system_host, is_none_where_no_program_can_be_driven) {
    EXPECT_EQ(system_host(), nullptr);
}

}  // namespace
}  // namespace kvt::automation
