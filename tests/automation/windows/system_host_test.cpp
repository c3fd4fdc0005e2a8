#include "automation/system_host.hpp"

#include <gtest/gtest.h>

namespace kvt::automation {
namespace {

TEST(system_host, finds_no_program_of_an_unknown_name) {
    ASSERT_NE(system_host(), nullptr);
    EXPECT_EQ(system_host()->running("kavetta.nosuchprogram"), nullptr);
}

}  // namespace
}  // namespace kvt::automation
