#include "automation/no_host.hpp"

#include "automation/automation_error.hpp"
#include "automation/connect.hpp"

#include <gtest/gtest.h>

namespace kvt::automation {
namespace {

TEST(no_host, reaches_no_program_and_starts_none) {
    no_host programs;
    EXPECT_EQ(programs.running("excel.application"), nullptr);
    try {
        connect(programs, "excel.application");
        FAIL() << "nothing can be started";
    } catch (const automation_error& error) {
        EXPECT_EQ(error.number(), 429);
        EXPECT_EQ(error.detail(), "excel.application");
    }
}

}  // namespace
}  // namespace kvt::automation
