#include "automation/automation_error.hpp"

#include <gtest/gtest.h>

namespace kvt::automation {
namespace {

std::int32_t signed_result(std::uint32_t bits) {
    return static_cast<std::int32_t>(bits);
}

TEST(automation_error, has_the_number_that_a_script_shows) {
    struct row {
        std::uint32_t hresult;
        std::int32_t number;
    };
    const std::vector<row> rows = {{0x800401F3, 429}, {0x80040154, 429}, {0x800401E3, 429},
                                   {0x80080005, 429}, {0x80020006, 438}, {0x80020005, 13},
                                   {0x8002000B, 9},   {0x8002000E, 450}, {0x8002000F, 449},
                                   {0x80070057, 5},   {0x80070005, 70},  {0x800706BA, 462}};
    for (const row& one : rows) {
        EXPECT_EQ(error_number(signed_result(one.hresult)), one.number) << std::hex << one.hresult;
    }
}

TEST(automation_error, of_a_control_is_the_low_word) {
    EXPECT_EQ(error_number(signed_result(0x800A03EC)), 1004);
}

TEST(automation_error, of_anything_else_is_the_result_itself) {
    EXPECT_EQ(error_number(signed_result(0x80004005)), -2147467259);
    EXPECT_EQ(error_number(1000), 1000) << "a server's own number";
}

TEST(automation_error, is_a_run_time_error_with_that_number) {
    const automation_error error = error_of(signed_result(0x80040154), "excel.application");
    EXPECT_EQ(error.number(), 429);
    EXPECT_EQ(error.hresult, signed_result(0x80040154));
    EXPECT_EQ(error.detail(), "excel.application");
}

}  // namespace
}  // namespace kvt::automation
