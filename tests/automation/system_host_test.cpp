#include "automation/system_host.hpp"

#include <gtest/gtest.h>

namespace kvt::automation {
namespace {

TEST(system_host, is_there_where_programs_can_be_driven) {
#ifdef _WIN32
    ASSERT_NE(system_host(), nullptr);
    EXPECT_EQ(system_host()->running("kavetta.nosuchprogram"), nullptr);
#else
    EXPECT_EQ(system_host(), nullptr);
#endif
}

}  // namespace
}  // namespace kvt::automation
